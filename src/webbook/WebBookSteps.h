#pragma once

#include "base/Message.h"
#include "output/PublishRun.h"
#include "webbook/WebBookMetadata.h"

#include <vector>

struct WebBook;

// About the pages of a web book that was made.
struct WebBookReport {
    // Pages that lack some of their files, by number, and why.
    std::vector<std::pair<int, Message>> degradedPages;
    // Of all files of pages.
    qint64 pageBytes = 0;
    TextParts text;
};

// The steps that make a web book, beside those of BookSteps.
namespace WebBookSteps {

// Text with links, thumbnail and larger picture of each page, then the data for all pages: search,
// the text's structure, metadata, and the page of plain text if metadata names one.
void writePages(PublishTarget& to, const WebBook& book, WebBookReport& report);

// The HTML page; after pages and their pictures.
void writePage(PublishTarget& to, const WebBook& book, const WebBookReport& report);

// Scripts and styles that the HTML page loads; a book with a shared player loses its own.
void copyPlayer(PublishTarget& to, const WebBook& book);

// In place of the HTML page, one that contains all files staged in parts.
struct SingleFileOptions {
    TextParts text;
    qint64 limit; // in bytes; fails when the page would have more
};
void writeSingleFile(PublishTarget& to, const PublishTransaction& parts, const WebBook& book,
                     const SingleFileOptions& options);

} // namespace WebBookSteps
