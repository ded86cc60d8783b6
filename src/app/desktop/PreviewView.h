#pragma once

#include <QString>
#include <QWebEngineView>
#include <functional>

class QWebEngineProfile;

// Shows the book in the preview folder. The page can read the files of its folder only; web links
// open in the user's browser.
class PreviewView : public QWebEngineView {
    Q_OBJECT

public:
    explicit PreviewView(QWidget* parent = nullptr);
    ~PreviewView() override;

    // Loads or reloads a page from disk. On a reload the book stays at the same place, unless it is
    // another book.
    void showFile(const QString& path, bool isOtherBook);
    void reloadBook();

    // Sets how a web address is opened.
    void setOpener(std::function<void(const QUrl&)> opener);

Q_SIGNALS:
    // Chromium's render process has crashed; the page is reloaded unless that keeps happening.
    void rendererCrashed(bool reloads);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    // Dropped files are handled by the window.
    void dragEnterEvent(QDragEnterEvent* event) override;

private:
    void recover();

    QWebEngineProfile* iProfile;
    int iCrashes = 0;
    qint64 iLastCrash = 0;
};
