#pragma once

#include <QDialog>
#include <QMargins>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

// A dialog attached to the main window that ends with a return code. Its delegate implements its
// controls, including closing.
class Sheet : public QDialog {
    Q_OBJECT

public:
    explicit Sheet(const QString& title, QWidget* parent = nullptr);

    QPushButton* btnCancel;

    // Grows to fit controls that were shown or have become longer; otherwise a wrapped text would
    // take space from the other controls.
    void growToContent();

    void reject() override { Q_EMIT closeRequested(); }
    // Gives the keyboard back to the main window, which not every window manager does.
    void done(int result) override;

Q_SIGNALS:
    // Escape, or the window's close button.
    void closeRequested();

protected:
    // Around the content of a sheet.
    static constexpr QMargins margins{16, 14, 16, 14};
    // Of a sheet whose texts need no more.
    static constexpr int usualWidth = 560;
    // Of a sheet with a single question.
    static constexpr int narrowWidth = 400;
    // Widgets side by side; the first one stretches.
    static QWidget* row(const QList<QWidget*>& widgets);
    // Makes the label of such a row that of its field: the label's key leads to it, and a screen
    // reader, which looks for labels only beside a field, says it.
    static void setFieldOfRow(const QFormLayout& form, QWidget* row, QLineEdit* field);
    // For a text that says what went wrong; hidden.
    static QLabel* failureLabel();
    // The cancel button, and the default button.
    QWidget* buttonRow(QPushButton* main);
};
