#include "pdf/PDFReader.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "pdf/DrawablePDF.h"
#include "pdf/PDFFile.h"
#include "pdf/PDFSerialization.h"
#include "system/Bundle.h"
#include "system/Files.h"

#include <QFile>
#include <poll.h>
#include <utility>

namespace {

// How often a waiting reader checks for a cancel.
constexpr int pollMilliseconds = 20;

// Processes that a document may crash before it is not queried any more.
constexpr int maxEnded = 3;

// The longest answers are an outline and a page's links.
constexpr qsizetype maxAnswer = qsizetype{128} << 20;

// A sentence with a path in it.
constexpr qsizetype maxReason = 16'384;

constexpr Log readerLog("PDFReader");

Message crashMessage() {
    return Message::translate("PDFReader", "the program that reads PDF files broke off at it");
}

// The process reports in English.
Message openErrorFrom(const QString& words) {
    for (const char* text : {"is damaged beyond repair (%1)", "is encrypted in an unknown way (%1)",
                             "its pages can't be found (%1)"}) {
        const QString start = QString::fromUtf8(text).section(u'%', 0, 0);
        if (words.startsWith(start) && words.endsWith(u')'))
            return Message::translate("PDFDocument", text).arg(words.mid(start.size()).chopped(1));
    }
    return Message::translate("PDFDocument", words.toUtf8().constData());
}

// Kinds of errors control our behaviour, so only those that a reader may legitimately report are
// accepted.
std::optional<ErrorKind> reportedKind(const QByteArray& name) {
    for (const ErrorKind kind : {ErrorKind::pdfFile, ErrorKind::pdfOpen, ErrorKind::pdfPassword,
                                 ErrorKind::pageMissing, ErrorKind::pageUnreadable}) {
        if (name == nameOf(kind))
            return kind;
    }
    return std::nullopt;
}

// Reasons of these contain the path.
bool isOpenError(ErrorKind kind) {
    return kind == ErrorKind::pdfFile || kind == ErrorKind::pdfOpen ||
           kind == ErrorKind::pdfPassword;
}

// "fail NAME REASON".
PlatformException failureFrom(const QByteArray& line, const QStringList& paths) {
    const QByteArray begin = "fail ";
    const qsizetype end = line.indexOf(' ', begin.size());
    const auto kind = reportedKind(line.mid(begin.size(), end - begin.size()));
    if (!line.startsWith(begin) || end < 0 || !kind)
        return PDFSerialization::malformedAnswer();
    const QString reason = QString::fromUtf8(line.mid(end + 1, maxReason));
    if (!isOpenError(*kind))
        return {*kind, Message::translate("PageFailure", reason.toUtf8().constData())};
    for (const QString& path : paths) {
        const QString start = path + QStringLiteral(": ");
        if (reason.startsWith(start))
            return {*kind, Message::about(path, openErrorFrom(reason.mid(start.size())))};
    }
    return {*kind, Message::about(paths.value(0), openErrorFrom(reason))};
}

} // namespace

std::shared_ptr<PDFDocument> PDFReader::open(const QString& path, std::function<bool()> stopped,
                                             const QByteArray& password) {
    PDFFile::check(path);
    auto reader = std::make_shared<PDFReader>(path, std::move(stopped), password);
    try {
        if (reader->start())
            return reader;
    } catch (const PlatformException& failure) {
        if (isOpenError(failure.kind()))
            throw;
        PDFFile::failToOpen(path, failure.message(), failure.kind());
    }
    return std::make_shared<DrawablePDF>(path, DrawablePDF::Access::stream, password);
}

PDFReader::PDFReader(const QString& path, std::function<bool()> stopped, const QByteArray& password)
    : PDFDocument(path, password),
      iService{{"read", QFile::encodeName(path).toStdString()}, password.toBase64(), {path}},
      iProgram(Bundle::pageWorkerPath()),
      iStopped(std::move(stopped)) {}

void PDFReader::merge(const MergePlan& plan, const QString& to, std::function<bool()> stopped) {
    PDFReader reader(to, std::move(stopped));
    reader.iTimeout = PDFLimits::maxMergeTime;
    // Not in the first line, which may not fit into what a process takes without reading.
    const QString file = to + QStringLiteral(".plan");
    Message cause;
    if (!Files::writeAtomically(file, PDFSerialization::pack(plan), &cause))
        throw PlatformException(ErrorKind::workFolder, Message::about(file, cause));
    reader.iService = {
        {"merge", QFile::encodeName(to).toStdString()}, QFile::encodeName(file).toBase64(), {}};
    for (const MergePlan::Source& source : plan.sources)
        reader.iService.sources << source.path;
    reader.ask(QByteArray());
}

bool PDFReader::start() {
    try {
        iPageCount = PDFSerialization::unpack<int>(ask(QByteArray()));
        return true;
    } catch (const PlatformException& failure) {
        stopReader();
        if (failure.kind() != ErrorKind::processStart)
            throw;
        readerLog.warn(failure.reason());
        return false;
    }
}

std::vector<QSizeF> PDFReader::pageSizes() const {
    return PDFSerialization::unpack<std::vector<QSizeF>>(ask("sizes"));
}

PDFPage PDFReader::page(int index) const {
    requirePage(index);
    return PDFSerialization::unpack<PDFPage>(ask("page " + QByteArray::number(index)));
}

std::vector<PDFAnnotation> PDFReader::annotations(int index) const {
    requirePage(index);
    return PDFSerialization::unpack<std::vector<PDFAnnotation>>(
        ask("annotations " + QByteArray::number(index)));
}

QString PDFReader::information(const char* key) const {
    return PDFSerialization::unpack<QString>(ask(QByteArray("information ") + key));
}

PDFViewing PDFReader::viewing() const {
    return PDFSerialization::unpack<PDFViewing>(ask("viewing"));
}

QString PDFReader::language() const {
    return PDFSerialization::unpack<QString>(ask("language"));
}

std::vector<QString> PDFReader::pageLabels() const {
    return PDFSerialization::unpack<std::vector<QString>>(ask("labels"));
}

std::vector<PDFOutlineNode> PDFReader::outline() const {
    return PDFSerialization::unpack<std::vector<PDFOutlineNode>>(ask("outline"));
}

// A process may be killed through no fault of the document, so each query is tried twice.
QByteArray PDFReader::ask(const QByteArray& question) const {
    try {
        return askOnce(question);
    } catch (const PlatformException& failure) {
        if (failure.kind() != ErrorKind::readerEnded || iEnded >= maxEnded)
            throw;
        return askOnce(question);
    }
}

// An empty question asks for the page count, which the process reports after opening the file.
QByteArray PDFReader::askOnce(const QByteArray& question) const {
    if (iEnded >= maxEnded)
        throw PlatformException(ErrorKind::readerEnded, crashMessage());
    if (!iProcess) {
        iProcess = std::make_unique<ChildProcess>(QFile::encodeName(iProgram).toStdString(),
                                                  iService.arguments);
        iIsSandboxed = false;
        iProcess->writeLine(iService.firstLine);
        QByteArray count = awaitAnswer();
        if (question.isEmpty())
            return count;
    }
    iProcess->writeLine(question); // a failure shows when waiting for the answer
    return awaitAnswer();
}

QByteArray PDFReader::awaitAnswer() const {
    const auto deadline = std::chrono::steady_clock::now() + iTimeout;
    for (;;) {
        if (const auto line = iProcess->takeLine()) {
            if (!std::exchange(iIsSandboxed, true)) {
                if (*line != "here")
                    throw PDFSerialization::malformedAnswer();
                continue;
            }
            if (line->startsWith("ok "))
                return QByteArray::fromBase64(line->mid(3));
            throw failureFrom(*line, iService.sources);
        }
        if (iStopped && iStopped()) {
            stopReader();
            throw PlatformException(ErrorKind::readStopped,
                                    Message::translate("PDFReader", "reading it was stopped"));
        }
        if (std::chrono::steady_clock::now() > deadline) {
            ++iEnded;
            stopReader();
            throw PlatformException(ErrorKind::readerTimeout,
                                    Message::translate("PDFReader", "reading it took too long"));
        }
        pollfd descriptor{iProcess->readDescriptor(), POLLIN, 0};
        if (::poll(&descriptor, 1, pollMilliseconds) > 0 && !iProcess->readAvailable(maxAnswer))
            reportEnd();
    }
}

// A program that could not be run says nothing about the file, and neither does one that ends
// before it opens the file, as when there are no more processes or memory. Once its sandbox is in
// force it may have opened the file, and the file may control what it reports.
void PDFReader::reportEnd() const {
    const bool isNoFaultOfFile = !iIsSandboxed;
    const bool couldNotRun = isNoFaultOfFile && iProcess->couldNotRun();
    const auto notStarted =
        Message::translate("PDFReader", "the program that reads PDF files can't be started");
    stopReader();
    if (couldNotRun)
        throw PlatformException(ErrorKind::processStart, notStarted);
    ++iEnded;
    throw PlatformException(ErrorKind::readerEnded,
                            isNoFaultOfFile ? notStarted.temporary() : crashMessage());
}
