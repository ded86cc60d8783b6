#pragma once

#include <QString>
#include <cstdint>
#include <sys/types.h>

// Identity and modification time of the file at a path. Two states differ when the file was
// replaced, written or removed in between.
struct FileState {
    bool isThere = false;
    dev_t device = 0;
    ino_t number = 0;
    off_t size = 0;
    std::int64_t written = 0; // nanoseconds
    // Of the last change to the file or to what is known of it, which no program can set: others
    // keep the time of modification when they write.
    std::int64_t changed = 0;

    static FileState of(const QString& path);

    // The same but for the time "changed", as after a new mode, owner or hard link; or after
    // writing and setting "written" back.
    bool isAsWritten(const FileState& other) const;

    bool operator==(const FileState& other) const = default;
};
