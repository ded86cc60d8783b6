#pragma once

#include "pages/PageRange.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

class FlashOutline;

// What a web book tells of itself: to its player, and to search engines and whoever passes its
// address on.
struct WebBookMetadata {
    QString title;
    QString author;
    QString subject;
    QString keywords;
    QString language;         // "de", or empty
    std::vector<int> numbers; // the pages' numbers in the PDF, in the order of the book
    QStringList labels;       // what the pages are called, or nothing
    QStringList large;        // the extension of each page's large picture, empty for none
    QString cover;            // a page's thumbnail, a path in the book; empty for none
    QString textPage;         // the whole text as a page, a path in the book; empty for none
    bool hasText = false;
    bool offline = false; // whether readers can keep the book
    // In a preview, the runs of positions that can be read; none where the whole book can be.
    std::optional<std::vector<PageRun>> open;

    // The position in the book of a page by its number in the PDF; 0 when it is not in the book.
    int positionOf(int number) const;

    // Whether the page at a position can be read.
    bool isOpen(int position) const;

    // What the player is told; the outline may be none.
    QJsonObject forPlayer(const FlashOutline* outline) const;
    // What the head of the HTML page says beyond title, keywords and description.
    QByteArray headMarkup() const;
};
