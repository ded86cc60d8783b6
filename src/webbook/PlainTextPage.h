#pragma once

#include "base/Message.h"
#include "webbook/reading/ReadingBlock.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <functional>

struct WebBookMetadata;

// All text of a book as an HTML page without scripts, with its headings, paragraphs, lists, tables
// and links: for search engines, old browsers, and readers who prefer text. Where a page of the
// book begins, a link leads to it.
class PlainTextPage {
public:
    // The picture of a page at a position, relative to this one; empty for none.
    using Picture = std::function<QString(int position)>;

    // book is the name of the book's page, beside this one; path is that of the file to write.
    PlainTextPage(const WebBookMetadata& metadata, const QString& book, const QString& path,
                  Picture picture);

    // Adds what follows in the text.
    void add(const ReadingBlock& block);

    // Null, or why the file could not be written.
    Message finish();

private:
    enum class Group { none, list, table };

    // Does something with the file, unless that failed before.
    template <typename Action>
    void attempt(Action action);
    void write(const QByteArray& html);
    void enter(Group group);
    QByteArray marksUpTo(int position);
    QByteArray mark(int position) const;
    QByteArray html(const ReadingRun& run, bool isPlain) const;
    QByteArray html(const ReadingBlock& block);
    QByteArray figure(const ReadingBlock& block);

    const WebBookMetadata& iMetadata;
    QByteArray iAddress; // of the book's page
    QFile iFile;
    Picture iPicture;
    Message iError;
    int iPosition = 0; // of the last page that was begun
    Group iGroup = Group::none;
};
