#include "fuzz/Fuzz.h"
#include "platform/PDFSerialization.h"

namespace {

// What was taken apart is put together and taken apart once more.
template <class Value>
void check(const QByteArray& bytes, Value (*unpack)(const QByteArray&)) {
    Value value;
    try {
        value = unpack(bytes);
    } catch (const PlatformException& failure) {
        Fuzz::require(failure.name() == PDFSerialization::malformedAnswer().name(),
                      "a failure says so");
        return;
    }
    const QByteArray packed = PDFSerialization::pack(value);
    Fuzz::require(packed.size() <= bytes.size(), "nothing is added");
    Fuzz::require(PDFSerialization::pack(unpack(packed)) == packed, "what was packed comes back");
}

} // namespace

// One byte for what the process that reads a document was asked, then its answer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Input input(data, size);
    switch (input.byte() % 7) {
    case 0:
        check(input.rest(), PDFSerialization::unpackNumber);
        break;
    case 1:
        check(input.rest(), PDFSerialization::unpackText);
        break;
    case 2:
        check(input.rest(), PDFSerialization::unpackBoxes);
        break;
    case 3:
        check(input.rest(), PDFSerialization::unpackAnnotations);
        break;
    case 4:
        check(input.rest(), PDFSerialization::unpackOutline);
        break;
    case 5:
        check(input.rest(), PDFSerialization::unpackTexts);
        break;
    default:
        check(input.rest(), PDFSerialization::unpackTextLines);
        break;
    }
    return 0;
}
