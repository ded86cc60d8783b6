#pragma once

#include "system/FileDescriptor.h"

#include <QByteArray>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

// A helper process that communicates in lines: we write lines to its standard input and read lines
// from its standard output. The destructor kills it. It does not receive Ctrl-C from the terminal.
class ChildProcess {
public:
    // Throws PlatformException (processStart).
    ChildProcess(const std::string& program, const std::vector<std::string>& arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Never blocks. False when the process is gone, or when its input buffer is full because it has
    // not been reading; a line written then does not arrive whole.
    bool writeLine(const QByteArray& line);

    // For poll(): readable, or at end of file, when readAvailable() would not block.
    int readDescriptor() const { return iFromChild.number(); }

    // Reads what has arrived; blocks when nothing has. False at end of file, and when a line
    // exceeds maxLine bytes, which no working helper sends.
    bool readAvailable(qsizetype maxLine);

    // The next complete line received, without its line ending.
    std::optional<QByteArray> takeLine();

    // After end of file: whether the program could not be run properly, so that its exit says
    // nothing about its input.
    bool couldNotRun();

    // After end of file: whether the process was killed with SIGKILL, as the kernel does when
    // memory runs out.
    bool wasKilled();

    // Kills the process without waiting for it; the destructor waits.
    void kill();

private:
    bool exitsSoon();
    void waitForEnd();

    pid_t iProcess = -1;
    bool iHasEnded = false; // and has been reaped
    int iStatus = 0;        // valid once it has
    FileDescriptor iToChild;
    FileDescriptor iFromChild;
    QByteArray iBuffer;
    qsizetype iSearched = 0; // bytes of iBuffer already searched for a line ending
};
