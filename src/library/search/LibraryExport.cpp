#include "library/search/LibraryExport.h"

#include "library/BookResult.h"
#include "library/search/BookTexts.h"
#include "library/search/PageHit.h"
#include "output/BookLayout.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Unique among books and pages: no ID of a book has a slash.
QString idOf(const QString& book, int position) {
    return QStringLiteral("%1/%2").arg(book).arg(position);
}

QJsonObject asJson(const BookResult& result, const QString& address) {
    const BookFacts facts = result.allFacts();
    QJsonObject object = facts.asJson();
    object[QStringLiteral("type")] = QStringLiteral("book");
    object[QStringLiteral("id")] = result.id;
    object[QStringLiteral("pages")] = result.made->pages;
    object[QStringLiteral("address")] =
        address + LibraryLayout::bookPath(result.id) + u'/' + BookLayout::defaultPage;
    if (!facts.author.isEmpty())
        object[QStringLiteral("author")] = QJsonArray::fromStringList(facts.authors());
    if (!facts.subject.isEmpty())
        object[QStringLiteral("subject")] = QJsonArray::fromStringList(facts.subjects());
    if (facts.year() > 0)
        object[QStringLiteral("year")] = facts.year();
    return object;
}

} // namespace

QStringList LibraryExport::write(const LibraryLayout& library, const Options& options,
                                 const std::function<bool(const QByteArray&)>& write) {
    QStringList unreadable;
    bool goesOn = true;
    const auto put = [&](const QJsonObject& object) {
        goesOn = goesOn && write(QJsonDocument(object).toJson(QJsonDocument::Compact));
    };
    BookResult::forEach(library, [&](const BookResult& result) {
        if (!goesOn || !result.made)
            return;
        if (options.books)
            put(asJson(result, options.address));
        if (!options.pages)
            return;
        const BookTexts texts(library.book(result.id));
        const auto putPage = [&](int position, const QString& text) {
            const QString label = texts.label(position);
            put({{QStringLiteral("type"), QStringLiteral("page")},
                 {QStringLiteral("id"), idOf(result.id, position)},
                 {QStringLiteral("book"), result.id},
                 {QStringLiteral("position"), position},
                 {QStringLiteral("label"), label.isEmpty() ? QString::number(position) : label},
                 {QStringLiteral("text"), text},
                 {QStringLiteral("address"),
                  options.address + PageHit::addressOf(result.id, position)}});
        };
        if (!texts.isThere() || !texts.forEachPage(result.made->pages, putPage))
            unreadable << result.id;
    });
    return unreadable;
}
