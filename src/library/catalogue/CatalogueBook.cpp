#include "library/catalogue/CatalogueBook.h"

#include "library/BookResult.h"
#include "library/LibraryLayout.h"
#include "output/BookLayout.h"
#include "system/Files.h"

#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

namespace {

constexpr std::array<QString BookFacts::*, 6> factMembers{&BookFacts::title,  &BookFacts::author,
                                                          &BookFacts::date,   &BookFacts::language,
                                                          &BookFacts::rights, &BookFacts::subject};

// In UTF-8, which takes half the memory. Texts have their lengths before them.
class Packer {
public:
    void add(const QString& text) {
        const QByteArray bytes = text.toUtf8();
        add(qint64(bytes.size()));
        iBytes += bytes;
    }
    void add(qint64 number) {
        iBytes.append(reinterpret_cast<const char*>(&number), sizeof number);
    }
    const QByteArray& bytes() const { return iBytes; }

private:
    QByteArray iBytes;
};

class Unpacker {
public:
    explicit Unpacker(const QByteArray& bytes) : iAt(bytes.constData()) {}

    qint64 number() {
        qint64 value = 0;
        std::memcpy(&value, iAt, sizeof value);
        iAt += sizeof value;
        return value;
    }
    QString text() {
        const qint64 size = number();
        const char* start = iAt;
        iAt += size;
        return QString::fromUtf8(start, qsizetype(size));
    }
    QDateTime time() { return QDateTime::fromSecsSinceEpoch(number(), Qt::UTC); }

private:
    const char* iAt;
};

QByteArray packed(const CatalogueBook& book) {
    Packer packer;
    packer.add(book.id);
    for (const auto member : factMembers)
        packer.add(book.facts.*member);
    packer.add(qint64(book.pages));
    packer.add(book.cover);
    packer.add(book.picture);
    packer.add(book.added.toSecsSinceEpoch());
    packer.add(book.changed.toSecsSinceEpoch());
    packer.add(qint64(book.hasTextPage));
    packer.add(qint64(book.hasManifest));
    return packer.bytes();
}

// Results may be of any make: nothing outside of the book is linked.
QString pathInBook(const QString& path) {
    const bool leadsOut = path.startsWith(u'/') || path.contains(u'\\') ||
                          path.split(u'/').contains(QStringLiteral(".."));
    return leadsOut ? QString() : path;
}

QString pictureOf(const BookLayout& book, const QString& cover) {
    const int number = QFileInfo(cover).completeBaseName().toInt();
    for (const char* extension : {"jpg", "png"}) {
        const QString path = BookLayout::page(number, QString::fromLatin1(extension));
        if (number > 0 && QFileInfo::exists(book.at(path)))
            return path;
    }
    return {};
}

CatalogueBook bookOf(const BookResult& result, const LibraryLayout& library) {
    const BookLayout layout(library.book(result.id));
    const auto has = [&](const QString& path) { return QFileInfo::exists(layout.at(path)); };
    CatalogueBook book;
    book.id = result.id;
    book.facts = result.allFacts();
    book.pages = result.made->pages;
    book.added = result.made->added;
    book.changed = std::max(result.made->changed, book.added);
    book.cover = pathInBook(result.made->cover);
    // The books may all be on another machine.
    if (!QFileInfo::exists(library.at(LibraryLayout::books)))
        return book;
    if (!has(book.cover))
        book.cover.clear();
    book.picture = pictureOf(layout, book.cover);
    book.hasTextPage = has(BookLayout::textPage);
    book.hasManifest = has(CatalogueBook::manifest);
    return book;
}

} // namespace

QString CatalogueBook::firstAuthor() const {
    return facts.authors().value(0);
}

CatalogueBooks CatalogueBooks::of(const LibraryLayout& library) {
    CatalogueBooks books;
    std::vector<std::pair<qint64, int>> order; // by time
    BookResult::forEach(library, [&](const BookResult& result) {
        if (!result.made)
            return;
        const CatalogueBook book = bookOf(result, library);
        order.emplace_back(book.added.toSecsSinceEpoch(), books.count());
        books.iPacked.push_back(packed(book));
    });
    std::sort(order.begin(), order.end());
    std::deque<QByteArray> sorted;
    for (const auto& [added, number] : order)
        sorted.push_back(books.iPacked[std::size_t(number)]);
    books.iPacked.swap(sorted);
    return books;
}

CatalogueBook CatalogueBooks::at(int number) const {
    Unpacker packed(iPacked[std::size_t(number)]);
    CatalogueBook book;
    book.id = packed.text();
    for (const auto member : factMembers)
        book.facts.*member = packed.text();
    book.pages = int(packed.number());
    book.cover = packed.text();
    book.picture = packed.text();
    book.added = packed.time();
    book.changed = packed.time();
    book.hasTextPage = packed.number() != 0;
    book.hasManifest = packed.number() != 0;
    return book;
}
