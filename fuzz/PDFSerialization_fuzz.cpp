#include "Fuzz.h"
#include "pdf/PDFSerialization.h"

namespace {

using namespace PDFSerialization;

// What was unpacked is packed and unpacked once more.
template <class Value>
void check(const QByteArray& bytes) {
    QByteArray packed;
    try {
        packed = pack(unpack<Value>(bytes));
    } catch (const PlatformException& failure) {
        Fuzz::require(failure.kind() == malformedAnswer().kind(), "a failure says so");
        return;
    }
    Fuzz::require(packed.size() <= bytes.size(), "nothing is added");
    Fuzz::require(pack(unpack<Value>(packed)) == packed, "what was packed comes back");
}

constexpr void (*checks[])(const QByteArray&) = {check<int>,
                                                 check<QString>,
                                                 check<PDFPage>,
                                                 check<std::vector<PDFAnnotation>>,
                                                 check<std::vector<PDFOutlineNode>>,
                                                 check<std::vector<QString>>,
                                                 check<PDFPageContent>,
                                                 check<PDFViewing>,
                                                 check<std::vector<QSizeF>>};

} // namespace

// One byte for what the process that reads a document was asked, then its answer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Input input(data, size);
    const unsigned question = input.byte() % std::size(checks);
    checks[question](input.rest());
    return 0;
}
