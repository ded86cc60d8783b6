#pragma once

#include <QByteArray>
#include <QString>

struct WebBookMetadata;

// All text of a book, page by page, as an HTML page without scripts: for search engines, old
// browsers, and readers who prefer text.
class PlainTextPage {
public:
    // book is the URL of the book's page, relative to this one.
    PlainTextPage(const WebBookMetadata& metadata, const QString& book);

    // Adds the next page of the book.
    void addPage(const QString& text);
    // Skips the next page of the book.
    void skipPage() { ++iPosition; }

    QByteArray html() const;

private:
    const WebBookMetadata& iMetadata;
    QByteArray iHTML;
    int iPosition = 0;
};
