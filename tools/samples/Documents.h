#pragma once

#include <QByteArray>

// Typical documents; each function makes one.
QByteArray makeNovel();       // 300 pages of text
QByteArray makePictureBook(); // 24 square pages, pictures to the edge
QByteArray makeSlides();      // 14 wide pages
