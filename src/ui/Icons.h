#pragma once

#include <QColor>
#include <QIcon>

// The program's own line icons, drawn in one colour to fit a light or a dark window.
namespace Icons {

// The icon of that name, sharp at every size and pixel ratio; a null icon when it does not exist.
// Parts with a colour of their own keep it.
QIcon icon(const QString& name, const QColor& ink);

} // namespace Icons
