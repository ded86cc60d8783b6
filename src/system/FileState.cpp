#include "system/FileState.h"

#include <QFile>
#include <sys/stat.h>

namespace {

std::int64_t nanoseconds(const timespec& time) {
    return time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec;
}

} // namespace

FileState FileState::of(const QString& path) {
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    return {true,
            info.st_dev,
            info.st_ino,
            info.st_size,
            nanoseconds(info.st_mtim),
            nanoseconds(info.st_ctim)};
}

bool FileState::isAsWritten(const FileState& other) const {
    FileState same = other;
    same.changed = changed;
    return *this == same;
}
