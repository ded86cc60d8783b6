#include "Fuzz.h"
#include "drawing/PageFileCheck.h"
#include "picture/Deflater.h"

// Vectors before they are packed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray packed = Deflater(1).zlib({reinterpret_cast<const char*>(data), size});
    if (PageFileCheck::areHarmless(packed))
        Fuzz::isDrawing(packed);
    return 0;
}
