#pragma once

#include "library/LibraryLayout.h"
#include "library/search/SearchQuery.h"
#include "library/search/SegmentReader.h"

#include <QString>
#include <chrono>
#include <vector>

// Searches the texts of all books of a library by its index, which it only reads. Not for several
// threads at once.
class LibrarySearch {
public:
    struct Hit {
        QString book; // its ID
        int position; // of the page, one-based
    };
    struct Answer {
        std::vector<Hit> hits; // the best first; in one book: in order of the pages
        qint64 count = 0;      // of all pages that match
        bool isMore = false;   // there are more than these, or the time was too short to find all
    };
    struct Options {
        QString book; // only in this one; null for all
        std::size_t first = 0;
        std::size_t most = 20;
        std::chrono::milliseconds time{2000};
    };

    explicit LibrarySearch(const LibraryLayout& library);

    // Throws PlatformException when the index can't be read.
    Answer find(const SearchQuery& query, const Options& options);
    // Whether any part of the library has been indexed.
    bool hasIndex();

private:
    std::vector<SegmentReader> iSegments;
};
