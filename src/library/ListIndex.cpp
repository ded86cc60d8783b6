#include "library/ListIndex.h"

#include "library/BookID.h"

#include <QCryptographicHash>
#include <algorithm>
#include <cstring>

namespace {

std::array<char, 16> digestOf(const QString& id) {
    std::array<char, 16> bytes{};
    const QByteArray digest = BookID::digest(id);
    std::memcpy(bytes.data(), digest.constData(), bytes.size());
    return bytes;
}

void add(QCryptographicHash& to, const ListedBook& book) {
    const auto addText = [&to](const QByteArray& text) {
        to.addData(QByteArray::number(text.size()) + ' ' + text);
    };
    for (const QString& text :
         {book.id, book.pdf, book.problem, book.facts.title, book.facts.author, book.facts.date,
          book.facts.language, book.facts.rights, book.facts.subject})
        addText(text.toUtf8());
    addText(book.options.join('\n'));
}

// The entry with the ID in a sorted list; its end for none.
template <class Entries>
auto findIn(const Entries& entries, const QString& id) {
    const auto wanted = digestOf(id);
    const auto at =
        std::lower_bound(entries.begin(), entries.end(), wanted,
                         [](const auto& entry, const auto& digest) { return entry.id < digest; });
    return at != entries.end() && at->id == wanted ? at : entries.end();
}

} // namespace

ListIndex::ListIndex(BookList& list) {
    QCryptographicHash hash(QCryptographicHash::Blake2b_160);
    list.rewind();
    for (ListedBook book; list.next(book);) {
        add(hash, book);
        if (book.id.isEmpty())
            iHasUnknownIDs = true;
        else
            iEntries.push_back({digestOf(book.id), book.line});
    }
    iDigest = hash.result().toHex();
    std::sort(iEntries.begin(), iEntries.end());
    const auto haveSameID = [](const Entry& one, const Entry& other) { return one.id == other.id; };
    for (auto at = iEntries.begin(); at != iEntries.end();) {
        at = std::adjacent_find(at, iEntries.end(), haveSameID);
        if (at == iEntries.end())
            break;
        iSeveral.push_back(*at);
        at = std::find_if(at, iEntries.end(),
                          [&](const Entry& other) { return !haveSameID(*at, other); });
    }
    iEntries.erase(std::unique(iEntries.begin(), iEntries.end(), haveSameID), iEntries.end());
    iEntries.shrink_to_fit();
}

bool ListIndex::contains(const QString& id) const {
    return findIn(iEntries, id) != iEntries.end();
}

std::size_t ListIndex::sizeOfShard(int shard, int count) const {
    return std::size_t(std::count_if(iEntries.begin(), iEntries.end(), [&](const Entry& entry) {
        return BookID::shardOf(QByteArray::fromRawData(entry.id.data(), entry.id.size()), count) ==
               shard;
    }));
}

qint64 ListIndex::firstOfSeveral(const QString& id) const {
    const auto at = findIn(iSeveral, id);
    return at == iSeveral.end() ? 0 : at->line;
}
