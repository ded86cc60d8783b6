#pragma once

#include <QColor>
#include <QIcon>

// The program's own line icons. They are drawn in one colour, so that they fit a light and a dark
// window alike.
namespace Icons {

// The icon of that name, crisp at every size and pixel ratio; an empty one when there is none.
// Parts of it that carry a colour of their own keep it.
QIcon icon(const QString& name, const QColor& ink);

} // namespace Icons
