#pragma once

#include <span>

// Tells whether decoders invent a part of a JPEG picture: its data end early, or don't make sense.
// They only warn of that, and MuPDF drops the warnings.
namespace JPEGDamage {

// False also for a file that can't be decoded at all, and a progressive one of more than 100
// million pixels, which takes too much memory. Decodes the file, in a part of the usual time.
bool isIn(std::span<const unsigned char> file);

} // namespace JPEGDamage
