#pragma once

#include <QObject>

class QAction;
class QWidget;

// Lets the shortcut of a command work wherever the keyboard is in the window: a text field would
// take some of them for itself, such as Ctrl+E, which goes to the end of its line.
class WindowShortcut : public QObject {
    Q_OBJECT

public:
    // Of an action of the window, which owns this.
    WindowShortcut(const QAction& action, QWidget& window);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    const QAction& iAction;
    const QWidget& iWindow;
};
