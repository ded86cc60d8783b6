#pragma once

#include "ui/Sheet.h"

class QLabel;
class QListView;

// The controls of the template chooser; its delegate implements them.
class SelectTemplateWindow : public Sheet {
    Q_OBJECT

public:
    explicit SelectTemplateWindow(QWidget* parent = nullptr);

    QListView* iTableViewTmpls;
    QListView* iImgBrowserView;
    // Shown when there are no templates or styles.
    QLabel* lblNoTmpls;
    QLabel* lblNoStyles;
    QPushButton* btnRefresh;
    // For styles of the user's own.
    QPushButton* btnRename;
    QPushButton* btnDelete;
    QPushButton* btnOK;

    // Adjusts the grid of styles to the available width; call when their number has changed.
    void fitGrid();
    // Shows which templates can't be used and why; hidden when empty.
    void showNotice(const QString& notice);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeTmplList();
    void makeStyleBrowser();
    void makeStyleButtons();
    QWidget* noticeRow();
    QSize firstSize() const;

    QWidget* iNotice;
    QLabel* lblNotice;
    QLabel* iNoticeIcon;
};
