#include "Fuzz.h"
#include "pdf/PDFSerialization.h"

namespace {

// What was unpacked is packed and unpacked once more.
template <auto unpack>
void check(const QByteArray& bytes) {
    QByteArray packed;
    try {
        packed = PDFSerialization::pack(unpack(bytes));
    } catch (const PlatformException& failure) {
        Fuzz::require(failure.kind() == PDFSerialization::malformedAnswer().kind(),
                      "a failure says so");
        return;
    }
    Fuzz::require(packed.size() <= bytes.size(), "nothing is added");
    Fuzz::require(PDFSerialization::pack(unpack(packed)) == packed, "what was packed comes back");
}

constexpr void (*checks[])(const QByteArray&) = {
    check<PDFSerialization::unpackNumber>,   check<PDFSerialization::unpackText>,
    check<PDFSerialization::unpackPage>,     check<PDFSerialization::unpackAnnotations>,
    check<PDFSerialization::unpackOutline>,  check<PDFSerialization::unpackTexts>,
    check<PDFSerialization::unpackTextLines>};

} // namespace

// One byte for what the process that reads a document was asked, then its answer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Input input(data, size);
    const unsigned question = input.byte() % std::size(checks);
    checks[question](input.rest());
    return 0;
}
