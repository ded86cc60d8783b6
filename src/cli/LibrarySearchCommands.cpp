#include "cli/LibrarySearchCommands.h"

#include "cli/CommandArguments.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "console/Terminal.h"
#include "library/LibraryLayout.h"
#include "library/search/LibraryIndexer.h"

#include <QDir>
#include <QRegularExpression>
#include <memory>

namespace {

LibraryLayout existingLibrary(const QString& folder) {
    const LibraryLayout library(folder);
    if (!QDir(library.results()).exists())
        throw CommandError(QStringLiteral("%1: no library in it (there is no %2)")
                               .arg(folder, LibraryLayout::state + QStringLiteral("/results")));
    return library;
}

// Sets both numbers for "2/8"; false for anything else.
bool readShard(const std::string& typed, LibraryIndexer::Options& options) {
    static const QRegularExpression form(QStringLiteral("\\A([0-9]{1,6})/([0-9]{1,6})\\z"));
    const auto match = form.match(QString::fromStdString(typed));
    options.shard = match.captured(1).toInt() - 1;
    options.shards = match.captured(2).toInt();
    return match.hasMatch() && options.shard >= 0 && options.shard < options.shards;
}

void runIndex(const QString& folder, LibraryIndexer::Options options, bool isQuiet) {
    const LibraryLayout library = existingLibrary(folder);
    Interrupt::watch();
    ProgressDisplay progress(QStringLiteral("Indexing"), isQuiet);
    options.isCancelled = [] { return Interrupt::wasRequested(); };
    options.showProgress = [&progress](int done, int total) { progress.show(done, total); };
    const auto report = LibraryIndexer::update(library, options);
    Terminal::print(QStringLiteral("%1 books with %2 pages in the index; %3 added, %4 removed")
                        .arg(report.books)
                        .arg(report.pages)
                        .arg(report.added)
                        .arg(report.removed));
    Terminal::checkOutput();
    if (report.unreadable.isEmpty())
        return;
    QStringList lines;
    for (const QString& id : report.unreadable)
        lines << QStringLiteral("%1: its text can't be read").arg(library.book(id));
    throw CommandError(lines.join(u'\n'), ExitCode::incomplete);
}

} // namespace

void addLibraryIndex(CLI::App& library) {
    struct Line {
        QString folder;
        LibraryIndexer::Options options;
        bool isQuiet = false;
    };
    const auto line = std::make_shared<Line>();
    auto* command = library.add_subcommand("index", "Index the texts of all books, for searching");
    CommandArguments::addPath(*command, "OUT", line->folder, "The library's folder")
        ->type_name("")
        ->required();
    command
        ->add_option_function<std::string>(
            "--shard",
            [line](const std::string& typed) {
                if (!readShard(typed, line->options))
                    throw CLI::ValidationError("--shard", "must be I/N, such as 2/8");
            },
            "Index only the I-th of N parts; all of them may be made at the same time")
        ->type_name("I/N");
    command->add_flag("--quiet", line->isQuiet, "Show no progress");
    command->callback([line] { runIndex(line->folder, line->options, line->isQuiet); });
}
