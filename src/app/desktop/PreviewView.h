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
    // Shows changed settings in the open book, as far as the player can without loading it again,
    // until the next showFile(). configuration: the book's, not enciphered and without pages.
    void applySettings(const QByteArray& configuration);

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
    void sendSettings();

    QWebEngineProfile* iProfile;
    QByteArray iChangedSettings; // empty when nothing has changed since the book was loaded
    int iCrashes = 0;
    qint64 iLastCrash = 0;
};
