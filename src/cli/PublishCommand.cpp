#include "cli/PublishCommand.h"

#include "base/NotificationCenter.h"
#include "base/PlatformException.h"
#include "cli/FileWatcher.h"
#include "cli/InputFile.h"
#include "cli/MergedInput.h"
#include "cli/OutputFolder.h"
#include "cli/PageSelection.h"
#include "cli/ProjectInput.h"
#include "cli/PublishReport.h"
#include "cli/PublishStamp.h"
#include "cli/PublishTiming.h"
#include "cli/TemplateOptions.h"
#include "cli/WebBookOptions.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "console/Terminal.h"
#include "output/BookName.h"
#include "output/FolveroOutput.h"
#include "output/FolveroOutputApp.h"
#include "output/HTMLConfigInfo.h"
#include "pages/ImportPDFOperation.h"
#include "system/Files.h"
#include "webbook/FolveroOutputSCORM.h"
#include "webbook/FolveroOutputWeb.h"
#include "webbook/SharedPlayer.h"

#include <QDir>
#include <QFileInfo>
#include <QTime>
#include <algorithm>
#include <cmath>
#include <map>
#include <system_error>
#include <thread>
#include <utility>

namespace {

using Type = PublishOptions::Type;

constexpr int importDPI = 144;
constexpr int interruptPollMilliseconds = 25;

// The file name of the book's page. Its extension marks where the name ends: an application's name
// may contain dots.
QString bookName(const PublishOptions& options) {
    QString name = options.name;
    if (name.isNull())
        name = options.type == Type::app || options.type == Type::scorm
                   ? QFileInfo(options.pdf).completeBaseName()
                   : QStringLiteral("index");
    for (const QString& ending :
         {QStringLiteral(".html"), QStringLiteral(".app"), QStringLiteral(".zip")}) {
        if (name.endsWith(ending))
            name.chop(ending.size());
    }
    while (options.name.isNull() && name.startsWith(u'.'))
        name.remove(0, 1);
    if (options.name.isNull() && !BookName::isSafe(name))
        name = QStringLiteral("book"); // the name of a PDF can be one that is of no use elsewhere
    if (!BookName::isSafe(name)) {
        throw CommandError(
            QStringLiteral("--name: \"%1\" can't be the name of a file on every system")
                .arg(options.name),
            ExitCode::usage);
    }
    return name + QStringLiteral(".html");
}

// What counts of a document is the file as it was when the stamp was compared with it.
OpenedPDF openDocument(const PublishOptions& options, const PublishStamp& stamp,
                       const MergedDocument* merged) {
    OpenedPDF opened = InputFile::openForDrawing(
        merged ? merged->path() : options.pdf, merged ? QByteArray() : options.password.password(),
        options.jobs);
    if (!merged)
        opened.document->setOpenedState(stamp.documentState(), stamp.documentDigest());
    if (opened.document->pageCount() == 0)
        throw CommandError(QStringLiteral("%1: the document has no pages").arg(options.pdf),
                           ExitCode::badDocument);
    return opened;
}

QString bookTitle(const PublishOptions& options, const Book& imported) {
    if (!options.title.isNull())
        return options.title;
    const QString& own = imported.documentTitle;
    return own.isEmpty() ? QFileInfo(options.pdf).completeBaseName() : own;
}

std::shared_ptr<ImportPDFOperation> newImport(const PublishOptions& options, OpenedPDF document,
                                              const QString& range) {
    auto operation = std::make_shared<ImportPDFOperation>(document.document->path(), range,
                                                          importDPI, options.quality);
    operation->setDocument(std::move(document));
    operation->setImportLinks(options.links);
    operation->setImportBookmarks(options.bookmarks);
    return operation;
}

// Where no thread can be started, Qt would wait for it for ever.
void checkThreads() {
    try {
        std::thread([] {}).join();
    } catch (const std::system_error& failure) {
        throw CommandError(Messages{Message(QStringLiteral("no further thread can be started (%1)"))
                                        .arg(Message::ofSystemError(failure.code().value()))});
    }
}

// Runs the import on its queue and waits for it; Ctrl-C cancels it.
void run(const std::shared_ptr<ImportPDFOperation>& operation, bool isQuiet) {
    ProgressDisplay progress(QStringLiteral("Drawing pages"), isQuiet);
    const auto subscription = NotificationCenter::defaultCenter().addObserver(
        QString::fromUtf16(ImportProgressInfoMSG), nullptr, [&](const Notification& message) {
            if (message.userInfo[QStringLiteral("type")] == QStringLiteral("geneatePage")) {
                progress.show(message.userInfo[QStringLiteral("pageIndex")].toInt(),
                              message.userInfo[QStringLiteral("totalPage")].toInt());
            }
        });
    checkThreads();
    OperationQueue queue;
    queue.addOperation(operation);
    while (!queue.waitFor(interruptPollMilliseconds)) {
        if (Interrupt::wasRequested())
            operation->cancel();
    }
}

// The result of a finished import; throws the reason if there are no pages.
const Book& importedBook(const ImportPDFOperation& operation) {
    if (operation.isCancelled())
        throw CommandError(QStringLiteral("cancelled; nothing was made"), ExitCode::cancelled);
    if (!operation.book().hasDrawnPages()) {
        const auto kind = operation.failureKind();
        throw CommandError(operation.failures(), kind ? exitCodeFor(*kind) : ExitCode::failed);
    }
    for (const Message& failure : operation.failures())
        Terminal::report(QStringLiteral("folvero: %1").arg(failure.english()));
    return operation.book();
}

void setPageSize(QSize size, FlashTemplate& tmpl) {
    tmpl.setPropertyValue(QStringLiteral("pageWidth"), QString::number(size.width()));
    tmpl.setPropertyValue(QStringLiteral("pageHeight"), QString::number(size.height()));
}

struct Publisher {
    std::unique_ptr<FolveroOutput> output;
    FolveroOutputWeb* web = nullptr; // the output, if it makes a web book or a course
};

// Without pages, which are set later.
Publisher makePublisher(const PublishOptions& options, const std::shared_ptr<FlashTemplate>& tmpl,
                        const QString& folder) {
    const QString name = bookName(options);
    if (options.type == Type::app)
        return {std::make_unique<FolveroOutputApp>(nullptr, tmpl, folder, name)};
    if (options.type == Type::html)
        return {std::make_unique<FolveroOutput>(nullptr, tmpl, folder, name)};
    if (options.type == Type::scorm) {
        auto course = std::make_unique<FolveroOutputSCORM>(nullptr, tmpl, folder, name);
        auto* web = course.get();
        return {std::move(course), web};
    }
    auto output = std::make_unique<FolveroOutputWeb>(nullptr, tmpl, folder, name);
    output->setSingleFile(options.singleFile);
    output->setAddress(WebBookOptions::address(options));
    output->setWritesIIIF(options.iiif);
    if (!options.sharedPlayer.isNull())
        output->setSharedPlayer(
            std::make_shared<SharedPlayer>(options.sharedPlayer, folder, *tmpl));
    auto* web = output.get();
    return {std::move(output), web};
}

// A user's own page must not be lost because a book has the same name.
void failOnForeignFiles(const QStringList& foreignFiles) {
    if (foreignFiles.isEmpty())
        return;
    constexpr qsizetype maxShown = 5;
    QStringList lines;
    for (const QString& file : foreignFiles.first(std::min(foreignFiles.size(), maxShown)))
        lines << QStringLiteral("%1: is not of a book, and would be overwritten").arg(file);
    if (foreignFiles.size() > maxShown)
        lines << QStringLiteral("and %1 more").arg(foreignFiles.size() - maxShown);
    throw CommandError(
        lines.join(u'\n') +
        QStringLiteral("\nChoose another folder or --name, or overwrite with --force"));
}

void writeBook(FolveroOutput& output, const QString& title, const OutputFolder& folder) {
    auto html = std::make_shared<HTMLConfigInfo>();
    html->setHTMLTitle(title.toHtmlEscaped());
    output.setHTMLConfig(html);
    output.setCancelled(Interrupt::wasRequested);
    // Without their folder publishers do nothing, or create a new one.
    folder.checkPresence();
    output.ouputTheBook();
    if (output.wasCancelled())
        throw CommandError(QStringLiteral("cancelled; nothing was made"), ExitCode::cancelled);
    folder.checkPresence();
    if (!output.publishErrors().isEmpty())
        throw CommandError(output.publishMessages());
    if (!QFileInfo::exists(output.outputFileName()))
        throw CommandError(
            QStringLiteral("%1: is not there; no book was made").arg(output.outputFileName()),
            ExitCode::tryAgain);
}

// Prints the summary of a web book.
void reportWebBook(const FolveroOutputWeb& output, const PublishOptions& options, MadeBook& made) {
    const bool isCourse = options.type == Type::scorm;
    if (!isCourse)
        WebBookOptions::printLeftoverFiles(options, output);
    for (const auto& [page, reason] : output.degradedPages()) {
        made.degradedPages[page] = reason.english();
        Terminal::report(QStringLiteral("folvero: page %1 has its picture only: %2")
                             .arg(page)
                             .arg(reason.english()));
    }
    if (output.lacksText())
        Terminal::report(QStringLiteral("folvero: %1: the document forbids copying its text, so "
                                        "the book has no text to search "
                                        "and to select; --allow-text includes it")
                             .arg(options.pdf));
    if (options.quiet)
        return;
    constexpr double megabyte = 1'000'000;
    const auto* contents =
        options.singleFile ? "text, each in one picture" : "text, thumbnails and larger pictures";
    Terminal::report(QStringLiteral("Pages: %1 MB with %2")
                         .arg(double(output.pageBytes()) / megabyte, 0, 'f', 1)
                         .arg(QLatin1String(contents)));
    if (!isCourse)
        WebBookOptions::printEmbedSnippet(output);
}

MadeBook resultOf(const FolveroOutput& output, const Book& book) {
    MadeBook made;
    made.file = output.outputFileName();
    made.counts = output.fileCounts();
    made.pages = int(book.pageSource->pages().size());
    for (const auto& page : book.converter->failedPages())
        made.failedPages[page.page] = page.reason.english();
    for (const auto& [page, reason] : book.converter->damagedPages())
        made.damagedPages[page] = reason.english();
    return made;
}

QJsonObject metadataOf(const FolveroOutputWeb& output) {
    QJsonObject object = output.metadata().facts.asJson();
    if (const QString& keywords = output.metadata().keywords; !keywords.isEmpty())
        object[QStringLiteral("keywords")] = keywords;
    return object;
}

// What is wrong although the book was made; none when nothing is.
std::optional<CommandError> troubleWith(const MadeBook& made) {
    QStringList lines;
    const auto list = [&lines](const std::map<int, QString>& pages, const QString& what) {
        if (!pages.empty())
            lines << QStringLiteral("the book was made, but %1 of its pages %2:")
                         .arg(QString::number(pages.size()), what);
        for (const auto& [page, reason] : pages)
            lines << QStringLiteral("  page %1: %2").arg(page).arg(reason);
    };
    list(made.failedPages, QStringLiteral("could not be drawn"));
    list(made.damagedPages, QStringLiteral("could not be drawn completely"));
    if (!made.reportError.isNull())
        lines << QStringLiteral("the book was made, but not its report: %1")
                     .arg(made.reportError.english());
    if (lines.isEmpty())
        return {};
    return CommandError(lines.join(u'\n'),
                        made.reportError.isNull() ? made.code() : ExitCode::tryAgain);
}

// Pages that a preview leaves out need no more than their page file.
FilesOfPages filesFor(Type type, const std::optional<std::vector<PageRun>>& openPages) {
    if (type != Type::web && type != Type::scorm)
        return classicFiles;
    if (!openPages)
        return webFiles;
    return [open = *openPages](int page) {
        return isWithin(open, page) ? PageFiles::web : PageFiles::classic;
    };
}

MadeBook makeAnew(const PublishOptions& options, const PublishStamp& stamp, PublishTiming& timing) {
    const auto merged = MergedInput::of(options);
    OpenedPDF opened = openDocument(options, stamp, merged.get());
    const auto document = opened.document;
    const auto tmpl = TemplateOptions::prepared(options, document->isRightToLeft());
    PageSelection pages = selectPages(options.pages, document->pageCount());
    for (const QString& remark : pages.remarks)
        Terminal::report(QStringLiteral("folvero: %1: %2").arg(options.pdf, remark));
    auto openPages = WebBookOptions::openPages(options, pages.range, document->pageCount());
    if (const auto split = SplitPDF::of(document, options.spreads, tmpl->isRightToLeft())) {
        opened.document = split;
        pages.range = split->range(pages.range);
        if (openPages)
            openPages = split->runs(*openPages);
    }
    // Until here a signal ends the program at once, unless there is a report to write: there is
    // nothing to clean up.
    Interrupt::watch();
    OutputFolder folder(options.outputFolder);
    const auto [output, web] = makePublisher(options, tmpl, folder.path());
    if (!options.force)
        failOnForeignFiles(output->foreignFiles());
    timing.opened();

    const auto operation = newImport(options, std::move(opened), pages.range);
    operation->setFilesOf(filesFor(options.type, openPages));
    if (!options.force)
        operation->setTakeEarlierPage(stamp.takeEarlierPage());
    run(operation, options.quiet);
    const Book& book = importedBook(*operation);
    timing.imported(book);

    setPageSize(book.pageSize, *tmpl);
    const QString title = bookTitle(options, book);
    output->setBook(book);
    if (web) {
        BookFacts facts = options.facts;
        facts.title = title;
        web->setFacts(facts);
        web->setOpenPages(openPages);
        web->setIncludesForbiddenText(options.allowText);
    }
    auto earlier = stamp.removed();
    writeBook(*output, title, folder);
    earlier.keep();
    folder.keep();
    timing.published();
    if (!options.timingFile.isEmpty())
        timing.write(options.timingFile);

    MadeBook made = resultOf(*output, book);
    if (const Message reason = output->documentLeftOut(); !reason.isNull())
        Terminal::report(QStringLiteral("folvero: %1: readers can't download the document: %2")
                             .arg(options.pdf, reason.english()));
    if (web) {
        reportWebBook(*web, options, made);
        made.metadata = metadataOf(*web);
        made.cover = web->metadata().cover;
    }
    if (made.code() == ExitCode::ok && made.degradedPages.empty() &&
        operation->failures().isEmpty())
        stamp.write();
    folder.checkPresence();
    return made;
}

// The book that is made for the options, or has been made already.
MadeBook makeBook(const PublishOptions& options, PublishTiming& timing) {
    WebBookOptions::check(options);
    // Reports an invalid name or setting before an hour of drawing.
    const auto asked = TemplateOptions::prepared(options, false);
    const QString folder = QDir::cleanPath(QFileInfo(options.outputFolder).absoluteFilePath());
    const auto [output, web] = makePublisher(options, asked, folder);
    if (const Message missing = output->missingPart(); !missing.isNull())
        throw CommandError(Messages{missing});
    const QString file = output->outputFileName();
    const PublishStamp stamp(options, *asked, file);
    const SharedPlayer* player = web ? web->sharedPlayer() : nullptr;
    if (!stamp.isUpToDate() || options.force || (player && !player->isThere()))
        return makeAnew(options, stamp, timing);
    MadeBook made;
    made.file = file;
    made.isUpToDate = true;
    return made;
}

void print(const CommandError& error) {
    Terminal::report(QStringLiteral("folvero: %1").arg(error.message()));
}

// Makes the book and writes the report, also of a failure.
MadeBook makeReported(const PublishOptions& options) {
    PublishReport report(options);
    PublishTiming timing;
    if (!options.reportFile.isNull())
        Interrupt::watch();
    try {
        const PublishOptions whole = ProjectInput::resolved(options);
        report.describe(whole);
        MadeBook made = makeBook(whole, timing);
        made.reportError = report.writeMade(made, timing);
        return made;
    } catch (const std::exception& failure) {
        const auto error = CommandError::from(failure);
        const Message trouble = report.writeFailed(error, timing);
        if (!trouble.isNull())
            print(CommandError(trouble.english()));
        throw error;
    }
}

// Republishes and prints one summary line; errors are reported, the watch goes on.
void republish(PublishOptions options) {
    options.quiet = true;
    QString trouble;
    try {
        const MadeBook made = makeReported(options);
        const auto& counts = made.counts;
        const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
        if (made.isUpToDate) {
            Terminal::print(QStringLiteral("%1 %2: up to date").arg(time, made.file));
            return;
        }
        QString line = QStringLiteral("%1 %2: %3 files written, %4 unchanged")
                           .arg(time, made.file, QString::number(counts.written),
                                QString::number(counts.unchanged));
        if (counts.removed > 0)
            line += QStringLiteral(", %1 removed").arg(counts.removed);
        Terminal::print(line);
        if (const auto incomplete = troubleWith(made))
            print(*incomplete);
        return;
    } catch (const std::exception& failure) {
        trouble = CommandError::from(failure).message();
    }
    if (!Interrupt::wasRequested())
        Terminal::report(
            QStringLiteral("folvero: %1\nThe book stays as it was until the next change")
                .arg(trouble));
}

void watchAndRepublish(const PublishOptions& options, FileWatcher& files) {
    Terminal::report(QStringLiteral("Waiting for changes; Ctrl-C ends it"));
    while (files.waitForChange(Interrupt::wasRequested)) {
        files.takeSnapshot();
        republish(options);
    }
}

} // namespace

void runPublish(const PublishOptions& options) {
    FileWatcher files(options.watch ? ProjectInput::filesOf(options) << options.settingsFile
                                    : QStringList());
    files.takeSnapshot();
    const MadeBook made = makeReported(options);
    Terminal::print(made.file);
    Terminal::checkOutput();
    if (made.isUpToDate && !options.quiet)
        Terminal::report(QStringLiteral("up to date"));
    const auto trouble = troubleWith(made);
    if (trouble && !options.watch)
        throw *trouble;
    if (trouble)
        print(*trouble);
    if (options.watch)
        watchAndRepublish(options, files);
}
