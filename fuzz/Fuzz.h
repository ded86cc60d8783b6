#pragma once

#include "pdf/PDFSerialization.h"

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <memory>

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

// Writes the one file that code under test reads from a path; returns it.
QString fileWith(const QByteArray& content);

// A PDF of three pages. The first one has that content, for which there are fonts, images, a form
// that blends and a gradient.
QByteArray documentWith(const QByteArray& content, const QByteArray& catalogEntries = {});

// MuPDF is built without the instruments that tell the fuzzer which code an input reached. What it
// complains about tells something of that, so each kind of complaint counts as a place.
void countComplaints();

// Imports outline and links of the first pages, as the program does, and checks where they lie.
void importLinks(const std::shared_ptr<PDFDocument>& document, int pages);

// Requires of what was read of a document that another process can be told of it.
template <class Value>
void requireSound(const Value& value) {
    try {
        const QByteArray packed = PDFSerialization::pack(value);
        require(PDFSerialization::pack(PDFSerialization::unpack<Value>(packed)) == packed,
                "what was packed comes back");
    } catch (const PlatformException&) {
        require(false, "what is read of a document makes sense");
    }
}

// Requires that packed vectors have only drawings in them, as an XML reader finds them; returns
// whether that read all of them.
bool isDrawing(const QByteArray& vectors);

} // namespace Fuzz
