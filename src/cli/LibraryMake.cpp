#include "cli/LibraryMake.h"

#include "cli/BookPool.h"
#include "cli/LibraryBooks.h"
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

} // namespace

void runLibraryMake(const LibraryMakeOptions& options) {
    const LibraryLayout library(options.folder);
    const auto list = openList(options.list, library.folder());
    const ListIndex index(*list);
    if (options.shard == 1)
        reportUnknown(options.list, list->unknownColumns());
    if (index.size() == 0 && !index.hasUnknownIDs())
        throw CommandError(QStringLiteral("%1: there is no PDF in it").arg(options.list));
    Interrupt::watch();
    makeFolder(library);
    LibraryRun run = LibraryRun::begin(options.shard, options.shards);
    run.list = index.digest();
    run.books = qint64(index.sizeOfShard(options.shard - 1, options.shards));
    failOn(ListedIDs::write(library, *list, index.digest()));
    failOn(run.write(library));

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
    Terminal::print(
        QStringLiteral("%1: %2 books: %3")
            .arg(library.folder(), QString::number(books.counts().books()), books.counts().text()));
    Terminal::checkOutput();
    failIfIncomplete(books.counts(), run);
}
