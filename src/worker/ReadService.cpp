#include "worker/ReadService.h"

#include "base/PlatformException.h"
#include "pdf/DrawablePDF.h"
#include "pdf/PDFLimits.h"
#include "pdf/PDFSerialization.h"
#include "worker/Answer.h"
#include "worker/WorkerSandbox.h"

#include <QFile>
#include <iostream>
#include <string>

namespace {

constexpr std::chrono::seconds maxQuestionTime = PDFLimits::maxPageTime;

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

} // namespace

void serveReading(const char* pdf) {
    std::string line;
    if (!std::getline(std::cin, line))
        return;
    const QByteArray password = QByteArray::fromBase64(QByteArray::fromStdString(line));
    const QString path = QFile::decodeName(pdf);
    enterWorkerSandbox({path}, QString());
    std::shared_ptr<PDFDocument> document;
    answerWith(maxQuestionTime, [&] {
        document = std::make_shared<DrawablePDF>(path, DrawablePDF::Access::mapped, password);
        return PDFSerialization::pack(document->pageCount());
    });
    while (document && std::getline(std::cin, line))
        answerWith(maxQuestionTime,
                   [&] { return answer(*document, QByteArray::fromStdString(line)); });
}
