#pragma once

#include "base/Message.h"
#include "pages/Book.h"

#include <functional>
#include <memory>
#include <vector>

// The files of one page of a web book, in a work folder; null for those that don't exist.
struct WebPage {
    QString pageFile;  // the page file of a classic book
    int number = 0;    // the page's one-based number in the PDF, used in file names
    QString picture;   // the page file, or a smaller equivalent
    QString thumbnail; // WebP
    QString large;     // SVG or WebP
    QString text;      // as packed by PDFSerialization
    Message failure;   // why the page lacks some of these
};

// The pages of a book for a web book. Pages of a PDF are drawn once more by page workers; others
// have their page files only.
class WebPages {
public:
    // The book needs a page source.
    explicit WebPages(Book book);

    // Polled while pages are made; true cancels.
    void setCancelled(std::function<bool()> isCancelled) { iIsCancelled = std::move(isCancelled); }
    // Called after each page with the number of pages done and the total.
    void setProgress(std::function<void(int done, int total)> progress) {
        iProgress = std::move(progress);
    }

    // Pages for which this is false are not drawn again.
    void setWanted(std::function<bool(int number)> isWanted) { iIsWanted = std::move(isWanted); }

    // Makes the missing files. False when cancelled. Throws PlatformException when the work folder
    // can't be written.
    bool make();

    // In book order.
    const std::vector<WebPage>& pages() const { return iPages; }

private:
    bool drawMissing();
    WebPage pageFrom(int number, const QString& pageFile) const;

    Book iBook;
    std::function<bool()> iIsCancelled = [] { return false; };
    std::function<bool(int)> iIsWanted = [](int) { return true; };
    std::function<void(int, int)> iProgress = [](int, int) {};
    std::vector<WebPage> iPages;
};
