#include "server/SearchPool.h"

#include <utility>

namespace {

constexpr int searches = 4;

} // namespace

SearchPool::SearchPool(const LibraryLayout& library) {
    for (int i = 0; i < searches; ++i)
        iIdle.push_back(std::make_unique<LibrarySearch>(library));
}

std::optional<LibrarySearch::Answer> SearchPool::find(const SearchQuery& query,
                                                      const LibrarySearch::Options& options) {
    const Borrowed search = borrow();
    if (!search->hasIndex())
        return {};
    return search->find(query, options);
}

bool SearchPool::hasIndex() {
    return borrow()->hasIndex();
}

SearchPool::Borrowed SearchPool::borrow() {
    std::unique_lock lock(iMutex);
    iReturned.wait(lock, [this] { return !iIdle.empty(); });
    LibrarySearch* const search = iIdle.back().release();
    iIdle.pop_back();
    return {search, [this](LibrarySearch* returned) {
                {
                    const std::lock_guard again(iMutex);
                    iIdle.emplace_back(returned);
                }
                iReturned.notify_one();
            }};
}
