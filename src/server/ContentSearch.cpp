#include "server/ContentSearch.h"

#include "output/BookLayout.h"
#include "system/Files.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QUrl>
#include <algorithm>
#include <cmath>

namespace {

constexpr int pagesOfAnswer = 50; // of the book
constexpr int mostAnswers = 1000;
constexpr qsizetype contextLetters = 40;
constexpr qint64 largestManifest = qint64(64) << 20;

QJsonObject manifestIn(const QString& bookFolder) {
    const QString file = Files::join(bookFolder, BookLayout::iiifManifest);
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > largestManifest)
        return {};
    return QJsonDocument::fromJson(Files::contents(file)).object();
}

QString addressOf(const QString& book, const ServerRequest& request) {
    return QStringLiteral("http://%1/%2")
        .arg(QString::fromLatin1(request.host), LibraryLayout::bookPath(book));
}

QJsonObject annotation(const QString& id, const char* motivation, const QJsonValue& target) {
    return {{QStringLiteral("id"), id},
            {QStringLiteral("type"), QStringLiteral("Annotation")},
            {QStringLiteral("motivation"), QLatin1String(motivation)},
            {QStringLiteral("target"), target}};
}

QString fragment(const QRectF& box, const QSizeF& page, const QSizeF& canvas) {
    const double across = canvas.isEmpty() || page.isEmpty() ? 1 : canvas.width() / page.width();
    const double down = canvas.isEmpty() || page.isEmpty() ? 1 : canvas.height() / page.height();
    const auto left = std::lround(box.left() * across);
    const auto top = std::lround(box.top() * down);
    const auto width = std::lround(box.right() * across) - left;
    const auto height = std::lround(box.bottom() * down) - top;
    return QStringLiteral("#xywh=%1,%2,%3,%4")
        .arg(std::max(left, 0L))
        .arg(std::max(top, 0L))
        .arg(std::max(width, 1L))
        .arg(std::max(height, 1L));
}

} // namespace

ContentSearch::ContentSearch(const LibraryLayout& library, const QString& book,
                             const ServerRequest& request)
    : iBook(book),
      iTexts(library.book(book)),
      iCanvases(manifestIn(library.book(book))[QStringLiteral("items")].toArray()),
      iAddress(addressOf(book, request)),
      iTyped(QString::fromUtf8(request.parameters.value("q"))),
      iPage(std::clamp(request.parameters.value("page").toInt(), 1, mostAnswers)) {
    for (const char* other : {"motivation", "date", "user"}) {
        if (request.parameters.contains(other))
            iIgnored.append(QLatin1String(other));
    }
}

// Not in the file: on another server there is no search.
std::optional<QJsonObject> ContentSearch::manifest(const LibraryLayout& library,
                                                   const QString& book,
                                                   const ServerRequest& request) {
    QJsonObject manifest = manifestIn(library.book(book));
    if (manifest.isEmpty())
        return {};
    const QString service = QStringLiteral("service");
    QJsonArray services = manifest[service].toArray();
    services.append(
        QJsonObject{{QStringLiteral("id"), addressOf(book, request) + QStringLiteral("/search")},
                    {QStringLiteral("type"), QStringLiteral("SearchService2")}});
    manifest[service] = services;
    return manifest;
}

LibrarySearch::Options ContentSearch::options() const {
    LibrarySearch::Options options;
    options.book = iBook;
    options.most = pagesOfAnswer;
    options.first = std::size_t(iPage - 1) * pagesOfAnswer;
    return options;
}

QJsonObject ContentSearch::page(const SearchQuery& query, const LibrarySearch::Answer& found) {
    QJsonArray hits;
    QJsonArray contexts;
    for (const auto& hit : found.hits)
        add(query, hit.position, hits, contexts);
    QJsonObject page{
        {QStringLiteral("@context"), QStringLiteral("http://iiif.io/api/search/2/context.json")},
        {QStringLiteral("id"), addressOfPage(iPage)},
        {QStringLiteral("type"), QStringLiteral("AnnotationPage")},
        {QStringLiteral("items"), hits}};
    if (!contexts.isEmpty())
        page[QStringLiteral("annotations")] =
            QJsonArray{QJsonObject{{QStringLiteral("type"), QStringLiteral("AnnotationPage")},
                                   {QStringLiteral("items"), contexts}}};
    if (!iIgnored.isEmpty())
        page[QStringLiteral("ignored")] = iIgnored;
    const auto reference = [this](int number) {
        return QJsonObject{{QStringLiteral("id"), addressOfPage(number)},
                           {QStringLiteral("type"), QStringLiteral("AnnotationPage")}};
    };
    if (iPage > 1)
        page[QStringLiteral("prev")] = reference(iPage - 1);
    if (iPage < mostAnswers && found.count > qint64(iPage) * pagesOfAnswer)
        page[QStringLiteral("next")] = reference(iPage + 1);
    return page;
}

ContentSearch::Canvas ContentSearch::canvas(int position) const {
    const QJsonObject known = iCanvases.at(position - 1).toObject();
    const QString id = known[QStringLiteral("id")].toString();
    if (id.isEmpty())
        return {iAddress + QStringLiteral("/canvas/%1").arg(position), {}};
    return {id, QSizeF(known[QStringLiteral("width")].toDouble(),
                       known[QStringLiteral("height")].toDouble())};
}

void ContentSearch::add(const SearchQuery& query, int position, QJsonArray& hits,
                        QJsonArray& contexts) const {
    const auto words = iTexts.page(position);
    if (!words)
        return;
    const QString& text = words->text();
    const Canvas place = canvas(position);
    for (const auto& [from, to] : query.hitsIn(text)) {
        const QString exact = text.mid(from, to - from).simplified();
        for (const QRectF& box : words->boxesOf(from, to)) {
            const QString id = QStringLiteral("%1/search/hit/%2-%3-%4")
                                   .arg(iAddress)
                                   .arg(position)
                                   .arg(from)
                                   .arg(hits.size());
            QJsonObject hit =
                annotation(id, "highlighting", place.id + fragment(box, words->size(), place.size));
            hit[QStringLiteral("body")] =
                QJsonObject{{QStringLiteral("type"), QStringLiteral("TextualBody")},
                            {QStringLiteral("value"), exact},
                            {QStringLiteral("format"), QStringLiteral("text/plain")}};
            hits.append(hit);
            const qsizetype start = std::max<qsizetype>(0, from - contextLetters);
            const QJsonObject quote{{QStringLiteral("type"), QStringLiteral("TextQuoteSelector")},
                                    {QStringLiteral("prefix"), text.mid(start, from - start)},
                                    {QStringLiteral("exact"), exact},
                                    {QStringLiteral("suffix"), text.mid(to, contextLetters)}};
            const QJsonObject source{{QStringLiteral("type"), QStringLiteral("SpecificResource")},
                                     {QStringLiteral("source"), id},
                                     {QStringLiteral("selector"), QJsonArray{quote}}};
            contexts.append(annotation(id + QStringLiteral("/context"), "contextualizing", source));
        }
    }
}

QString ContentSearch::addressOfPage(int page) const {
    QString address = iAddress + QStringLiteral("/search?q=") +
                      QString::fromLatin1(QUrl::toPercentEncoding(iTyped));
    if (page > 1)
        address += QStringLiteral("&page=%1").arg(page);
    return address;
}
