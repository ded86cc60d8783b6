#pragma once

#include "library/catalogue/BookGroups.h"
#include "library/catalogue/BookOrder.h"
#include "library/catalogue/CatalogueBook.h"
#include "library/catalogue/CatalogueSettings.h"
#include "library/catalogue/CatalogueTexts.h"

class SiteFiles;

// What all parts of a catalogue are made of, and where they go.
struct CatalogueSite {
    const CatalogueSettings& settings;
    const CatalogueTexts& texts;
    const CatalogueBooks& books;
    const BookGroups& authors;
    const BookGroups& subjects;
    const BookGroups& languages;
    const BookGroups& years;
    const BookOrder::Numbers& titles; // all books by title
    const BookOrder::Numbers& newest;
    SiteFiles& files;
    // What many pages have alike, by what it depends on.
    QHash<QByteArray, QByteArray>& frames;
    // The same of books, by number; null until one is made.
    std::vector<QByteArray>& cards;

    // What readers see of a group: the name of a language, not its tag.
    QString nameOf(const BookGroups& groups, const BookGroup& group) const;

    // The absolute address of a file in the library's folder; its path is percent-encoded.
    QByteArray address(const QByteArray& path) const;
    // The same of a book, which a server answers for its folder.
    QByteArray bookAddress(const CatalogueBook& book) const;
};
