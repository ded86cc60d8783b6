#include "worker/DrawService.h"

#include "base/PlatformException.h"
#include "drawing/PageImage.h"
#include "drawing/PageQuality.h"
#include "drawing/WebPageMaker.h"
#include "pdf/PDFLimits.h"
#include "system/Files.h"
#include "worker/WorkerSandbox.h"

#include <QByteArrayList>
#include <QFile>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <malloc.h>
#include <string>
#include <sys/prctl.h>

namespace {

void answerFailure(const QString& reason, const char* kind = "fail") {
    QString line = reason;
    line.replace(u'\n', u' ');
    std::cout << kind << ' ' << line.toStdString() << std::endl;
}

// Write errors are not the page's fault.
const char* kindOf(const PlatformException& failure) {
    if (failure.kind() != ErrorKind::pageWrite)
        return "fail";
    return failure.message().isTemporary() ? "full" : "unwritable";
}

using MakePage = std::function<PageTiming(int page, const DrawControl& control)>;

// The function that makes the requested kind of files.
MakePage pageMaker(const DrawablePDF& document, const QByteArrayList& order,
                   const QString& folder) {
    if (order.value(3) == "web") {
        return [maker = std::make_shared<WebPageMaker>(document),
                folder](int page, const DrawControl& control) {
            return maker->make(page, WebPageFiles(folder, page), control);
        };
    }
    const double factor = compressionFactor(order.value(2).toInt());
    return [maker = std::make_shared<PageImageMaker>(document, factor),
            folder](int page, const DrawControl& control) {
        return maker->make(page, Files::join(folder, QStringLiteral("%1.jpg").arg(page)), control);
    };
}

void servePages(const MakePage& make) {
    const DrawControl control{nullptr, PDFLimits::maxPageTime};
    for (std::string line; std::getline(std::cin, line);) {
        const int page = std::atoi(line.c_str());
        try {
            const PageTiming timing = make(page, control);
            std::cout << "ok " << timing.draw << ' ' << timing.encode << ' ' << timing.write
                      << std::endl;
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
    enterWorkerSandbox(path, workFolder);
    try {
        const DrawablePDF document(path, DrawablePDF::Access::mapped);
        const MakePage make = pageMaker(document, order, workFolder);
        std::cout << "ready" << std::endl;
        servePages(make);
    } catch (const PlatformException& failure) {
        answerFailure(failure.reason());
    }
}
