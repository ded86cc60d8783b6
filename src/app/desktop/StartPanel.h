#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;

// Lies above the preview of the demo book: says how to begin, and offers the files that were
// opened last.
class StartPanel : public QFrame {
    Q_OBJECT

public:
    explicit StartPanel(QWidget* parent = nullptr);

    QPushButton* btnChoose;

    // Whether the demo book is shown. Once the user has closed the panel it stays away.
    void setNeeded(bool isNeeded);
    // Shows those that there are now.
    void showRecentFiles();

Q_SIGNALS:
    void fileChosen(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolButton* recentButton(const QString& path);
    void updateColors();

    QWidget* iRecent;
    QHBoxLayout* iRecentRow;
    QToolButton* iClose;
    bool iIsClosed = false;
};
