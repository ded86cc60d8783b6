#pragma once

#include <QStringList>
#include <cstddef>

// A sandbox for processes that read untrusted files: after entering it, an attacker who controls
// the process can compute and do little else. It can't be left.
namespace Sandbox {

// What the process may still use.
struct Policy {
    QStringList files;       // may be read; symbolic links are followed
    QString workFolder;      // files in it may be read, written, renamed and deleted; null for none
    std::size_t memory{0};   // limit of data memory, in bytes
    std::size_t fileSize{0}; // limit of a file's size, in bytes; 0 for none
};

// Restricts the process to the policy: no other files, no network, no new programs, limited memory,
// and no standard error stream, which may be a terminal. Without support by the kernel the process
// continues unrestricted. Call it while the process has one thread: file access of other threads is
// not restricted.
void enter(const Policy& policy);

// Keeps the process from changing any file or folder from now on; it can read as before, and write
// to files that are open. Where the kernel can't do that it does nothing. It binds this thread,
// those that it starts, and all of a program that it executes.
void forbidWriting();

} // namespace Sandbox
