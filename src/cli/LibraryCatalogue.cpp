#include "cli/LibraryCatalogue.h"

#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "console/Terminal.h"
#include "library/LibraryLayout.h"
#include "library/catalogue/Catalogue.h"
#include "library/catalogue/CatalogueTexts.h"
#include "webbook/BookAddress.h"

#include <QFileInfo>

namespace {

// Ends in a slash; an empty address takes back an earlier one.
QString addressFrom(const QString& text) {
    if (text.isEmpty())
        return text;
    const auto address = BookAddress::from(text);
    if (!address)
        throw CommandError(
            QStringLiteral("--url: \"%1\" is no address of a library; it begins with "
                           "https:// or http:// and has no ? or #")
                .arg(text),
            ExitCode::usage);
    return address->file({});
}

void checkLanguage(const QString& language) {
    const QStringList languages = CatalogueTexts::languages();
    if (!language.isEmpty() && !languages.contains(language))
        throw CommandError(QStringLiteral("--language: there are no texts in \"%1\", but in %2")
                               .arg(language, languages.join(QStringLiteral(", "))),
                           ExitCode::usage);
}

CatalogueSettings settingsFrom(const LibraryCatalogueOptions& options,
                               const LibraryLayout& library) {
    const CatalogueSettings given{options.title, options.language, addressFrom(options.address),
                                  options.contact, options.gateway};
    checkLanguage(options.language);
    return CatalogueSettings::completed(given, library);
}

QString counted(int count, const QString& one, const QString& many) {
    return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? one : many);
}

void report(const Catalogue::Outcome& outcome, const QString& folder) {
    Terminal::print(
        QStringLiteral("%1: %2, %3 (%4 written, %5 removed)")
            .arg(folder, counted(outcome.books, QStringLiteral("book"), QStringLiteral("books")),
                 counted(outcome.files, QStringLiteral("file"), QStringLiteral("files")))
            .arg(outcome.written)
            .arg(outcome.removed));
    if (!outcome.hasFeeds)
        Terminal::report(QStringLiteral("folvero: without --url there are no feeds, sitemap, OPDS, "
                                        "IIIF collection and OAI-PMH file"));
    else if (!outcome.hasRepository)
        Terminal::report(QStringLiteral("folvero: without --contact there is no OAI-PMH file"));
}

} // namespace

void runLibraryCatalogue(const LibraryCatalogueOptions& options) {
    const LibraryLayout library(options.folder);
    if (!QFileInfo(library.stateAt({})).isDir())
        throw CommandError(QStringLiteral("%1: is no library, since it has no folder %2")
                               .arg(options.folder, LibraryLayout::state));
    const CatalogueSettings settings = settingsFrom(options, library);
    Interrupt::watch();
    ProgressDisplay display(QStringLiteral("Making the catalogue"), options.quiet);
    const auto outcome = [&] {
        try {
            return Catalogue::make(
                library, settings, options.force,
                {[&](int done, int total) { display.show(done, total); },
                 [] {
                     if (Interrupt::wasRequested())
                         throw CommandError(QStringLiteral("cancelled; the next run completes the "
                                                           "catalogue"),
                                            ExitCode::cancelled);
                 }});
        } catch (const PlatformException& failure) {
            throw CommandError(failure);
        }
    }();
    report(outcome, options.folder);
    Terminal::checkOutput();
}
