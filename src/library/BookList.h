#pragma once

#include "webbook/BookFacts.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>

// A line of the list that a library is made from.
struct ListedBook {
    qint64 line = 0; // one-based; 0 in a folder
    QString id;      // empty only if there is a problem
    QString pdf;     // as listed
    QByteArray path; // of that file, as NameAliases::decoded() takes it
    BookFacts facts;
    QByteArrayList options; // of "folvero publish", such as "--pages=1-3"
    QString problem;        // in English: why no book can be made; null when one can
};

// The list that a library is made from. It is read line by line, whatever its size.
class BookList {
public:
    BookList() = default;
    virtual ~BookList() = default;
    BookList(const BookList&) = delete;
    BookList& operator=(const BookList&) = delete;

    // Goes back to the first line.
    virtual void rewind() = 0;
    // The next line; false after the last one. Throws PlatformException when the list can't be read
    // any more, or has changed since it was opened.
    virtual bool next(ListedBook& book) = 0;

    // Of columns that were not understood, in the order in which they appear.
    virtual QStringList unknownColumns() const { return {}; }
};
