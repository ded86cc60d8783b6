#include "Fuzz.h"
#include "drawing/PageFileCheck.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "pdf/VectorEncoder.h"

#include <algorithm>

namespace {

void checkVectors(const DrawablePage& page) {
    VectorEncoder encoder;
    const QByteArray vectors = encoder.encode(page);
    Fuzz::require(encoder.encode(page) == vectors, "a page has the same vectors again");
    if (vectors.isEmpty())
        return;
    Fuzz::require(encoder.encode(page, vectors.size() - 1).isEmpty(), "a limit holds");
    Fuzz::require(PageFileCheck::areHarmless(vectors), "our vectors are let into books");
    Fuzz::require(Fuzz::isDrawing(vectors), "our vectors are well-formed");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    Fuzz::countComplaints();
    return 0;
}

// The tree of page labels, a zero byte, and the content of a page.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input = Fuzz::Input(data, size).rest();
    const qsizetype end = std::max<qsizetype>(0, input.indexOf('\0'));
    const QString file =
        Fuzz::fileWith(Fuzz::documentWith(input.mid(end), "/PageLabels " + input.left(end)));
    DrawControl control;
    control.timeLimit = std::chrono::milliseconds(500);
    try {
        const DrawablePDF document(file, DrawablePDF::Access::mapped);
        const auto labels = document.pageLabels();
        Fuzz::requireSound(labels);
        for (const QString& label : labels)
            Fuzz::require(label.size() < 100, "a label is short");
        const DrawablePage page(document, 0, control, DrawablePage::Content::picturesAndText);
        checkVectors(page);
        Fuzz::requireSound(PDFPageContent{page.text(), page.marks()});
    } catch (const PlatformException& failure) {
        Fuzz::require(!failure.reason().isEmpty(), "a failure has a reason");
    }
    return 0;
}
