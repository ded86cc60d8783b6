#pragma once

#include <cstddef>
#include <memory>

// An uncompressed page picture, rows top-down without padding. Reuse one object for many pages: it
// keeps its buffer, and allocating anew for every page costs as much as clearing it.
class PageBitmap {
public:
    // Allocates room for a picture; pixels are left uninitialised. components is 1 (gray) or 3
    // (RGB).
    void resize(int width, int height, int components) {
        const std::size_t size = std::size_t(width) * std::size_t(height) * std::size_t(components);
        if (size > iCapacity) {
            iData.reset();
            iData.reset(new unsigned char[size]);
            iCapacity = size;
        }
        iWidth = width;
        iHeight = height;
        iComponents = components;
    }

    int width() const { return iWidth; }
    int height() const { return iHeight; }
    int components() const { return iComponents; }
    int stride() const { return iWidth * iComponents; }
    unsigned char* data() { return iData.get(); }
    const unsigned char* data() const { return iData.get(); }

    // Makes a colour picture in which every pixel is gray one of a single component.
    void dropColourOfGray();

private:
    bool hasColour() const;

    std::unique_ptr<unsigned char[]> iData;
    std::size_t iCapacity = 0;
    int iWidth = 0;
    int iHeight = 0;
    int iComponents = 0;
};
