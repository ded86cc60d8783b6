#pragma once

#include <QStringList>

class QWidget;

// What users read or have read to them in a window and the sheets that hang on it.
namespace WindowTexts {

// All texts of the window's widgets, menus and lists, in an order that does not depend on the
// language.
QStringList all(const QWidget& window);

// Labels, buttons and titles of a visible window that have less room than they ask for.
QStringList cutOff(const QWidget& window);

// Letters that stand for more than one thing in a menu of the window, or in the window itself.
QStringList clashingMnemonics(const QWidget& window);

} // namespace WindowTexts
