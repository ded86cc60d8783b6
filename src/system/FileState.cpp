#include "system/FileState.h"

#include <QFile>
#include <sys/stat.h>

FileState FileState::of(const QString& path) {
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    return {true, info.st_dev, info.st_ino, info.st_size, info.st_mtim};
}

bool FileState::operator==(const FileState& other) const {
    return isThere == other.isThere && device == other.device && number == other.number &&
           size == other.size && written.tv_sec == other.written.tv_sec &&
           written.tv_nsec == other.written.tv_nsec;
}
