#pragma once

#include <QString>
#include <cstddef>

// Walls around a process that reads files made by strangers: once they are up, whoever takes the
// process over can still compute, and do little else. They stay up for good.
namespace Sandbox {

// What the process goes on to need of the file system and the machine.
struct Policy {
    QString file;            // read; a symbolic link is followed
    QString workFolder;      // files in it are read, written, renamed and deleted; null for none
    std::size_t memory{0};   // bytes of data it may hold
    std::size_t fileSize{0}; // bytes that a file may grow to; 0 for no limit
};

// Takes away all but that: other files, the network, starting programs, memory without end, and the
// standard error stream, which may be a terminal. A system that knows no such walls leaves the
// process as it is. To be called while there is one thread: files are not closed off from others.
void enter(const Policy& policy);

} // namespace Sandbox
