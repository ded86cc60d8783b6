#pragma once

#include "library/search/LibrarySearch.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

// Searches of a library for the threads of a server: a few at a time, since each keeps a processor
// busy.
class SearchPool {
public:
    explicit SearchPool(const LibraryLayout& library);

    // None when there is no index.
    std::optional<LibrarySearch::Answer> find(const SearchQuery& query,
                                              const LibrarySearch::Options& options);
    bool hasIndex();

private:
    // A search, and its way back into the pool.
    using Borrowed = std::unique_ptr<LibrarySearch, std::function<void(LibrarySearch*)>>;
    Borrowed borrow();

    std::mutex iMutex;
    std::condition_variable iReturned;
    std::vector<std::unique_ptr<LibrarySearch>> iIdle;
};
