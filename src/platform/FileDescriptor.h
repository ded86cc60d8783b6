#pragma once

#include <unistd.h>
#include <utility>

// An open file or folder, closed when this goes.
class FileDescriptor {
public:
    explicit FileDescriptor(int number) : iNumber(number) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept : iNumber(std::exchange(other.iNumber, -1)) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&&) = delete;

    int number() const { return iNumber; }
    bool isOpen() const { return iNumber >= 0; }
    // False when it was not open or when closing failed: network file systems tell only then that
    // the disk is full.
    bool close() { return isOpen() && ::close(std::exchange(iNumber, -1)) == 0; }

private:
    int iNumber;
};
