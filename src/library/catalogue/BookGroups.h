#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <cstdint>
#include <utility>
#include <vector>

class CatalogueBooks;
struct BookFacts;

// The books with the same author, subject, language or year.
struct BookGroup {
    QString name;                     // as the first book spells it; of a language its tag
    QByteArray slug;                  // of its pages' names
    std::vector<std::uint32_t> books; // their numbers, ascending
    int count() const { return int(books.size()); }
};

// All groups of one kind.
class BookGroups {
public:
    enum class Kind { author, subject, language, year };

    // Names are sorted as readers of that language do it; years come from the newest.
    BookGroups(Kind kind, const CatalogueBooks& books, const QString& language);

    Kind kind() const { return iKind; }
    const std::vector<BookGroup>& all() const { return iGroups; }
    bool isEmpty() const { return iGroups.empty(); }
    // Null for none of that name. Names that differ in letter case and accents only are the same.
    const BookGroup* named(const QString& name) const;
    // Those with most books first, at most that many.
    std::vector<const BookGroup*> largest(std::size_t most) const;

    // Folder of the pages, such as "author".
    static QByteArray folder(Kind kind);
    // What a book has of that kind.
    static QStringList namesOf(Kind kind, const BookFacts& facts);

private:
    void add(const QString& name, std::uint32_t book);

    Kind iKind;
    std::vector<BookGroup> iGroups;        // by name
    QHash<QString, std::uint32_t> iPlaces; // by folded name
};
