#include "cli/LibraryPrune.h"

#include "cli/LibraryOptions.h"
#include "console/CommandError.h"
#include "console/Terminal.h"
#include "library/BookID.h"
#include "library/BookLease.h"
#include "library/BookResult.h"
#include "library/LibraryLayout.h"
#include "library/ListIndex.h"
#include "system/FolderRemoval.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

LibraryPrune::LibraryPrune(const LibraryMakeOptions& options, const LibraryLayout& library,
                           const ListIndex& index)
    : iOptions(options), iLibrary(library), iIndex(index) {}

QStringList LibraryPrune::unlisted() const {
    QStringList ids;
    for (const QString& id : BookResult::ids(iLibrary)) {
        const bool isOurs =
            BookID::shardOf(BookID::digest(id), iOptions.shards) == iOptions.shard - 1;
        if (isOurs && BookID::problemWith(id).isNull() && !iIndex.contains(id))
            ids << id;
    }
    return ids;
}

void LibraryPrune::run() const {
    const QStringList ids = unlisted();
    if (ids.isEmpty())
        return;
    if (iOptions.prune && iIndex.hasUnknownIDs())
        throw CommandError(QStringLiteral("--prune: %1 books are not in the list, but some of its "
                                          "lines can't be read and may name them")
                               .arg(ids.size()));
    for (const QString& id : ids) {
        if (iOptions.prune)
            remove(id);
        Terminal::report(
            iOptions.prune
                ? QStringLiteral("%1: removed").arg(id)
                : QStringLiteral("%1: is not in the list any more; --prune removes it").arg(id));
    }
}

// The result goes last: as long as it is there, another run tries again.
void LibraryPrune::remove(const QString& id) const {
    Message error;
    const auto lease = BookLease::take(iLibrary.lease(id), &error);
    if (!lease)
        throw CommandError(error.isNull()
                               ? QStringLiteral("%1: is being made by another run").arg(id)
                               : error.english(),
                           ExitCode::tryAgain);
    const QString folder = iLibrary.book(id);
    const bool isGone = !QFileInfo::exists(folder) || FolderRemoval::remove(folder);
    if (!isGone || !QFile::remove(iLibrary.result(id)))
        throw CommandError(QStringLiteral("%1: can't be removed").arg(folder), ExitCode::tryAgain);
}
