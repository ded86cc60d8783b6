#pragma once

#include "ui/PublishResult.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;

// A bar across the window after a publish: which book it was, and what one may want of it next.
// Hidden until then.
class ResultBar : public QFrame {
    Q_OBJECT

public:
    explicit ResultBar(QWidget* parent = nullptr);

    QPushButton* btnOpen;
    QPushButton* btnShowFolder;
    QPushButton* btnCopyLink;
    QPushButton* btnCopyEmbed;
    QPushButton* btnAgain;

    void showResult(const PublishResult& result);

Q_SIGNALS:
    // A book, or the folder that it is in.
    void openRequested(const QString& path);
    void publishRequested();

private:
    void connectButtons();
    void copy(const QString& text, const QString& done);
    void showDetail(const QString& text);
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateColors();
    void elideTexts();

    PublishResult iResult;
    QString iDetail;
    QLabel* iIcon;
    QLabel* iTitleLabel;
    QLabel* iDetailLabel;
    QToolButton* iClose;
};
