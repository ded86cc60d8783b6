#pragma once

#include <QString>

class LibraryLayout;
class ListIndex;
struct LibraryMakeOptions;

// Books of a library that are not in its list any more: reported, and removed where the user asks
// for it.
class LibraryPrune {
public:
    LibraryPrune(const LibraryMakeOptions& options, const LibraryLayout& library,
                 const ListIndex& index);

    // Those of the shard. Throws CommandError when one can't be removed.
    void run() const;

private:
    QStringList unlisted() const;
    void remove(const QString& id) const;

    const LibraryMakeOptions& iOptions;
    const LibraryLayout& iLibrary;
    const ListIndex& iIndex;
};
