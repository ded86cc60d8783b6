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

    // Null, or why the file could not be written.
    Message finish();

private:
    // Does something with the file, unless that failed before.
    template <typename Action>
    void attempt(Action action);
    void write(const QByteArray& html);

    const WebBookMetadata& iMetadata;
    QFile iFile;
    Message iError;
    int iPosition = 0;
};
