#pragma once

#include "ui/Sheet.h"

#include <utility>
#include <vector>

class QAction;
class QLabel;
class QListView;
class QToolBar;

// The sheet in which the pages of a book are arranged.
class PagesWindow : public Sheet {
    Q_OBJECT

public:
    explicit PagesWindow(QWidget* parent = nullptr);

    QListView* pages;
    QAction* undo;
    QAction* redo;
    QAction* turnLeft;
    QAction* turnRight;
    QAction* earlier;
    QAction* later;
    QAction* makeFirst;
    QAction* insertBlankPage;
    QAction* insertFiles;
    QAction* removePages;
    QLabel* lblCount;
    QLabel* lblFailure;
    QPushButton* btnOK;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QAction* add(const QString& icon, const QString& text, const QString& toolTip,
                 const QKeySequence& shortcut);
    void makeList();
    void makeActions();
    void fillToolBar();
    void updateColors();

    QToolBar* iTools;
    std::vector<std::pair<QAction*, QString>> iIcons;
};
