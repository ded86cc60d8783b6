#pragma once

#include <unistd.h>
#include <utility>

// An open file or folder, closed when this goes.
class Descriptor {
public:
    explicit Descriptor(int number) : iNumber(number) {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept : iNumber(std::exchange(other.iNumber, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    int number() const { return iNumber; }
    bool isOpen() const { return iNumber >= 0; }
    // False when it was not open or when closing failed: network file systems tell only then that
    // the disk is full.
    bool close() { return isOpen() && ::close(std::exchange(iNumber, -1)) == 0; }

private:
    int iNumber;
};
