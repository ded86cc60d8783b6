#pragma once

#include "webbook/BookFacts.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <deque>

class LibraryLayout;

// A book as its catalogue shows it.
struct CatalogueBook {
    // Path in a book's folder of its manifest.
    static inline const QString manifest = QStringLiteral("manifest.json");

    QString id;
    BookFacts facts; // the title is not empty
    int pages = 0;
    QString cover;   // path of a picture in the book's folder; empty for none
    QString picture; // the same for the larger picture of the cover's page
    QDateTime added;
    QDateTime changed;
    bool hasTextPage = false;
    bool hasManifest = false; // of IIIF

    QString firstAuthor() const;
};

// All books of a library that can be read, in the order in which they were added; packed, since
// there may be a million.
class CatalogueBooks {
public:
    // Those that the library's results call made, with an earlier edition after a failure too.
    static CatalogueBooks of(const LibraryLayout& library);

    int count() const { return int(iPacked.size()); }
    // number: from 0
    CatalogueBook at(int number) const;

private:
    std::deque<QByteArray> iPacked;
};
