#include "system/FileState.h"

#include <QFile>
#include <sys/stat.h>

FileState FileState::of(const QString& path) {
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    return {true, info.st_dev, info.st_ino, info.st_size,
            info.st_mtim.tv_sec * std::int64_t{1'000'000'000} + info.st_mtim.tv_nsec};
}
