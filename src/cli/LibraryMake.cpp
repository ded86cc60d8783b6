#include "cli/LibraryMake.h"

#include "cli/BookPool.h"
#include "cli/CurrentBooks.h"
#include "cli/LibraryBooks.h"
#include "cli/LibraryCatalogue.h"
#include "cli/LibraryProgress.h"
#include "cli/LibraryPrune.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "console/Terminal.h"
#include "library/LibraryLayout.h"
#include "library/LibraryRun.h"
#include "library/ListIndex.h"
#include "library/ListedIDs.h"
#include "library/OpenList.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <chrono>

namespace {

void failOn(const Message& error) {
    if (!error.isNull())
        throw CommandError(Messages{error});
}

void makeFolder(const LibraryLayout& library) {
    if (QFileInfo(library.folder()).exists() && !QFileInfo(library.folder()).isDir())
        throw CommandError(QStringLiteral("%1: is no folder").arg(library.folder()));
    if (!QDir().mkpath(library.at(LibraryLayout::books)))
        throw CommandError(Messages{
            Message::about(library.at(LibraryLayout::books), Message::ofLastSystemError())});
}

void reportUnknown(const QString& list, const QStringList& columns) {
    for (const QString& column : columns)
        Terminal::report(
            QStringLiteral("folvero: %1: the column \"%2\" is not known").arg(list, column));
}

// The record of this run, which is in the library from now on.
LibraryRun started(const LibraryMakeOptions& options, const LibraryLayout& library, BookList& list,
                   const ListIndex& index) {
    makeFolder(library);
    LibraryRun run = LibraryRun::begin(options.shard, options.shards);
    run.list = index.digest();
    run.books = qint64(index.sizeOfShard(options.shard - 1, options.shards));
    failOn(ListedIDs::write(library, list, index.digest()));
    failOn(run.write(library));
    return run;
}

// The exit code of the whole run, and what to do about it.
void failIfIncomplete(const LibraryCounts& counts, const LibraryRun& run) {
    if (counts.tryAgain > 0)
        throw CommandError(QStringLiteral("%1 books are to be tried again: run the same command "
                                          "once more")
                               .arg(counts.tryAgain),
                           ExitCode::tryAgain);
    if (counts.failed > 0 || run.badLineCount > 0)
        throw CommandError(QStringLiteral("%1 books failed, %2 lines name no book; see folvero "
                                          "library status")
                               .arg(counts.failed)
                               .arg(run.badLineCount));
    if (counts.incomplete > 0)
        throw CommandError(QStringLiteral("%1 books are incomplete; see folvero library status")
                               .arg(counts.incomplete),
                           ExitCode::incomplete);
}

void print(const LibraryCounts& counts, const LibraryLayout& library) {
    Terminal::print(QStringLiteral("%1: %2 books: %3")
                        .arg(library.folder(), QString::number(counts.books()), counts.text()));
    Terminal::checkOutput();
}

// The exit code of a catalogue that could not be made, after its reason was reported.
ExitCode makeCatalogue(const LibraryLayout& library, const CatalogueSettings& settings,
                       bool isQuiet) {
    // Another run that shares the books may be making it.
    constexpr std::chrono::minutes patience{10};
    try {
        LibraryCatalogue::make(library, settings, {.quiet = isQuiet, .patience = patience});
    } catch (const CommandError& failure) {
        Terminal::report(QStringLiteral("folvero: %1").arg(failure.message()));
        return failure.code();
    }
    return ExitCode::ok;
}

} // namespace

void runLibraryMake(const LibraryMakeOptions& given) {
    LibraryMakeOptions options = given;
    const LibraryLayout library(options.folder);
    const CatalogueSettings catalogue = LibraryCatalogue::settings(options.catalogue, library);
    options.catalogue.address = catalogue.address;
    CurrentBooks(options.password).check(options.bookOptions);
    const auto list = openList(options.list, library.folder());
    const ListIndex index(*list);
    if (options.shard == 1)
        reportUnknown(options.list, list->unknownColumns());
    if (index.size() == 0 && !index.hasUnknownIDs())
        throw CommandError(QStringLiteral("%1: there is no PDF in it").arg(options.list));
    Interrupt::watch();
    LibraryRun run = started(options, library, *list, index);
    failOn(catalogue.remember(library));

    LibraryProgress progress(run.books, options.quiet);
    list->rewind();
    LibraryBooks books(options, library, *list, index, run, progress);
    options.password.giveEnvironment(); // each publish takes it from there
    // A book is made by few workers when there are many books, and by many when it is the last.
    BookPool(int(std::min<qint64>(options.jobs, std::max<qint64>(run.books, 1))), books).run();
    if (Interrupt::wasRequested())
        throw CommandError(QStringLiteral("cancelled; books that were finished are kept"),
                           ExitCode::cancelled);
    books.throwIfBroken();
    LibraryPrune(options, library, index).run();
    run.ended = QDateTime::currentDateTimeUtc();
    failOn(run.write(library));
    progress.clear();
    print(books.counts(), library);
    const bool makesCatalogue = options.makesCatalogue && options.shards == 1;
    const ExitCode ofCatalogue =
        makesCatalogue ? makeCatalogue(library, catalogue, options.quiet) : ExitCode::ok;
    failIfIncomplete(books.counts(), run);
    if (ofCatalogue != ExitCode::ok)
        throw CommandError(QStringLiteral("the books are made, but the catalogue is not; see "
                                          "folvero library catalogue"),
                           ofCatalogue);
}
