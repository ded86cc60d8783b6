#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>

// What the harnesses share. A harness is one program: libFuzzer calls its LLVMFuzzerTestOneInput
// with ever new bytes, and it ends by abort() when a property does not hold.
namespace Fuzz {

// Ends the program, which counts as a finding, unless the property holds.
void require(bool holds, const char* property);

// Takes choices off the front of the fuzzer's bytes; what is left is the data. At the end of the
// bytes every choice is 0.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size)
        : iLeft(reinterpret_cast<const char*>(data), qsizetype(size)) {}

    unsigned byte();
    QByteArray bytes(qsizetype atMost);
    QByteArray rest() const { return iLeft; }

private:
    QByteArray iLeft;
};

// Writes the fuzzer's bytes into the one file that code under test reads from a path; returns it.
QString fileWith(const std::uint8_t* data, std::size_t size);

} // namespace Fuzz
