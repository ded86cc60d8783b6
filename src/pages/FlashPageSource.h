#pragma once

#include "base/Message.h"
#include "drawing/WebPageFiles.h"
#include "pages/FlashPage.h"

#include <QString>
#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

// The ordered list of page files of a book. It is filled once, by generatePages() and then
// generateNormalPages(), and read by publishers any number of times.
class FlashPageSource {
public:
    using Pages = std::vector<std::shared_ptr<FlashPage>>;

    FlashPageSource() = default;
    virtual ~FlashPageSource() = default;
    FlashPageSource(const FlashPageSource&) = delete;
    FlashPageSource& operator=(const FlashPageSource&) = delete;

    const Pages& pages() const { return iPages; }
    void setPages(const Pages& pages) { iPages = pages; }
    const Pages& normalPages() const { return iNormalPages; }
    void setNormalPages(const Pages& pages) { iNormalPages = pages; }
    const Pages& zoomedPages() const { return iZoomedPages; }
    void setZoomedPages(const Pages& pages) { iZoomedPages = pages; }
    const Pages& thumbPages() const { return iThumbPages; }
    void setThumbPages(const Pages& pages) { iThumbPages = pages; }

    // The file or folder that the pages come from; empty until set.
    const QString& sourceFile() const { return iSourceFile; }
    void setSourceFile(const QString& path) { iSourceFile = path; }

    // Asks a running generation to stop early. Thread-safe; never reset here.
    bool stop() const { return iStoped; }
    void setStop(bool stop) { iStoped = stop; }

    void clearPages();

    virtual void generatePages() {}
    virtual void generateNormalPages() {}

    // Zero-based index into pages(); null beyond the end.
    virtual std::shared_ptr<FlashPage> getPageAtIndex(int index) const;
    // The normal page with that one-based page number, or null.
    virtual std::shared_ptr<FlashPage> getNormalPageAtIndex(int pageIndex) const;
    // No source has these; the publisher derives them from the normal pages.
    virtual std::shared_ptr<FlashPage> getZoomedPageAtIndex(int pageIndex) const;
    virtual std::shared_ptr<FlashPage> getThumbPageAtIndex(int pageIndex) const;

    // Whether the file of that page was made. One that can't be found any more was lost with its
    // disk, or removed.
    virtual bool wasMade(int /*page*/) const { return false; }

    // True when the page files are our own working files, which are never modified once written, so
    // that a publisher may hard-link them instead of copying.
    virtual bool ownsPageFiles() const { return false; }

    // Where the files are that a web book has beside a page file, by the page's one-based number;
    // none when the source makes no such files.
    virtual std::optional<WebPageFiles> webFilesOf(int /*page*/) const { return {}; }
    // Pages whose files could not all be made, by their numbers, and why.
    virtual std::map<int, Message> degradedPages() const { return {}; }
    // The numbers of the pages whose files for a kind of book have not been made yet, ascending.
    virtual std::vector<int> pagesWithout(PageFiles /*kind*/) const { return {}; }
    // Makes the files of these pages. Returns early when stop is set. progress gets the number of
    // pages done. Throws PlatformException when the work folder can't be written.
    virtual void makeFiles(PageFiles /*kind*/, const std::vector<int>& /*pages*/,
                           const std::atomic<bool>& /*stop*/,
                           const std::function<void(int done)>& /*progress*/) {}

    // The one-based page numbers that a text such as "3,1-2" names, sorted and without duplicates;
    // 1 to atTotalPage for "ALL". Numbers beyond the document are kept. Throws PlatformException
    // when the text names more than a million pages.
    static std::vector<int> parsePageRange(const QString& expression, int atTotalPage);

protected:
    const std::atomic<bool>& stopFlag() const { return iStoped; }

    Pages iPages;
    Pages iNormalPages;
    Pages iZoomedPages;
    Pages iThumbPages;

private:
    QString iSourceFile = QStringLiteral("");
    std::atomic<bool> iStoped{false};
};
