#pragma once

#include "system/FileDescriptor.h"

#include <sys/types.h>

class CommitSwitch;

// A process that undoes a switch when this one dies in the middle of it, so that killing a program
// never leaves a folder half changed. It takes over the lock of the staging folder meanwhile. When
// both are killed, or the power fails, the next publish undoes the switch.
class CommitGuard {
public:
    // Without a further process there is no guard.
    explicit CommitGuard(const CommitSwitch& steps);
    // Ends the guard: the switch has succeeded or has been undone.
    ~CommitGuard();
    CommitGuard(const CommitGuard&) = delete;
    CommitGuard& operator=(const CommitGuard&) = delete;

private:
    FileDescriptor iConnection;
    pid_t iProcess = -1;
};
