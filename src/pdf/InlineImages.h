#pragma once

#include <QByteArray>

// Images within the content of a page: "BI /W 10 /H 10 ... ID pixels EI".
namespace InlineImages {

// The content without those that have no width or no height, at which MuPDF gives up a page; null
// when there are none. Finds an image's end by its "EI", which no length tells.
QByteArray withoutEmpty(const QByteArray& content);

} // namespace InlineImages
