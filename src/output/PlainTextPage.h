#pragma once

#include <QByteArray>
#include <QString>

struct WebBookMetadata;

// All text of a book as a page without a script, page by page: for search engines, for old
// browsers, and for readers who want no pictures.
class PlainTextPage {
public:
    // In the book's folder.
    static inline const QString fileName = QStringLiteral("text.html");

    // Whether a file is such a page of any book, of whatever version.
    static bool isOne(const QString& file);

    // book is the address of the book's page, relative to this one.
    PlainTextPage(const WebBookMetadata& facts, const QString& book);

    // The next page of the book.
    void addPage(const QString& text);
    // The next page of the book is not shown here.
    void skipPage() { ++iPosition; }

    QByteArray html() const;

private:
    const WebBookMetadata& iMetadata;
    QByteArray iHTML;
    int iPosition = 0;
};
