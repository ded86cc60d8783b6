#include "library/LibraryLayout.h"
#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Feeds.h"
#include "library/catalogue/Markup.h"
#include "library/catalogue/SiteFiles.h"
#include "system/MediaType.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

namespace {

constexpr std::size_t booksAPart = 1000;

QJsonObject label(const QString& text, const QString& language) {
    return {{language.isEmpty() ? QStringLiteral("none") : language, QJsonArray{text}}};
}

QJsonObject collection(const QString& address, const QJsonObject& name, const QJsonArray& items) {
    return {{QStringLiteral("id"), address},
            {QStringLiteral("type"), QStringLiteral("Collection")},
            {QStringLiteral("label"), name},
            {QStringLiteral("items"), items}};
}

QJsonObject manifest(const CatalogueSite& site, const CatalogueBook& book) {
    const QByteArray address = site.bookAddress(book);
    QJsonObject object{
        {QStringLiteral("id"), QString::fromUtf8(address + CatalogueBook::manifest.toUtf8())},
        {QStringLiteral("type"), QStringLiteral("Manifest")},
        {QStringLiteral("label"), label(book.facts.title, book.facts.language)}};
    if (!book.cover.isEmpty())
        object[QStringLiteral("thumbnail")] = QJsonArray{QJsonObject{
            {QStringLiteral("id"), QString::fromUtf8(address + Markup::path(book.cover))},
            {QStringLiteral("type"), QStringLiteral("Image")},
            {QStringLiteral("format"), QString::fromLatin1(MediaType::ofFile(book.cover))}}};
    return object;
}

void put(const CatalogueSite& site, const QByteArray& path, QJsonObject object) {
    object[QStringLiteral("@context")] =
        QStringLiteral("http://iiif.io/api/presentation/3/context.json");
    site.files.put(path, QJsonDocument(object).toJson());
}

} // namespace

void Feeds::writeCollection(const CatalogueSite& site) {
    BookOrder::Numbers books = site.titles;
    std::erase_if(books, [&](auto number) { return !site.books.at(int(number)).hasManifest; });
    if (books.empty())
        return;
    const QJsonObject name = label(site.settings.title, site.settings.language);
    const QString address = QString::fromUtf8(site.address(CatalogueLayout::iiif));
    QJsonArray parts;
    QJsonArray items;
    const auto endPart = [&] {
        const QByteArray path = CatalogueLayout::part("iiif/part", int(parts.size()) + 1, ".json");
        const QJsonObject part = collection(
            QString::fromUtf8(site.address(path)),
            label(
                items.first()[QStringLiteral("label")].toObject().begin()->toArray()[0].toString() +
                    QStringLiteral(" \u2026"),
                {}),
            items);
        put(site, path, part);
        QJsonObject reference = part;
        reference.remove(QStringLiteral("items"));
        parts << reference;
        items = {};
    };
    const bool isNested = books.size() > booksAPart;
    for (const std::uint32_t number : books) {
        items << manifest(site, site.books.at(int(number)));
        if (isNested && items.size() == qsizetype(booksAPart))
            endPart();
    }
    if (isNested && !items.isEmpty())
        endPart();
    put(site, CatalogueLayout::iiif, collection(address, name, isNested ? parts : items));
}
