#pragma once

#include <QImage>
#include <QString>

// The program's pictures are taken without a desktop around it, so nobody draws its windows'
// frames. These are plain ones, as common desktops have them.
namespace WindowFrame {

// The content, which is to have its device pixel ratio set, in a frame with that title, and room
// for the shadow around it.
QImage framed(const QImage& content, const QString& title, bool isDark);

// A framed sheet in the middle of a window's content.
QImage withSheet(const QImage& content, const QImage& framedSheet);

} // namespace WindowFrame
