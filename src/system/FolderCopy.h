#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <functional>
#include <optional>
#include <sys/types.h>

// Copies folders whose files may be shared with the original.
namespace FolderCopy {

struct Failure {
    QByteArray path; // relative to the folder that is copied
    Message cause;
};

// Whether an entry, by its relative path and the type bits of its mode, is left out.
using IsLeftOut = std::function<bool(const QByteArray& path, mode_t type)>;

// Makes an empty folder, open like the other one, what that is: subfolders, permissions, owners,
// extended attributes and times are copied; files, symbolic links and special files become hard
// links, or are copied where the system refuses to link them. Symbolic links are not followed.
// Stops at the first entry that can't be had twice, which may be a mount point or something of
// another user, and returns it.
std::optional<Failure> link(int from, int to, const IsLeftOut& isLeftOut);

} // namespace FolderCopy
