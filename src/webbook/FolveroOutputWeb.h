#pragma once

#include "output/FolveroOutput.h"
#include "util/PageRange.h"
#include "webbook/BookAddress.h"
#include "webbook/WebBookMetadata.h"
#include "webbook/WebBookSteps.h"

#include <memory>
#include <optional>

class SharedPlayer;
struct WebBook;

// Writes a web book: a book folder whose pages take fewer bytes, with clickable links, contents,
// search, selectable text, a larger picture of each page, thumbnails, and the whole text as a
// separate page.
class FolveroOutputWeb : public FolveroOutput {
public:
    using FolveroOutput::FolveroOutput;

    // Plain text, shown wherever the book is named; by default the document's title.
    void setTitle(const QString& title) { iFacts.title = title; }
    QString title() const { return iFacts.title; }

    // What is known of the book, the title included; the rest is the document's.
    void setFacts(const BookFacts& facts) { iFacts = facts; }

    // Where the book will be, for search engines and links to it; none for unknown.
    void setAddress(const std::optional<BookAddress>& address) { iAddress = address; }

    // Describes the book for other viewers, in manifest.json. Only with an address, and not for a
    // single file.
    void setWritesIIIF(bool writes) { iWritesIIIF = writes; }

    // Puts everything into the HTML page, to be sent by mail or opened from disk. There is no page
    // of plain text then.
    void setSingleFile(bool isSingleFile) { iIsSingleFile = isSingleFile; }
    // The maximum size of a single-file book in bytes; mail and browsers do not accept more.
    void setSingleFileLimit(qint64 bytes) { iSingleFileLimit = bytes; }

    // Shares the player with other books; null for a book with its own. Not for a single file.
    void setSharedPlayer(std::shared_ptr<const SharedPlayer> player) {
        iSharedPlayer = std::move(player);
    }
    const SharedPlayer* sharedPlayer() const { return iSharedPlayer.get(); }

    // Includes only these pages, by their numbers in the PDF; of the others the book contains
    // neither pictures nor text. None includes all.
    void setOpenPages(std::optional<std::vector<PageRun>> pages) { iOpenPages = std::move(pages); }

    // Includes text also if the document's permissions forbid to take it out; not by default.
    void setIncludesForbiddenText(bool includes) { iIncludesForbiddenText = includes; }

    // Does nothing without pages.
    void ouputTheBook() override;
    QStringList foreignFiles() const override;
    Message documentLeftOut() const override;

    // Pages of the last run that lack some of their files, and why.
    const std::vector<std::pair<int, Message>>& degradedPages() const {
        return iReport.degradedPages;
    }
    // False when the folder contains another site's service worker or manifest, which is kept:
    // readers can't save the book for offline use then, nor can they with a single-file book.
    bool worksOffline() const { return iWorksOffline; }
    // Whether the last run left out the text, which the document forbids to take out of it.
    bool lacksText() const { return iLacksText; }
    // That of the last run.
    const WebBookMetadata& metadata() const { return iMetadata; }
    // Bytes that the last run wrote for pages: pictures, larger ones, thumbnails, text.
    qint64 pageBytes() const { return iReport.pageBytes; }

protected:
    virtual WebBook webBook() const;
    // Make the book. The book must live as long as the steps.
    virtual PublishSteps stepsFor(const WebBook& book);

private:
    void addAddress(WebBook& book) const;
    // The steps of a web book, and of one in a single file; what both contain. The book must live
    // as long as the steps.
    PublishSteps folderSteps(const WebBook& book);
    PublishSteps singleFileSteps(const WebBook& book);
    PublishSteps contents(const WebBook& book);
    PublishSteps configuration(const WebBook& book) const;

    BookFacts iFacts;
    std::optional<BookAddress> iAddress;
    std::shared_ptr<const SharedPlayer> iSharedPlayer;
    bool iWritesIIIF = false;
    bool iIsSingleFile = false;
    qint64 iSingleFileLimit = 100'000'000;
    std::optional<std::vector<PageRun>> iOpenPages;
    WebBookReport iReport;
    WebBookMetadata iMetadata;
    bool iWorksOffline = false;
    bool iIncludesForbiddenText = false;
    bool iLacksText = false;
};
