#pragma once

#include <QByteArray>
#include <QSize>

// A page of print as a scanner sees it: gray, slightly askew, with uneven light and grain.
namespace ScannedPage {

// A4 at 150 dots an inch.
inline constexpr QSize kSize(1240, 1754);

// Rows of gray without padding; each number gives another page.
QByteArray pixels(unsigned number);

} // namespace ScannedPage
