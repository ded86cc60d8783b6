#pragma once

#include "output/HTMLConfigInfo.h"
#include "output/PublishTransaction.h"
#include "pages/Book.h"
#include "pages/FlashPageSource.h"
#include "webbook/ShareImage.h"
#include "webbook/WebBookMetadata.h"
#include "webbook/WebPages.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <vector>

class FlashTemplate;
class SharedPlayer;

// What the steps that make a web book read.
struct WebBook {
    QString htmlFile;                             // full path of the HTML page
    std::shared_ptr<FlashTemplate> flashTemplate; // null for none
    HTMLConfigInfo texts;
    WebBookMetadata metadata;
    std::vector<WebPage> pages;                 // in book order
    Book content;                               // as imported
    ShareImage shareImage;                      // empty for none
    std::shared_ptr<const SharedPlayer> player; // null: the book has its own
    bool hasText = true;   // otherwise without words to select, search and the page of text
    QString download;      // path in the book of one that readers may download; empty for none
    bool isCourse = false; // it reports to a learning platform
    PublishTransaction::Copy kindOfCopy = PublishTransaction::Copy::independent;

    // Completes the metadata, whose facts go before those of the document, the outline, unless
    // there is one, and the texts for search engines. The pages included are those in these runs of
    // PDF page numbers; none includes all.
    void complete(const std::optional<std::vector<PageRun>>& openPages);

    QString htmlName() const;
    bool isOpen(const WebPage& page) const;
    // Leaves each page one picture, its vectors where they take fewer bytes: for a book in a single
    // file, which is loaded as a whole. Before complete().
    void keepOnePicture();
    // The pictures of the included pages that are files.
    FlashPageSource::Pages pictures() const;
    // Whether the page has vectors only, which are its picture and its thumbnail, too.
    static bool isDrawn(const WebPage& page);
    // The extension in the book of a page's larger picture, which it has. Vectors become a
    // script, since browsers load no other data from disk.
    static QString largeKind(const WebPage& page);
    // Paths in the book of a page's picture, and of what is shown as its thumbnail.
    static QString picturePath(const WebPage& page);
    static QString thumbnailPath(const WebPage& page);
    // Of the first pages, or all.
    std::unique_ptr<pugi::xml_document> configuration(std::size_t count = SIZE_MAX) const;
    // The first page that is included; null for none.
    const WebPage* firstPage() const;

private:
    void readDocument(const std::shared_ptr<PDFDocument>& document);
};
