#pragma once

#include "picture/Deflater.h"

#include <QByteArray>
#include <memory>
#include <string_view>

// Packs files in the format of zlib, with igzip: five times as fast as Deflater, for a tenth more
// bytes. Reuse one object: it keeps its tables.
class FastDeflater {
public:
    FastDeflater();

    QByteArray zlib(std::string_view data);

private:
    std::unique_ptr<unsigned char[]> iTables;
    Deflater iOther{1}; // for data that igzip makes longer
};
