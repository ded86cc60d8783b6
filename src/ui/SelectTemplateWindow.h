#pragma once

#include "ui/Sheet.h"

class QLabel;
class QListView;

// The template chooser's controls. What they do is its delegate's business.
class SelectTemplateWindow : public Sheet {
    Q_OBJECT

public:
    explicit SelectTemplateWindow(QWidget* parent = nullptr);

    QListView* iTableViewTmpls;
    QListView* iImgBrowserView;
    // In place of the templates or styles when there are none.
    QLabel* lblNoTmpls;
    QLabel* lblNoStyles;
    QPushButton* btnRefresh;
    QPushButton* btnOK;

    // Gives the styles all the width that there is; to be called when their number has changed.
    void fitGrid();
    // Says which templates can't be used and why; hidden when there is nothing to say.
    void showNotice(const QString& notice);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeTmplList();
    void makeStyleBrowser();
    QWidget* noticeRow();
    QSize firstSize() const;

    QWidget* iNotice;
    QLabel* lblNotice;
    QLabel* iNoticeIcon;
};
