#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

// A bar across the window with an error message, shown until the user closes it or it no longer
// applies.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent = nullptr);

    // what describes the failure, cause the reason.
    void showError(const QString& what, const QString& cause);
    QString message() const;

private:
    void changeEvent(QEvent* event) override;
    void updateColors();

    QLabel* iText;
    QLabel* iIcon;
    QToolButton* iClose;
};
