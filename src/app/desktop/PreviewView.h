#pragma once

#include <QString>
#include <QWebEngineView>
#include <functional>

class QWebEngineProfile;

// Shows the book in the preview folder. The page may read the files of its folder and nothing else;
// links to the web open in the user's browser.
class PreviewView : public QWebEngineView {
    Q_OBJECT

public:
    explicit PreviewView(QWidget* parent = nullptr);
    ~PreviewView() override;

    // Loads a page from disk, the same one anew as well: then the book stays open where it was,
    // unless it is another book.
    void showFile(const QString& path, bool isOtherBook);
    void reloadBook();

    // How a web address is opened.
    void setOpener(std::function<void(const QUrl&)> opener);

Q_SIGNALS:
    // The engine behind the page has died; the page is loaded again unless that keeps happening.
    void rendererCrashed(bool reloads);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    // Files that are dropped are for the window.
    void dragEnterEvent(QDragEnterEvent* event) override;

private:
    void recover();

    QWebEngineProfile* iProfile;
    int iCrashes = 0;
    qint64 iLastCrash = 0;
};
