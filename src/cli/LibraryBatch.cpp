#include "cli/LibraryBatch.h"

#include "cli/CurrentBooks.h"
#include "cli/LibraryCatalogue.h"
#include "cli/LibraryOptions.h"
#include "console/CommandError.h"
#include "console/Terminal.h"
#include "library/LibraryLayout.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

// As sites have it unless they change it.
constexpr int usualMaxArraySize = 1000;

QString quoted(QString text) {
    return u'\'' + text.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

// Of a path between quotation marks. Slurm replaces %a and others in it.
QString asArgumentOfSbatch(QString path) {
    return path.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'"', QStringLiteral("\\\""))
        .replace(u'%', QStringLiteral("%%"));
}

// %1: shards, %2: log folder as an argument of sbatch, %3: program, %4: list, %5: library, %6:
// options of "library make", each of the last four quoted for the shell.
const QString script = QStringLiteral(R"(#!/bin/bash
#SBATCH --job-name=folvero-library
#SBATCH --array=1-%1
#SBATCH --ntasks=1
#SBATCH --cpus-per-task=1
#SBATCH --requeue
#SBATCH --open-mode=append
#SBATCH --signal=B:USR1@60
#SBATCH --output="%2/%a.txt"
# Makes a library of books with a job array of Slurm, a shard of the list in each task. A task whose
# node fails is queued again, and goes on with the books that are not there yet. When all tasks have
# ended:
#   folvero library status OUT
#   folvero library catalogue OUT
folvero=${FOLVERO:-%3}
list=%4
library=%5
options=(%6)
most_restarts=5

# Where the site sets TMPDIR to a disk of the job's own, that becomes the task's /tmp, in which books
# are drawn. Not where the task needs files below /tmp.
with_own_tmp() {
    local path
    case $(readlink -f -- "${TMPDIR:-/tmp}")/ in /tmp/*) exec "$@" ;; esac
    for path in "$folvero" "$list" "$library" "${options[@]#*=}"; do
        case $(readlink -f -- "$path") in /tmp/*) exec "$@" ;; esac
    done
    unshare --user --map-root-user --mount mount --bind "$TMPDIR" /tmp 2>/dev/null || exec "$@"
    exec unshare --user --map-root-user --mount \
        sh -c 'mount --bind "$TMPDIR" /tmp && exec "$@"' sh "$@"
}

with_own_tmp "$folvero" library make "$list" "$library" "${options[@]}" --jobs 1 \
    --shard "$SLURM_ARRAY_TASK_ID/%1" &
task=$!
# Slurm sends USR1 before the time is up, and TERM when the job is cancelled.
trap 'is_caught=1 is_time_up=1; kill -TERM "$task"' USR1
trap 'is_caught=1 is_cancelled=1; kill -TERM "$task"' TERM
while :; do
    is_caught=
    wait "$task"
    code=$?
    [ "$is_caught" ] || break
done
# 75: a full disk, a share that was gone. 130: ended before all was done.
if [ "$code" -eq 75 ] || { [ "$code" -eq 130 ] && [ "$is_time_up" ]; }; then
    if [ -z "$is_cancelled" ] && [ "${SLURM_RESTART_COUNT:-0}" -lt "$most_restarts" ]; then
        scontrol requeue "${SLURM_ARRAY_JOB_ID}_$SLURM_ARRAY_TASK_ID"
    fi
fi
exit "$code")");

} // namespace

void runLibraryBatch(const LibraryBatchOptions& options) {
    const QFileInfo list(options.list);
    if (!list.exists())
        throw CommandError(QStringLiteral("%1: is not there").arg(options.list));
    CurrentBooks({}).check(options.makeOptions);
    const LibraryLayout library(options.folder);
    LibraryCatalogueOptions catalogue;
    catalogue.address = options.address;
    LibraryCatalogue::settings(catalogue, library); // throws for a bad address
    const QString logs = library.stateAt(QStringLiteral("log"));
    if (logs.contains(u'\n'))
        throw CommandError(
            QStringLiteral("%1: a line of a batch script can't contain it").arg(library.folder()));
    // Slurm does not start a task whose log it can't write.
    if (!QDir().mkpath(logs))
        throw CommandError(Messages{Message::about(logs, Message::ofLastSystemError())});
    if (options.shards > usualMaxArraySize)
        Terminal::report(QStringLiteral("folvero: Slurm takes %1 tasks only where MaxArraySize is "
                                        "higher")
                             .arg(options.shards));
    QStringList makeOptions;
    for (const QString& option : options.makeOptions)
        makeOptions << quoted(option);
    if (!options.address.isNull())
        makeOptions << quoted(QStringLiteral("--url=") + options.address);
    Terminal::print(script.arg(QString::number(options.shards), asArgumentOfSbatch(logs),
                               quoted(QCoreApplication::applicationFilePath()),
                               quoted(QDir::cleanPath(list.absoluteFilePath())),
                               quoted(library.folder()), makeOptions.join(u' ')));
    Terminal::checkOutput();
}
