#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QFile>
#include <QString>

struct WebBookMetadata;

// All text of a book, page by page, as an HTML page without scripts: for search engines, old
// browsers, and readers who prefer text.
class PlainTextPage {
public:
    // book is the name of the book's page, beside this one; path is that of the file to write.
    PlainTextPage(const WebBookMetadata& metadata, const QString& book, const QString& path);

    // Adds the next page of the book.
    void addPage(const QString& text);
    // Skips the next page of the book.
    void skipPage() { ++iPosition; }

    // False, with the cause in *error, when the file could not be written.
    bool finish(Message* error);

private:
    void write(const QByteArray& html) {
        iIsWritten = iIsWritten && iFile.write(html) == html.size();
    }

    const WebBookMetadata& iMetadata;
    QFile iFile;
    bool iIsWritten;
    int iPosition = 0;
};
