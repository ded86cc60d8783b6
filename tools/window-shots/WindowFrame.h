#pragma once

#include <QImage>
#include <QString>

// Screenshots are taken without a desktop, so there are no window frames. This draws plain ones, as
// on common desktops.
namespace WindowFrame {

// The content, which is to have its device pixel ratio set, in a frame with that title, and room
// for the shadow around it.
QImage framed(const QImage& content, const QString& title, bool isDark);

// A framed sheet in the middle of a window's content.
QImage withSheet(const QImage& content, const QImage& framedSheet);

} // namespace WindowFrame
