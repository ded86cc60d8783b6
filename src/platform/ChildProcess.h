#pragma once

#include <QByteArray>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

// A program of ours that runs beside us and speaks in lines: we write lines to its standard input
// and read lines from its standard output. It is ended when this object goes. A Ctrl-C at the
// terminal does not reach it.
class ChildProcess {
public:
    // Throws PlatformException "ProcessStartFailed".
    ChildProcess(const std::string& program, const std::vector<std::string>& arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Never waits. False when the other side is gone, or has not read for so long that no more fits
    // in between; nothing that is written then arrives whole.
    bool writeLine(const QByteArray& line);

    // Readable (or at its end) when a call of readAvailable() would not wait; for poll().
    int readDescriptor() const { return iFromChild; }

    // Reads what has arrived, waiting for something if need be. False at the end of the stream, and
    // for a line of more bytes than that, which no sane program says.
    bool readAvailable(qsizetype maxLine);

    // The next complete line that has been read, without its line end.
    std::optional<QByteArray> takeLine();

    // After the end of the stream: whether the system could not run the program properly, so that
    // its end says nothing about its work.
    bool couldNotRun();

    // After the end of the stream: whether somebody killed the process (SIGKILL), as the system
    // does when it is short of memory.
    bool wasKilled();

    // Ends the process at once, without waiting for the system to clear it away; the destructor
    // waits.
    void kill();

private:
    bool endsSoon();
    void waitForEnd();

    pid_t iProcess = -1;
    bool iHasEnded = false; // and was cleared away
    int iStatus = 0;        // once it has
    int iToChild = -1;
    int iFromChild = -1;
    QByteArray iBuffer;
    qsizetype iSearched = 0; // bytes of it that hold no line end
};
