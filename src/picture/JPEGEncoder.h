#pragma once

#include "picture/PageBitmap.h"

#include <memory>
#include <span>

// Encodes page bitmaps as JPEG. Reuses its output buffer from call to call.
class JPEGEncoder {
public:
    JPEGEncoder();
    ~JPEGEncoder();
    JPEGEncoder(const JPEGEncoder&) = delete;
    JPEGEncoder& operator=(const JPEGEncoder&) = delete;

    // factor is 0 (strongest compression) to 1 (best). The result is valid until the next call.
    // Throws PlatformException.
    std::span<const unsigned char> encode(const PageBitmap& bitmap, double factor);

private:
    struct State;
    std::unique_ptr<State> iState;
};
