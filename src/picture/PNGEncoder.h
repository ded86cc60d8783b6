#pragma once

#include "picture/Deflater.h"
#include "picture/FastDeflater.h"
#include "picture/PaletteBitmap.h"

#include <QByteArray>

// Encodes pictures of few colours as PNG files. Reuse one object: it keeps its tables.
class PNGEncoder {
public:
    // Throws std::bad_alloc.
    QByteArray encode(const PaletteBitmap& bitmap);

private:
    // Higher levels take up to twice the time for a fiftieth of the bytes.
    Deflater iDeflater{1};
    // A picture with a byte a pixel has several times the bytes, and less to gain.
    FastDeflater iFastDeflater;
};
