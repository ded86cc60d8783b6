#pragma once

#include "cli/BookPool.h"
#include "cli/CurrentBooks.h"
#include "cli/LibraryOptions.h"
#include "cli/LibraryProgress.h"
#include "library/BookList.h"
#include "library/BookResult.h"
#include "system/FileState.h"

#include <chrono>
#include <deque>
#include <map>
#include <memory>
#include <optional>

class BookLease;
class LibraryLayout;
class ListIndex;
struct LibraryRun;

// The books of one run over a library, for a BookPool: skips those that are current, holds a lease
// on each that is being made, and writes what came of them.
class LibraryBooks : public BookSource {
public:
    // The list is at its first line.
    LibraryBooks(const LibraryMakeOptions& options, const LibraryLayout& library, BookList& list,
                 const ListIndex& index, LibraryRun& run, LibraryProgress& progress);
    ~LibraryBooks() override;

    std::optional<BookJob> nextJob() override;
    bool isExhausted() const override;
    int workersForNext() const override;
    void finished(const QString& id, const BookOutcome& outcome) override;
    void tick() override;
    bool mayGoOn(const QString& id) const override;

    const LibraryCounts& counts() const { return iCounts; }
    // Throws what ended the run before the end of the list: the list was changed, or the library's
    // folder is gone.
    void throwIfBroken() const;

private:
    // A book that is being made.
    struct Making {
        ListedBook book;
        QByteArray inputs;
        std::optional<BookResult> earlier;
        std::unique_ptr<BookLease> lease;
        bool isLost = false; // the lease: another run makes the book
    };

    bool isWanted(const ListedBook& book);
    std::optional<ListedBook> nextListed();
    std::optional<ListedBook> nextWaiting();
    std::optional<BookJob> jobFor(const ListedBook& book);
    QString pageOf(const ListedBook& book) const;
    QStringList argumentsFor(const ListedBook& book) const;
    bool isCurrent(const CurrentBooks::State& state, const ListedBook& book,
                   const std::optional<BookResult>& earlier) const;
    void skip(const ListedBook& book, const BookResult& earlier);
    void fail(const ListedBook& book, const QString& reason, int code);
    void conclude(const Making& making, const BookOutcome& outcome);
    bool write(const BookResult& result);
    void count(BookResult::State state);
    void checkFolder();
    void stop(const Message& reason);

    const LibraryMakeOptions& iOptions;
    const LibraryLayout& iLibrary;
    BookList& iList;
    const ListIndex& iIndex;
    LibraryRun& iRun;
    LibraryProgress& iProgress;
    CurrentBooks iCurrent;
    FileState iFolder;
    LibraryCounts iCounts;
    std::map<QString, Making> iMaking;
    std::deque<ListedBook> iWaiting; // for another run, which makes them
    bool iIsListRead = false;
    Message iBroken;
    std::chrono::steady_clock::time_point iNextRenewal;
    std::chrono::steady_clock::time_point iNextLook; // at those that wait
};
