#pragma once

#include <fcntl.h>
#include <unistd.h>
#include <utility>

// Flags to open a folder and not what a link of that name leads to.
inline constexpr int openFolderItself = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

// Owns the descriptor of an open file or folder and closes it on destruction.
class FileDescriptor {
public:
    explicit FileDescriptor(int number = -1) : iNumber(number) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept : iNumber(std::exchange(other.iNumber, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        close();
        iNumber = std::exchange(other.iNumber, -1);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int number() const { return iNumber; }
    bool isOpen() const { return iNumber >= 0; }
    // False when it was not open or closing failed: network file systems may report a full disk
    // only then.
    bool close() { return isOpen() && ::close(std::exchange(iNumber, -1)) == 0; }

private:
    int iNumber;
};
