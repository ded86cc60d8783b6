#pragma once

#include <QDialog>
#include <QMargins>

class QLineEdit;
class QPushButton;

// A window that hangs on the main window until it ends with a return code. What its controls do is
// its delegate's business, closing included.
class Sheet : public QDialog {
    Q_OBJECT

public:
    explicit Sheet(const QString& title, QWidget* parent = nullptr);

    QPushButton* btnCancel;

    // Makes room for what has been shown or has become longer; a text that wraps would otherwise
    // take its room from the other controls.
    void growToContent();

    void reject() override { Q_EMIT closeRequested(); }

Q_SIGNALS:
    // Escape, or the window's own close button.
    void closeRequested();

protected:
    // Around all that a sheet holds.
    static constexpr QMargins margins{16, 14, 16, 14};
    // Of a sheet whose texts do not ask for more.
    static constexpr int usualWidth = 560;
    // Widgets side by side; the first takes the room that is left.
    static QWidget* row(const QList<QWidget*>& widgets);
    // The button to cancel with, and the one that Return presses.
    QWidget* buttonRow(QPushButton* main);
};
