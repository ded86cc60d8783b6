#include "pdf/PDFReader.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "pdf/PDFLimits.h"
#include "pdf/PDFSerialization.h"
#include "system/Bundle.h"

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

const Log& readerLog() {
    static const Log log("PDFReader");
    return log;
}

[[noreturn]] void fail(const char* name, const Message& reason) {
    throw PlatformException(QString::fromLatin1(name), reason);
}

Message crashMessage() {
    return Message::translate("PDFReader", "the program that reads PDF files broke off at it");
}

// The process reports in English.
Message openErrorFrom(const QString& words) {
    const QString damaged = QStringLiteral("is damaged beyond repair (");
    if (words.startsWith(damaged) && words.endsWith(u')')) {
        return Message::translate("PDFDocument", "is damaged beyond repair (%1)")
            .arg(words.mid(damaged.size()).chopped(1));
    }
    return Message::translate("PDFDocument", words.toUtf8().constData());
}

// "fail NAME REASON". The reason of an open error already contains the path. Names control our
// behaviour, so only those that a reader may legitimately report are accepted.
PlatformException failureFrom(const QByteArray& line, const QString& path) {
    const QByteArray begin = "fail ";
    const qsizetype end = line.indexOf(' ', begin.size());
    const QString name = QString::fromLatin1(line.mid(begin.size(), end - begin.size()));
    static const QStringList known{QStringLiteral("PDFOpenFailed"),
                                   QStringLiteral("PDFPageMissing"),
                                   QStringLiteral("PDFPageUnreadable")};
    if (!line.startsWith(begin) || end < 0 || !known.contains(name))
        return PDFSerialization::malformedAnswer();
    const QString reason = QString::fromUtf8(line.mid(end + 1, maxReason));
    if (name != known.first())
        return {name, Message::translate("PageFailure", reason.toUtf8().constData())};
    const QString start = path + QStringLiteral(": ");
    const QString cause = reason.startsWith(start) ? reason.mid(start.size()) : reason;
    return {name, Message(QStringLiteral("%1: %2")).arg(path, openErrorFrom(cause))};
}

} // namespace

PDFReader::PDFReader(QString path, std::function<bool()> stopped)
    : iProgram(Bundle::pageWorkerPath()), iPath(std::move(path)), iStopped(std::move(stopped)) {}

PDFReader::~PDFReader() = default;

bool PDFReader::open() {
    try {
        iPageCount = PDFSerialization::unpackNumber(ask(QByteArray()));
        return true;
    } catch (const PlatformException& failure) {
        stop();
        if (failure.name() != QStringLiteral("ProcessStartFailed"))
            throw;
        readerLog().warn(failure.reason());
        return false;
    }
}

PDFPageBoxes PDFReader::boxes(int index) {
    return PDFSerialization::unpackBoxes(ask("page " + QByteArray::number(index)));
}

std::vector<PDFAnnotation> PDFReader::annotations(int index) {
    return PDFSerialization::unpackAnnotations(ask("annotations " + QByteArray::number(index)));
}

std::vector<PDFOutlineNode> PDFReader::outline() {
    return PDFSerialization::unpackOutline(ask("outline"));
}

QString PDFReader::information(const char* key) {
    return PDFSerialization::unpackText(ask(QByteArray("information ") + key));
}

QString PDFReader::language() {
    return PDFSerialization::unpackText(ask("language"));
}

std::vector<QString> PDFReader::pageLabels() {
    return PDFSerialization::unpackTexts(ask("labels"));
}

void PDFReader::stop() {
    iProcess.reset();
}

// A process may be killed through no fault of the document, so each query is tried twice.
QByteArray PDFReader::ask(const QByteArray& question) {
    try {
        return askOnce(question);
    } catch (const PlatformException& failure) {
        if (failure.name() != QStringLiteral("PDFReaderEnded") || iEnded >= maxEnded)
            throw;
        return askOnce(question);
    }
}

// An empty question asks for the page count, which the process reports after opening the file.
QByteArray PDFReader::askOnce(const QByteArray& question) {
    if (iEnded >= maxEnded)
        fail("PDFReaderEnded", crashMessage());
    if (!iProcess) {
        iProcess = std::make_unique<ChildProcess>(
            QFile::encodeName(iProgram).toStdString(),
            std::vector<std::string>{"read", QFile::encodeName(iPath).toStdString()});
        iIsSandboxed = false;
        QByteArray count = awaitAnswer();
        if (question.isEmpty())
            return count;
    }
    iProcess->writeLine(question); // a failure shows when waiting for the answer
    return awaitAnswer();
}

QByteArray PDFReader::awaitAnswer() {
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
            throw failureFrom(*line, iPath);
        }
        if (iStopped && iStopped()) {
            stop();
            fail("PDFReadStopped", Message::translate("PDFReader", "reading it was stopped"));
        }
        if (std::chrono::steady_clock::now() > deadline) {
            ++iEnded;
            stop();
            fail("PDFReaderTimeout", Message::translate("PDFReader", "reading it took too long"));
        }
        pollfd descriptor{iProcess->readDescriptor(), POLLIN, 0};
        if (::poll(&descriptor, 1, pollMilliseconds) > 0 && !iProcess->readAvailable(maxAnswer))
            reportEnd();
    }
}

// A program that could not be run says nothing about the file. Once its sandbox is in force it may
// have opened the file, and the file may control what it reports.
void PDFReader::reportEnd() {
    const bool couldRun = iIsSandboxed || !iProcess->couldNotRun();
    stop();
    if (!couldRun)
        fail("ProcessStartFailed",
             Message::translate("PDFReader", "the program that reads PDF files can't be started"));
    ++iEnded;
    fail("PDFReaderEnded", crashMessage());
}
