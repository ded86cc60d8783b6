#include "cli/LibraryBatch.h"

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

// %1: shards, %2: log folder, %3: program, %4: command after "library make".
const QString script = QStringLiteral(R"(#!/bin/bash
#SBATCH --job-name=folvero-library
#SBATCH --array=1-%1
#SBATCH --ntasks=1
#SBATCH --cpus-per-task=1
#SBATCH --requeue
#SBATCH --open-mode=append
#SBATCH --signal=B:TERM@60
#SBATCH --output=%2/%a.txt
# Makes a library of books with a job array of Slurm, a shard of the list in each task. A task whose
# node fails is queued again, and goes on with the books that are not there yet. When all tasks have
# ended:
#   folvero library status OUT && folvero library catalogue OUT
folvero=${FOLVERO:-%3}
mostRestarts=5

# A /tmp of its own where the node allows it: what a killed task leaves there is gone with it.
makeShard() {
    if unshare --user --map-root-user --mount mount -t tmpfs none /tmp 2>/dev/null; then
        exec unshare --user --map-root-user --mount sh -c \
            'mount --bind "$1" /tmp && shift && exec "$@"' sh "$work" "$@"
    fi
    exec "$@"
}

work=$(mktemp -d) || exit 75
makeShard "$folvero" library make %4 --shard "$SLURM_ARRAY_TASK_ID/%1" --jobs 1 --no-catalogue &
task=$!
# Before its time is up, a task ends the book that it makes.
trap 'kill -TERM "$task"' TERM
wait "$task"
code=$?
while kill -0 "$task" 2>/dev/null; do
    wait "$task"
    code=$?
done
rm -rf "$work"
# 75: a full disk, a share that was gone. 130: ended before all was done.
if [ "$code" -eq 75 ] || [ "$code" -eq 130 ]; then
    [ "${SLURM_RESTART_COUNT:-0}" -lt "$mostRestarts" ] &&
        scontrol requeue "${SLURM_ARRAY_JOB_ID}_${SLURM_ARRAY_TASK_ID}"
fi
exit "$code")");

} // namespace

void runLibraryBatch(const LibraryBatchOptions& options) {
    const QFileInfo list(options.list);
    if (!list.exists())
        throw CommandError(QStringLiteral("%1: is not there").arg(options.list));
    const LibraryLayout library(options.folder);
    const QString logs = library.stateAt(QStringLiteral("log"));
    // Slurm does not start a task whose log it can't write.
    if (!QDir().mkpath(logs))
        throw CommandError(Messages{Message::about(logs, Message::ofLastSystemError())});
    if (options.shards > usualMaxArraySize)
        Terminal::report(QStringLiteral("folvero: Slurm takes %1 tasks only where MaxArraySize is "
                                        "higher")
                             .arg(options.shards));
    QStringList words{quoted(QDir::cleanPath(list.absoluteFilePath())), quoted(library.folder())};
    for (const QString& option : options.makeOptions)
        words << quoted(option);
    // Slurm replaces %a and others in the path, which has no quotation marks.
    QString logPath = logs;
    logPath.replace(u'%', QStringLiteral("%%"));
    Terminal::print(script.arg(QString::number(options.shards), logPath,
                               quoted(QCoreApplication::applicationFilePath()), words.join(u' ')));
    Terminal::checkOutput();
}
