#include "worker/ReadService.h"

#include "base/PlatformException.h"
#include "pdf/DrawablePDF.h"
#include "pdf/PDFLimits.h"
#include "pdf/PDFSerialization.h"
#include "worker/WorkerSandbox.h"

#include <QFile>
#include <functional>
#include <iostream>
#include <new>
#include <string>
#include <unistd.h>

namespace {

// A process that is no longer waited for must not keep running. The other side times out before
// that.
constexpr unsigned maxQuestionSeconds = unsigned(PDFLimits::maxPageTime.count()) + 10;

QByteArray answer(const PDFDocument& document, const QByteArray& question) {
    const qsizetype blank = question.indexOf(' ');
    const QByteArray what = blank < 0 ? question : question.left(blank);
    const QByteArray of = blank < 0 ? QByteArray() : question.mid(blank + 1);
    if (what == "page")
        return PDFSerialization::pack(document.page(of.toInt()));
    if (what == "sizes")
        return PDFSerialization::pack(document.pageSizes());
    if (what == "annotations")
        return PDFSerialization::pack(document.annotations(of.toInt()));
    if (what == "outline")
        return PDFSerialization::pack(document.outline());
    if (what == "viewing")
        return PDFSerialization::pack(document.viewing());
    if (what == "language")
        return PDFSerialization::pack(document.language());
    if (what == "labels")
        return PDFSerialization::pack(document.pageLabels());
    if (what == "information")
        return PDFSerialization::pack(document.information(of.constData()));
    throw PlatformException(ErrorKind::readerMalformedAnswer, QStringLiteral("no such question"));
}

void answerWith(const std::function<QByteArray()>& work) {
    std::string line;
    ::alarm(maxQuestionSeconds);
    try {
        line = "ok " + work().toBase64().toStdString();
    } catch (const PlatformException& failure) {
        QString reason = failure.reason();
        reason.replace(u'\n', u' ');
        line = "fail " + failure.name().toStdString() + ' ' + reason.toStdString();
    } catch (const std::bad_alloc&) {
        line = "fail PDFPageUnreadable it takes more memory than a page may have";
    } catch (const std::exception& failure) {
        line = std::string("fail PDFPageUnreadable ") + failure.what();
    }
    ::alarm(0);
    std::cout << line << std::endl;
}

} // namespace

void serveReading(const char* pdf) {
    std::string line;
    if (!std::getline(std::cin, line))
        return;
    const QByteArray password = QByteArray::fromBase64(QByteArray::fromStdString(line));
    const QString path = QFile::decodeName(pdf);
    enterWorkerSandbox(path, QString());
    std::shared_ptr<PDFDocument> document;
    answerWith([&] {
        document = std::make_shared<DrawablePDF>(path, DrawablePDF::Access::mapped, password);
        return PDFSerialization::pack(document->pageCount());
    });
    while (document && std::getline(std::cin, line))
        answerWith([&] { return answer(*document, QByteArray::fromStdString(line)); });
}
