#include "worker/DrawService.h"

#include "base/PlatformException.h"
#include "drawing/PageMaker.h"
#include "pdf/DrawablePDF.h"
#include "pdf/PDFLimits.h"
#include "worker/WorkerSandbox.h"

#include <QByteArrayList>
#include <QFile>
#include <csignal>
#include <iostream>
#include <malloc.h>
#include <string>
#include <sys/prctl.h>

namespace {

std::string onOneLine(QString reason) {
    return reason.replace(u'\n', u' ').toStdString();
}

void answerFailure(const QString& reason, const char* kind = "fail") {
    std::cout << kind << ' ' << onOneLine(reason) << std::endl;
}

// Write errors are not the page's fault.
const char* kindOf(const PlatformException& failure) {
    if (failure.kind() != ErrorKind::pageWrite)
        return "fail";
    return failure.message().isTemporary() ? "full" : "unwritable";
}

void answer(const MadePage& made) {
    if (!made.damage.isNone())
        std::cout << "damaged " << made.damage.words().constData() << '\n';
    std::cout << "ok " << made.timing.draw << ' ' << made.timing.encode << ' ' << made.timing.write;
    if (!made.degraded.isNull())
        std::cout << ' ' << onOneLine(made.degraded.english());
    std::cout << std::endl;
}

void servePages(PageMaker& maker) {
    const DrawControl control{nullptr, PDFLimits::maxPageTime};
    // Without a way to answer it is of no use.
    for (std::string line; std::cout && std::getline(std::cin, line);) {
        try {
            answer(maker.make(PageOrder::fromLine(QByteArray::fromStdString(line)), control));
        } catch (const PlatformException& failure) {
            answerFailure(failure.reason(), kindOf(failure));
        } catch (const std::bad_alloc&) {
            answerFailure(QStringLiteral("it takes more memory than a page may have"));
        } catch (const std::exception& failure) {
            answerFailure(QString::fromUtf8(failure.what()));
        }
    }
}

// Transparent pages allocate and free page-sized pixmaps by the dozen. Keeping that memory spares
// the kernel from clearing it each time.
void keepFreedMemory() {
    ::mallopt(M_MMAP_THRESHOLD, 32 << 20); // the largest value allowed
    ::mallopt(M_TRIM_THRESHOLD, 256 << 20);
}

} // namespace

void serveDrawing() {
    // When the import is killed, its workers are killed too, even in the middle of a page.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    keepFreedMemory();
    std::string line;
    if (!std::getline(std::cin, line))
        return; // a spare worker that was not needed
    const QByteArrayList order = QByteArray::fromStdString(line).split(' ');
    const QString path = QFile::decodeName(QByteArray::fromBase64(order.value(0)));
    const QString workFolder = QFile::decodeName(QByteArray::fromBase64(order.value(1)));
    enterWorkerSandbox({path}, workFolder);
    try {
        const DrawablePDF document(path, DrawablePDF::Access::mapped,
                                   QByteArray::fromBase64(order.value(3)));
        PageMaker maker(document, workFolder, order.value(2).toInt());
        std::cout << "ready" << std::endl;
        servePages(maker);
    } catch (const PlatformException& failure) {
        answerFailure(failure.reason());
    }
}
