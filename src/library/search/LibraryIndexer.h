#pragma once

#include "library/LibraryLayout.h"
#include "library/search/SegmentWriter.h"

#include <functional>

// Brings the full text index of a library up to date.
namespace LibraryIndexer {

struct Options {
    int shard = 0; // from 0; each makes its own part
    int shards = 1;
    std::function<bool()> isCancelled;
    std::function<void(int done, int total)> showProgress; // in segments
};

// Throws PlatformException; one that is temporary when another run makes the same part.
SegmentWriter::Report update(const LibraryLayout& library, const Options& options);

} // namespace LibraryIndexer
