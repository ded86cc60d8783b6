#pragma once

#include "pages/FlashPageSource.h"
#include "platform/Message.h"

#include <functional>
#include <memory>
#include <vector>

class PDFDocument;

// What a web book shows of one page, as files in a work folder; null for what there is none of.
struct WebPage {
    QString pageFile;  // the page file of a classic book
    int number = 0;    // the page's one-based number in the PDF, which names its files
    QString picture;   // the page file, or one that takes fewer bytes
    QString thumbnail; // WebP
    QString large;     // SVG or WebP
    QString text;      // as PDFSerialization packs it
    Message failure;   // why the page has less than it could have
};

// The pages of a source as a web book shows them. Pages of a PDF are drawn once more, by page
// workers; for others there is no more than the page files.
class WebPages {
public:
    // The source must outlive this object.
    explicit WebPages(const FlashPageSource& source);

    // Asked while pages are made; true ends that.
    void setCancelled(std::function<bool()> isCancelled) { iIsCancelled = std::move(isCancelled); }
    // Called after each page with the number of pages done and that of all.
    void setProgress(std::function<void(int done, int total)> progress) {
        iProgress = std::move(progress);
    }

    // Pages that are not wanted are not drawn again.
    void setWanted(std::function<bool(int number)> isWanted) { iIsWanted = std::move(isWanted); }

    // Makes what is not there yet. False when it was cancelled. Throws PlatformException when the
    // work folder can't take it.
    bool make();

    // In the order of the book.
    const std::vector<WebPage>& pages() const { return iPages; }

    // The document that the pages come from, or none.
    std::shared_ptr<PDFDocument> document() const;

private:
    bool drawMissing();
    WebPage pageFrom(int number, const QString& pageFile) const;

    const FlashPageSource& iSource;
    std::function<bool()> iIsCancelled = [] { return false; };
    std::function<bool(int)> iIsWanted = [](int) { return true; };
    std::function<void(int, int)> iProgress = [](int, int) {};
    std::vector<WebPage> iPages;
};
