#include "cli/LibraryCatalogue.h"

#include "cli/LibraryOptions.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "console/Terminal.h"
#include "library/LibraryLayout.h"
#include "library/catalogue/Catalogue.h"
#include "library/catalogue/CatalogueLayout.h"
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

QString counted(int count, const QString& one, const QString& many) {
    return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? one : many);
}

void print(const Catalogue::Outcome& outcome, const LibraryLayout& library) {
    Terminal::print(
        QStringLiteral("%1: %2, %3 (%4 written, %5 removed)")
            .arg(library.at(QString::fromUtf8(CatalogueLayout::home)),
                 counted(outcome.books, QStringLiteral("book"), QStringLiteral("books")),
                 counted(outcome.files, QStringLiteral("file"), QStringLiteral("files")))
            .arg(outcome.written)
            .arg(outcome.removed));
    Terminal::checkOutput();
}

void reportWhatIsLeftOut(const CatalogueSettings& settings) {
    if (settings.address.isEmpty())
        Terminal::report(QStringLiteral("folvero: without --url there are no feeds, sitemap, OPDS, "
                                        "IIIF collection and OAI-PMH file"));
    else if (settings.contact.isEmpty())
        Terminal::report(QStringLiteral("folvero: without --contact there is no OAI-PMH file"));
}

} // namespace

CatalogueSettings LibraryCatalogue::settings(const LibraryCatalogueOptions& options,
                                             const LibraryLayout& library) {
    const CatalogueSettings given{options.title, options.language, addressFrom(options.address),
                                  options.contact, options.gateway};
    checkLanguage(options.language);
    return CatalogueSettings::completed(given, library);
}

void LibraryCatalogue::make(const LibraryLayout& library, const CatalogueSettings& settings,
                            const How& how) {
    ProgressDisplay display(QStringLiteral("Making the catalogue"), how.quiet);
    const auto throwIfInterrupted = [] {
        if (Interrupt::wasRequested())
            throw CommandError(QStringLiteral("cancelled; the next run completes the catalogue"),
                               ExitCode::cancelled);
    };
    const auto showProgress = [&](int done, int total) { display.show(done, total); };
    const auto outcome = [&] {
        try {
            return Catalogue::make(library, settings, {how.force, how.patience},
                                   {showProgress, throwIfInterrupted});
        } catch (const PlatformException& failure) {
            throw CommandError(failure);
        }
    }();
    print(outcome, library);
}

void LibraryCatalogue::run(const LibraryCatalogueOptions& options) {
    const LibraryLayout library(options.folder);
    if (!QFileInfo(library.stateAt({})).isDir())
        throw CommandError(QStringLiteral("%1: is no library, since it has no folder %2")
                               .arg(options.folder, LibraryLayout::state));
    const CatalogueSettings complete = settings(options, library);
    Interrupt::watch();
    make(library, complete, {.force = options.force, .quiet = options.quiet});
    reportWhatIsLeftOut(complete);
}
