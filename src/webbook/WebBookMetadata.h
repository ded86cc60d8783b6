#pragma once

#include "util/PageRange.h"
#include "webbook/BookFacts.h"

#include <QByteArray>
#include <QJsonObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

class FlashOutline;

// The files with a book's text.
struct TextParts {
    int search = 0;            // how many are for searching; 0 for no text
    std::vector<int> reading;  // the positions of pages at which those with its structure begin
    std::vector<int> listings; // the positions of pages of contents and indexes
};

// Metadata of a web book, for its player, search engines and link previews.
struct WebBookMetadata {
    BookFacts facts;
    QString keywords;
    std::vector<int> numbers; // page numbers in the PDF, in book order
    QStringList labels;       // page labels, or empty
    QStringList large;        // the extension of each page's large picture, empty for none
    QString cover;            // path in the book of a page's thumbnail; empty for none
    QString textPage;         // path in the book of the page of plain text; empty for none
    int start = 0;            // the position that the book opens at; 0 when the document names none
    QString panel;            // what is open at first: "contents", "thumbs", or empty
    QString address;          // absolute, of the book's page; empty for unknown
    QString imageAddress;     // absolute, of the picture shown with links; empty for none
    QSize imageSize;          // in pixels
    bool allowsText = true;   // whether the document allows to take text out of it
    bool offline = false;     // whether readers can save the book for offline use
    // In a preview, the runs of positions that are included; none when all are.
    std::optional<std::vector<PageRun>> open;

    // The one-based position in the book of a page by its number in the PDF; 0 when it is not in
    // the book.
    int positionOf(int number) const;

    // Whether the page at a position is included.
    bool isOpen(int position) const;

    // The data for the player; the outline may be null.
    QJsonObject forPlayer(const FlashOutline* outline, const TextParts& parts) const;
    // Markup for the HTML page's head beyond title, keywords and description.
    QByteArray headMarkup() const;

private:
    QByteArray imageMarkup() const;
};
