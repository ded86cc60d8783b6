// The page worker: draws pages of one PDF for an import that runs in another process.
//
//     folvero-page-worker PDF FOLDER QUALITY
//
// It says "ready" once the document is open. Then it reads one-based page numbers, one a line, from
// standard input, writes the page file "N.jpg" into the folder and answers each with one line: "ok
// DRAW ENCODE WRITE" (seconds) or "fail REASON".

#include "pages/PageImage.h"
#include "pages/PageQuality.h"
#include "platform/EngineLimits.h"
#include "platform/Files.h"
#include "platform/PlatformException.h"

#include <QFile>
#include <csignal>
#include <cstdio>
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

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: folvero-page-worker PDF FOLDER QUALITY\n";
        return 2;
    }
    // An import that is killed takes its workers along, even in the middle of a page.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    keepFreedMemory();
    try {
        const auto document =
            PDFDocument::open(QFile::decodeName(argv[1]), PDFDocument::Access::mapped);
        PageImageMaker maker(*document, compressionFactor(std::atoi(argv[3])));
        std::cout << "ready" << std::endl;
        servePages(maker, QFile::decodeName(argv[2]));
    } catch (const std::exception& failure) {
        std::cerr << "folvero-page-worker: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
