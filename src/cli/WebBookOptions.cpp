#include "cli/WebBookOptions.h"

#include "cli/PageSelection.h"
#include "cli/PublishOptions.h"
#include "console/CommandError.h"
#include "console/Terminal.h"
#include "output/BookLayout.h"
#include "output/EmbedSnippet.h"
#include "system/Files.h"
#include "webbook/FolveroOutputWeb.h"

#include <QFileInfo>
#include <algorithm>
#include <utility>

namespace {

bool overlap(const std::vector<PageRun>& some, const std::vector<PageRun>& others) {
    return std::any_of(some.begin(), some.end(), [&others](const PageRun& run) {
        return std::any_of(others.begin(), others.end(), [&run](const PageRun& other) {
            return run.first <= other.last && other.first <= run.last;
        });
    });
}

PageSelection selectPreview(const QString& pages, int pageCount) {
    try {
        return selectPages(pages, pageCount);
    } catch (const CommandError& error) {
        throw CommandError(QStringLiteral("--preview-pages: %1").arg(error.message()),
                           error.code());
    }
}

} // namespace

void WebBookOptions::check(const PublishOptions& options) {
    if (!options.url.isNull() && !address(options)) {
        throw CommandError(
            QStringLiteral("--url: \"%1\" must be the address of a folder or page, as "
                           "https://example.org/book/, without user, ? and #")
                .arg(options.url),
            ExitCode::usage);
    }
    const QString& language = options.facts.language;
    if (!language.isEmpty() && !BookFacts::isLanguage(language)) {
        throw CommandError(
            QStringLiteral("--language: \"%1\" must be a code such as de or pt-BR").arg(language),
            ExitCode::usage);
    }
    const BookFacts& facts = options.facts;
    const std::pair<const char*, bool> ofFolders[] = {
        {"--single-file", options.singleFile},
        {"--url", !options.url.isNull()},
        {"--iiif", options.iiif},
        {"--shared-player", !options.sharedPlayer.isNull()}};
    const std::pair<const char*, bool> ofCoursesToo[] = {
        {"--allow-text", options.allowText},
        {"--preview-pages", !options.previewPages.isNull()},
        {"--author", !facts.author.isNull()},
        {"--subject", !facts.subject.isNull()},
        {"--language", !facts.language.isNull()},
        {"--date", !facts.date.isNull()},
        {"--rights", !facts.rights.isNull()}};
    const auto forbid = [](const auto& used) {
        for (const auto& [option, isUsed] : used) {
            if (isUsed)
                throw CommandError(QStringLiteral("%1 is for web books only; leave out --type")
                                       .arg(QLatin1String(option)),
                                   ExitCode::usage);
        }
    };
    using Type = PublishOptions::Type;
    if (options.type != Type::web)
        forbid(ofFolders);
    if (options.type != Type::web && options.type != Type::scorm)
        forbid(ofCoursesToo);
    if (options.singleFile && !options.sharedPlayer.isNull())
        throw CommandError(
            QStringLiteral("--shared-player: a book in a single file has its player in it"),
            ExitCode::usage);
    if (options.iiif && (options.url.isNull() || options.singleFile))
        throw CommandError(
            QStringLiteral("--iiif needs --url, and a book that is a folder with pictures"),
            ExitCode::usage);
}

std::optional<BookAddress> WebBookOptions::address(const PublishOptions& options) {
    return BookAddress::from(options.url);
}

std::optional<std::vector<PageRun>> WebBookOptions::openPages(const PublishOptions& options,
                                                              const QString& range, int pageCount) {
    if (options.previewPages.isNull())
        return {};
    const PageSelection selection = selectPreview(options.previewPages, pageCount);
    for (const QString& remark : selection.remarks)
        Terminal::report(QStringLiteral("folvero: --preview-pages: %1").arg(remark));
    auto open = pageRunsFromExpression(selection.range, pageCount);
    if (!overlap(open, pageRunsFromExpression(range, pageCount))) {
        throw CommandError(QStringLiteral("--preview-pages %1: the book has none of these pages, "
                                          "it has %2")
                               .arg(selection.range, range));
    }
    return open;
}

void WebBookOptions::printLeftoverFiles(const PublishOptions& options,
                                        const FolveroOutputWeb& output) {
    const QString& folder = options.outputFolder;
    if (options.singleFile) {
        if (QFileInfo::exists(Files::join(folder, BookLayout::configuration))) {
            Terminal::report(
                QStringLiteral("folvero: %1 still holds the files of an earlier book; "
                               "of the new one it has %2 alone")
                    .arg(folder, Files::lastPathComponent(output.outputHTMLFileName())));
        }
    } else if (!output.worksOffline()) {
        Terminal::report(QStringLiteral("folvero: %1 or %2 in %3 is not of a book; it was left as "
                                        "it is, and readers can't keep this book to read it "
                                        "without a connection")
                             .arg(BookLayout::serviceWorker, BookLayout::manifest, folder));
    }
}

void WebBookOptions::printEmbedSnippet(const FolveroOutputWeb& output) {
    const QString address = output.metadata().address;
    const QString html =
        EmbedSnippet::html(output.title(), output.book().pageSize,
                           Files::lastPathComponent(output.outputHTMLFileName()), address);
    const QString where =
        address.isEmpty() ? QStringLiteral(", with the book's\naddress on the web in place of %1")
                                .arg(EmbedSnippet::placeholder)
                          : QString();
    Terminal::report(QStringLiteral("To show the book inside a page of yours, put this line into "
                                    "that page%1:\n%2")
                         .arg(where, html));
}
