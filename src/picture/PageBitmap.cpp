#include "picture/PageBitmap.h"

bool PageBitmap::hasColour() const {
    const unsigned char* pixel = data();
    for (int y = 0; y < iHeight; ++y) {
        unsigned difference = 0;
        for (int x = 0; x < iWidth; ++x, pixel += 3)
            difference |= unsigned(pixel[0] ^ pixel[1]) | unsigned(pixel[1] ^ pixel[2]);
        if (difference > 1)
            return true;
    }
    return false;
}

void PageBitmap::dropColourOfGray() {
    if (iComponents == 1 || hasColour())
        return;
    const std::size_t count = std::size_t(iWidth) * std::size_t(iHeight);
    for (std::size_t i = 0; i < count; ++i)
        iData[i] = iData[3 * i];
    iComponents = 1;
}
