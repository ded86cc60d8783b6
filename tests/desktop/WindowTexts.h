#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

// The texts of a window and of all that is in it, whether it can be seen or not.
namespace WindowTexts {

// The window and its widgets, without what comes and goes.
QList<const QWidget*> widgetsOf(const QWidget& window);
// A label or a button.
bool isCaption(const QWidget& widget);
// What is particular to a kind of widget. What a field holds is the user's own.
QStringList contentOf(const QWidget& widget);
// All texts of the window's widgets, menus and lists, in an order that does not depend on the
// language.
QStringList all(const QWidget& window);

} // namespace WindowTexts
