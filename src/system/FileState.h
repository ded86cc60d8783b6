#pragma once

#include <QString>
#include <sys/types.h>
#include <time.h>

// Identity and modification time of the file at a path. Two states differ when the file was
// replaced, written or removed in between.
struct FileState {
    bool isThere = false;
    dev_t device = 0;
    ino_t number = 0;
    off_t size = 0;
    timespec written{};

    static FileState of(const QString& path);

    bool operator==(const FileState& other) const;
};
