#include "library/catalogue/Catalogue.h"

#include "base/PlatformException.h"
#include "library/LibraryLayout.h"
#include "library/catalogue/BookPages.h"
#include "library/catalogue/BrowsePages.h"
#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Feeds.h"
#include "library/catalogue/HomePage.h"
#include "library/catalogue/SearchIndex.h"
#include "library/catalogue/SearchPage.h"
#include "library/catalogue/ShelfPages.h"
#include "library/catalogue/SiteFiles.h"
#include "system/Bundle.h"
#include "system/Files.h"

#include <QDir>
#include <vector>

namespace {

using Kind = BookGroups::Kind;

void putResource(SiteFiles& files, const QByteArray& path) {
    const QString name = Files::lastPathComponent(QString::fromUtf8(path));
    const QString source = Bundle::pathForResource(name, {}, QStringLiteral("AppFiles/Catalogue"));
    Message cause;
    const QByteArray content = Files::contents(source, &cause);
    if (content.isNull())
        throw PlatformException(ErrorKind::publishing, Message::about(name, cause));
    files.put(path, content);
}

void putResources(SiteFiles& files) {
    for (const QByteArray& path :
         {CatalogueLayout::style, CatalogueLayout::script, CatalogueLayout::icon})
        putResource(files, path);
}

// Before anything is written, what would stop it in the middle.
void claimAll(const SiteFiles& files, const LibraryLayout& library, bool isKnown, bool hasFeeds) {
    files.claim(CatalogueLayout::home);
    if (hasFeeds)
        files.claim(CatalogueLayout::sitemap);
    const QDir folder(library.at(QString::fromUtf8(CatalogueLayout::folder)));
    if (!isKnown && folder.exists() && !folder.isEmpty())
        files.claim(CatalogueLayout::folder);
}

} // namespace

Catalogue::Outcome Catalogue::make(const LibraryLayout& library, const CatalogueSettings& settings,
                                   const Options& options, const Callbacks& callbacks) {
    const bool hasFeeds = !settings.address.isEmpty();
    const bool hasRepository = hasFeeds && !settings.contact.isEmpty();
    const CatalogueTexts texts(settings.language);
    SiteFiles files(library, options.force, options.patience, callbacks.beforeFile);
    claimAll(files, library, files.hasEarlier(), hasFeeds);
    if (const Message failure = settings.remember(library); !failure.isNull())
        throw PlatformException(ErrorKind::publishing, failure);

    const auto books = CatalogueBooks::of(library);
    const BookGroups authors(Kind::author, books, settings.language);
    const BookGroups subjects(Kind::subject, books, settings.language);
    const BookGroups languages(Kind::language, books, settings.language);
    const BookGroups years(Kind::year, books, settings.language);
    const auto newest = BookOrder::newest(books);
    const auto titles = BookOrder::byTitle(books, newest, settings.language);
    QHash<QByteArray, QByteArray> frames;
    std::vector<QByteArray> cards(std::size_t(books.count()));
    const CatalogueSite site{settings, texts,  books,  authors, subjects, languages,
                             years,    titles, newest, files,   frames,   cards};
    // What others lead to comes first, the page that the library opens with last.
    std::vector<std::function<void()>> parts{[&] { putResources(files); },
                                             [&] { BookPages::write(site); },
                                             [&] { SearchIndex::write(site); },
                                             [&] { SearchPage::write(site); },
                                             [&] { ShelfPages::writeGroups(site, authors); },
                                             [&] { ShelfPages::writeGroups(site, subjects); },
                                             [&] { ShelfPages::writeGroups(site, languages); },
                                             [&] { ShelfPages::writeGroups(site, years); },
                                             [&] { BrowsePages::write(site); },
                                             [&] { ShelfPages::writeOrders(site); }};
    if (hasFeeds) {
        parts.insert(parts.end(),
                     {[&] { Feeds::writeOPDS(site); }, [&] { Feeds::writeNews(site); },
                      [&] { Feeds::writeCollection(site); }, [&] { Feeds::writeSitemap(site); }});
    }
    if (hasRepository)
        parts.emplace_back(
            [&] { Feeds::writeRepository(site, library.stateAt(QStringLiteral("oai.xml.part"))); });
    parts.emplace_back([&] {
        files.flush();
        HomePage::write(site);
    });
    for (std::size_t part = 0; part < parts.size(); ++part) {
        callbacks.progress(int(part), int(parts.size()));
        parts[part]();
    }
    files.finish();
    callbacks.progress(int(parts.size()), int(parts.size()));
    return {books.count(), files.count(), files.written(), files.removed(), files.bytes()};
}
