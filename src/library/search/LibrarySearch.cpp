#include "library/search/LibrarySearch.h"

#include "library/search/SearchSegments.h"

#include <algorithm>

namespace {

// In the whole library; each segment gets its share. docs/search.md has the times that they lead
// to.
constexpr qint64 mostRanked = 16'000;
constexpr qint64 mostCounted = 200'000;

struct Ranked {
    SegmentReader* segment;
    SegmentReader::Page page;
};

bool isBetter(const Ranked& one, const Ranked& other) {
    return one.page.score != other.page.score ? one.page.score > other.page.score
           : one.segment != other.segment     ? one.segment < other.segment
                                              : one.page.row < other.page.row;
}

bool isEarlier(const Ranked& one, const Ranked& other) {
    return one.page.row < other.page.row;
}

} // namespace

LibrarySearch::LibrarySearch(const LibraryLayout& library) {
    for (int segment = 0; segment < SearchSegments::count; ++segment)
        iSegments.emplace_back(SearchSegments::file(library, segment));
}

LibrarySearch::Answer LibrarySearch::find(const SearchQuery& query, const Options& options) {
    Answer answer;
    if (query.isEmpty())
        return answer;
    const bool isOneBook = !options.book.isNull();
    const qint64 share = isOneBook ? 1 : SearchSegments::count;
    const std::size_t last = options.first + options.most;
    // In one book the first pages are wanted, not the best ones.
    const SegmentReader::Limits limits{isOneBook ? std::size_t(mostRanked) : last,
                                       mostRanked / share, mostCounted / share};
    const auto deadline = std::chrono::steady_clock::now() + options.time;
    const QByteArray expression = query.expression();
    std::vector<Ranked> all;
    for (int i = 0; i < SearchSegments::count; ++i) {
        SegmentReader& segment = iSegments[std::size_t(i)];
        if ((isOneBook && SearchSegments::ofBook(options.book) != i) || !segment.refresh())
            continue;
        const auto found = segment.find(expression, options.book, limits, deadline);
        answer.count += found.count;
        answer.isMore = answer.isMore || found.isMore;
        for (const auto& page : found.pages)
            all.push_back({&segment, page});
    }
    std::sort(all.begin(), all.end(), isOneBook ? isEarlier : isBetter);
    for (std::size_t i = options.first; i < std::min(last, all.size()); ++i) {
        const auto place = all[i].segment->placeOf(all[i].page.row);
        answer.hits.push_back({place.book, place.position});
    }
    return answer;
}

bool LibrarySearch::hasIndex() {
    return std::any_of(iSegments.begin(), iSegments.end(),
                       [](SegmentReader& segment) { return segment.refresh(); });
}
