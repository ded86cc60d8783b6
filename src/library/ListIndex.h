#pragma once

#include "library/BookList.h"

#include <QByteArray>
#include <QString>
#include <array>
#include <tuple>
#include <vector>

// The IDs of a list, in 24 bytes each: which there are, and which stand on two lines.
class ListIndex {
public:
    // Reads the whole list.
    explicit ListIndex(BookList& list);

    std::size_t size() const { return iEntries.size(); }
    bool contains(const QString& id) const;
    // How many IDs a shard has, from 0, of this many.
    std::size_t sizeOfShard(int shard, int count) const;

    // The first line with the ID when there are several; 0 otherwise.
    qint64 firstOfSeveral(const QString& id) const;

    // Whether some lines can't be read well enough to say what book they name.
    bool hasUnknownIDs() const { return iHasUnknownIDs; }

    // Differs for lists with other lines.
    const QByteArray& digest() const { return iDigest; }

private:
    struct Entry {
        std::array<char, 16> id; // digest
        qint64 line;
        bool operator<(const Entry& other) const {
            return std::tie(id, line) < std::tie(other.id, other.line);
        }
    };

    std::vector<Entry> iEntries; // sorted, each ID once
    std::vector<Entry> iSeveral; // of these, those on several lines
    bool iHasUnknownIDs = false;
    QByteArray iDigest;
};
