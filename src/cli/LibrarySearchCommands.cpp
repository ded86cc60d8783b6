#include "cli/LibrarySearchCommands.h"

#include "cli/CommandArguments.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "console/Terminal.h"
#include "library/LibraryLayout.h"
#include "library/search/LibraryExport.h"
#include "library/search/LibraryIndexer.h"

#include <QDir>
#include <QRegularExpression>
#include <QSaveFile>
#include <cerrno>
#include <cstdio>
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

void checkAllWereRead(const LibraryLayout& library, const QStringList& unreadable) {
    QStringList lines;
    for (const QString& id : unreadable)
        lines << QStringLiteral("%1: its text can't be read").arg(library.book(id));
    if (!lines.isEmpty())
        throw CommandError(lines.join(u'\n'), ExitCode::incomplete);
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
    checkAllWereRead(library, report.unreadable);
}

// Runs with a function that writes a line to the file, which is there as a whole or not at all; to
// standard output when the name is null.
template <class Action>
void writeLines(const QString& name, Action action) {
    if (name.isNull()) {
        action([](const QByteArray& line) {
            const QByteArray whole = line + '\n';
            return std::fwrite(whole.constData(), std::size_t(whole.size()), 1, stdout) == 1 &&
                   !Interrupt::wasRequested();
        });
        std::fflush(stdout);
        Terminal::checkOutput();
        return;
    }
    errno = 0;
    QSaveFile file(name);
    bool isWritten = file.open(QIODevice::WriteOnly);
    if (isWritten) {
        action([&](const QByteArray& line) {
            isWritten = isWritten && file.write(line + '\n') == line.size() + 1;
            return isWritten && !Interrupt::wasRequested();
        });
    }
    if (Interrupt::wasRequested())
        return;
    if (!isWritten || !file.flush() || !file.commit()) {
        const Message cause = errno ? Message::ofLastSystemError() : Message(file.errorString());
        throw CommandError(Messages{Message::about(name, cause)});
    }
}

void runExport(const QString& folder, const QString& output, LibraryExport::Options options) {
    const LibraryLayout library = existingLibrary(folder);
    if (!options.books && !options.pages)
        options.books = options.pages = true;
    if (!options.address.isNull() && !options.address.endsWith(u'/'))
        options.address += u'/';
    Interrupt::watch();
    QStringList unreadable;
    writeLines(output, [&](const auto& writeLine) {
        unreadable = LibraryExport::write(library, options, writeLine);
    });
    if (Interrupt::wasRequested())
        throw CommandError(QStringLiteral("cancelled"), ExitCode::cancelled);
    checkAllWereRead(library, unreadable);
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

void addLibraryExport(CLI::App& library) {
    struct Line {
        QString folder;
        QString output;
        LibraryExport::Options options{false, false, {}};
    };
    const auto line = std::make_shared<Line>();
    auto* command = library.add_subcommand(
        "export", "Print all books and the texts of their pages, a line of JSON each");
    CommandArguments::addPath(*command, "OUT", line->folder, "The library's folder")
        ->type_name("")
        ->required();
    command->add_flag("--books", line->options.books, "Only the books");
    command->add_flag("--pages", line->options.pages, "Only the pages");
    CommandArguments::addText(*command, "--url", line->options.address,
                              "Address of the library, for addresses that are not relative to it")
        ->type_name("ADDRESS");
    CommandArguments::addPath(*command, "--output", line->output,
                              "Write to this file; replaces it at the end")
        ->type_name("FILE");
    command->callback([line] { runExport(line->folder, line->output, line->options); });
}
