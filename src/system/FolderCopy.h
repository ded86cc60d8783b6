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

// Fills an empty folder with what another one contains; both are open. Subfolders are created
// with the same permissions and, if allowed, the same owner. Files, symbolic links and special
// files become hard links; those that the system refuses to link are copied. Symbolic links are not
// followed. Fails at a mount point. Stops at the first failure and returns it.
std::optional<Failure> link(int from, int to, const IsLeftOut& isLeftOut);

// Gives an open folder the permissions of another one and, if allowed, its owner.
bool copyAttributes(int from, int to);

} // namespace FolderCopy
