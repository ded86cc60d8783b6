#pragma once

#include "picture/PageBitmap.h"

#include <QByteArray>
#include <QByteArrayView>
#include <span>

// A page's thumbnail says whether the page is a photograph to its edges. It is seen where the page
// is drawn, and read without decoding a picture that a page worker wrote. It stays with the page
// when a later edition of the book takes it over.
namespace PhotographMark {

// How much of a file has to be read for the mark.
constexpr qsizetype headSize = 64;

// Whether less than a fifth of a page is as white as paper, which may be a scan's. The player
// looks at the picture itself where browsers let it, by the same measure.
bool isPhotograph(const PageBitmap& page);

// A JPEG file as JPEGEncoder writes it, with the mark.
QByteArray marked(std::span<const unsigned char> jpeg);
bool isMarked(QByteArrayView head);

} // namespace PhotographMark
