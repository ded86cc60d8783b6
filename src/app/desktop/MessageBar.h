#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

// A line across the window that says what went wrong, until the user closes it or it no longer
// holds.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent = nullptr);

    // The first text says what did not work, the second why.
    void showError(const QString& what, const QString& cause);
    QString message() const;

private:
    void changeEvent(QEvent* event) override;
    void updateColors();

    QLabel* iText;
    QLabel* iIcon;
    QToolButton* iClose;
};
