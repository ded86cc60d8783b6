#include "drawing/WorkFolderLimit.h"

#include <QFile>
#include <algorithm>
#include <filesystem>

using namespace std::chrono_literals;

namespace {

// A page has up to seven files, and as many while they are written.
constexpr std::size_t filesOfPage = 14;
constexpr std::size_t moreFiles = 100;

// Ten times the largest pages of photographs.
constexpr std::uintmax_t bytesOfPage = std::uintmax_t{64} << 20;
constexpr std::uintmax_t moreBytes = std::uintmax_t{1} << 30;

} // namespace

WorkFolderLimit::WorkFolderLimit(const QString& folder, std::size_t pages)
    : iFolder(folder), iMost(usage()), iNext(Clock::now() + 200ms) {
    iMost.files += filesOfPage * pages + moreFiles;
    iMost.bytes += bytesOfPage * pages + moreBytes;
}

// Files may vanish meanwhile.
WorkFolderLimit::Usage WorkFolderLimit::usage() const {
    Usage usage;
    std::error_code error;
    std::filesystem::directory_iterator file(QFile::encodeName(iFolder).toStdString(), error);
    for (; !error && file != std::filesystem::directory_iterator(); file.increment(error)) {
        std::error_code gone;
        const auto size = file->file_size(gone);
        ++usage.files;
        usage.bytes += gone ? 0 : size;
    }
    return usage;
}

bool WorkFolderLimit::isExceeded() {
    const auto begin = Clock::now();
    if (begin < iNext)
        return false;
    const Usage now = usage();
    const auto end = Clock::now();
    iNext = end + std::max<Clock::duration>(1s, 50 * (end - begin));
    return now.files > iMost.files || now.bytes > iMost.bytes;
}
