#include "app/desktop/WindowShortcut.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

WindowShortcut::WindowShortcut(const QAction& action, QWidget& window)
    : QObject(&window), iAction(action), iWindow(window) {
    QCoreApplication::instance()->installEventFilter(this);
}

// A widget claims a key by accepting this event, which it does not get.
bool WindowShortcut::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto* widget = qobject_cast<const QWidget*>(watched);
    const QKeySequence pressed(static_cast<QKeyEvent*>(event)->keyCombination());
    if (!widget || widget->window() != &iWindow || pressed != iAction.shortcut())
        return false;
    event->ignore();
    return true;
}
