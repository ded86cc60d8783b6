#include "worker/DrawService.h"

#include "pages/PageImage.h"
#include "pages/PageQuality.h"
#include "platform/EngineLimits.h"
#include "platform/Files.h"
#include "platform/PlatformException.h"
#include "worker/Seclusion.h"

#include <QByteArrayList>
#include <QFile>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <malloc.h>
#include <string>
#include <sys/prctl.h>

namespace {

void answerFailure(const QString& reason) {
    QString line = reason;
    line.replace(u'\n', u' ');
    std::cout << "fail " << line.toStdString() << std::endl;
}

void servePages(PageImageMaker& maker, const QString& folder) {
    const DrawControl control{nullptr, EngineLimits::maxPageTime};
    for (std::string line; std::getline(std::cin, line);) {
        const int page = std::atoi(line.c_str());
        try {
            const PageTiming timing =
                maker.make(page, Files::join(folder, QStringLiteral("%1.jpg").arg(page)), control);
            std::cout << "ok " << timing.draw << ' ' << timing.encode << ' ' << timing.write
                      << std::endl;
        } catch (const PlatformException& failure) {
            answerFailure(failure.reason());
        } catch (const std::bad_alloc&) {
            answerFailure(QStringLiteral("it takes more memory than a page may have"));
        } catch (const std::exception& failure) {
            answerFailure(QString::fromUtf8(failure.what()));
        }
    }
}

// Transparent pages take and free pictures of the page's size by the dozen. Keeping that memory
// instead of giving it back saves the system from clearing it anew each time.
void keepFreedMemory() {
    ::mallopt(M_MMAP_THRESHOLD, 32 << 20); // the most that it takes
    ::mallopt(M_TRIM_THRESHOLD, 256 << 20);
}

} // namespace

void serveDrawing() {
    // An import that is killed takes its workers along, even in the middle of a page.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    keepFreedMemory();
    std::string line;
    if (!std::getline(std::cin, line))
        return; // it was not needed
    const QByteArrayList order = QByteArray::fromStdString(line).split(' ');
    const QString path = QFile::decodeName(QByteArray::fromBase64(order.value(0)));
    const QString workFolder = QFile::decodeName(QByteArray::fromBase64(order.value(1)));
    seclude(path, workFolder);
    try {
        const auto document = PDFDocument::open(path, PDFDocument::Access::mapped);
        PageImageMaker maker(*document, compressionFactor(order.value(2).toInt()));
        std::cout << "ready" << std::endl;
        servePages(maker, workFolder);
    } catch (const PlatformException& failure) {
        answerFailure(failure.reason());
    }
}
