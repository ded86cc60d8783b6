#include "output/ImageSize.h"

#include "output/ImageResolution.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <cmath>

namespace {

int inPoints(int pixels, double dotsPerInch) {
    return static_cast<int>(pixels * 72.0 / dotsPerInch);
}

} // namespace

QSize ImageSize::inPoints(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {0, 0};
    const ImageResolution resolution = ImageResolution::ofFile(file);
    file.seek(0);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    QSize pixels = reader.size();
    // Some formats report their size only after decoding.
    if (!pixels.isValid())
        pixels = reader.read().size();
    if (pixels.isEmpty())
        return {0, 0};
    return {::inPoints(pixels.width(), resolution.dotsPerInchX),
            ::inPoints(pixels.height(), resolution.dotsPerInchY)};
}
