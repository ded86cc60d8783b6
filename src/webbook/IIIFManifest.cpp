#include "webbook/IIIFManifest.h"

#include "annotations/FlashOutline.h"
#include "output/BookLayout.h"
#include "system/MediaType.h"
#include "template/FlashTemplate.h"
#include "webbook/BookAddress.h"
#include "webbook/WebBook.h"

#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <algorithm>
#include <vector>

namespace {

const QString idKey = QStringLiteral("id");
const QString typeKey = QStringLiteral("type");
const QString labelKey = QStringLiteral("label");
const QString itemsKey = QStringLiteral("items");

// Texts in a language, or in none that is known.
QJsonObject texts(const QStringList& values, const QString& language = {}) {
    return {{language.isEmpty() ? QStringLiteral("none") : language,
             QJsonArray::fromStringList(values)}};
}

QJsonObject english(const QString& text) {
    return texts({text}, QStringLiteral("en"));
}

// The address as the standard spells it of a licence of Creative Commons or a statement of
// RightsStatements.org, the only ones that "rights" may have; null for other texts.
QString rightsAddress(const QString& text) {
    static const QRegularExpression known(QRegularExpression::anchoredPattern(
        QStringLiteral("https?://(?:www\\.)?("
                       "creativecommons\\.org/(?:licenses|publicdomain)/[a-z+-]+/\\d\\.\\d"
                       "(?:/[a-z]{2,3})?|rightsstatements\\.org/vocab/[A-Za-z-]+/\\d\\.\\d)/?")));
    const auto match = known.match(text.trimmed());
    return match.hasMatch() ? QStringLiteral("http://%1/").arg(match.captured(1)) : QString();
}

class Maker {
public:
    Maker(const WebBook& book, const BookAddress& address);

    QJsonObject manifest();

private:
    using Items = FlashOutlineItem::Items;

    bool isShown(int position) const { return !iSizes[std::size_t(position) - 1].isEmpty(); }
    const WebPage& page(int position) const { return iBook.pages[std::size_t(position) - 1]; }
    QString canvasID(int position) const;
    QJsonObject picture(const QString& path, QSize size) const;
    QJsonObject pictureOn(const QString& file, const QString& path) const;
    QJsonObject canvas(int position) const;
    QString label(int position) const;
    QJsonObject reference(int position) const;
    QJsonArray metadata() const;
    void addRights(QJsonObject& to) const;

    void collectStarts(const Items& items);
    QJsonArray ranges(const Items& items, std::size_t& next);
    QJsonArray canvasesOf(std::size_t entry);

    const WebBook& iBook;
    const BookAddress& iAddress;
    std::vector<QSize> iSizes;      // of pictures by position, empty for pages that are not shown
    std::vector<bool> iAreInRanges; // by position
    std::vector<int> iStarts;       // positions of outline entries in their order, 0 for none
};

Maker::Maker(const WebBook& book, const BookAddress& address) : iBook(book), iAddress(address) {
    for (const WebPage& page : book.pages)
        iSizes.push_back(book.isOpen(page) ? QImageReader(page.picture).size() : QSize());
    iAreInRanges.resize(book.pages.size());
    if (book.content.outline)
        collectStarts(book.content.outline->items());
}

QString Maker::canvasID(int position) const {
    return iAddress.file(QStringLiteral("canvas/%1").arg(page(position).number));
}

QJsonObject Maker::picture(const QString& path, QSize size) const {
    QJsonObject object{{idKey, iAddress.file(path)},
                       {typeKey, QStringLiteral("Image")},
                       {QStringLiteral("format"), QString::fromLatin1(MediaType::ofFile(path))}};
    if (!size.isEmpty()) {
        object[QStringLiteral("width")] = size.width();
        object[QStringLiteral("height")] = size.height();
    }
    return object;
}

QJsonObject Maker::pictureOn(const QString& file, const QString& path) const {
    return picture(path, QImageReader(file).size());
}

QString Maker::label(int position) const {
    const QString label = iBook.metadata.labels.value(position - 1);
    return label.isEmpty() ? QString::number(position) : label;
}

// The size is that of the normal picture also where there is a larger one: viewers show pages side
// by side in these sizes.
QJsonObject Maker::canvas(int position) const {
    const WebPage& page = this->page(position);
    const QString id = canvasID(position);
    const QSize size = iSizes[std::size_t(position) - 1];
    const bool hasLarge = !page.large.isNull() && WebBook::largeKind(page) != u"js";
    const QJsonObject body =
        hasLarge
            ? pictureOn(page.large, BookLayout::largePage(page.number, WebBook::largeKind(page)))
            : picture(WebBook::picturePath(page), size);
    const QJsonObject annotation{{idKey, id + QStringLiteral("/picture")},
                                 {typeKey, QStringLiteral("Annotation")},
                                 {QStringLiteral("motivation"), QStringLiteral("painting")},
                                 {QStringLiteral("target"), id},
                                 {QStringLiteral("body"), body}};
    const QJsonObject annotations{{idKey, id + QStringLiteral("/page")},
                                  {typeKey, QStringLiteral("AnnotationPage")},
                                  {itemsKey, QJsonArray{annotation}}};
    QJsonObject canvas{{idKey, id},
                       {typeKey, QStringLiteral("Canvas")},
                       {labelKey, texts({label(position)})},
                       {QStringLiteral("width"), size.width()},
                       {QStringLiteral("height"), size.height()},
                       {itemsKey, QJsonArray{annotations}}};
    if (!page.thumbnail.isNull())
        canvas[QStringLiteral("thumbnail")] =
            QJsonArray{pictureOn(page.thumbnail, BookLayout::thumbnail(page.number))};
    return canvas;
}

QJsonObject Maker::reference(int position) const {
    return {{idKey, canvasID(position)}, {typeKey, QStringLiteral("Canvas")}};
}

QJsonArray Maker::metadata() const {
    const BookFacts& facts = iBook.metadata.facts;
    QJsonArray entries;
    const auto add = [&](const char* name, const QStringList& values, const QString& language) {
        if (!values.join(QString()).isEmpty())
            entries.append(QJsonObject{{labelKey, english(QString::fromLatin1(name))},
                                       {QStringLiteral("value"), texts(values, language)}});
    };
    add("Author", facts.authors(), {});
    add("Subject", facts.subjects(), facts.language);
    add("Keywords", {iBook.metadata.keywords}, facts.language);
    add("Date", {facts.date}, {});
    add("Language", {facts.language}, {});
    return entries;
}

void Maker::addRights(QJsonObject& to) const {
    const QString& rights = iBook.metadata.facts.rights;
    if (const QString address = rightsAddress(rights); !address.isNull())
        to[QStringLiteral("rights")] = address;
    else if (!rights.isEmpty())
        to[QStringLiteral("requiredStatement")] =
            QJsonObject{{labelKey, english(QStringLiteral("Rights"))},
                        {QStringLiteral("value"), texts({rights})}};
}

void Maker::collectStarts(const Items& items) {
    for (const auto& item : items) {
        if (!item)
            continue;
        iStarts.push_back(iBook.metadata.positionOf(item->pageIndex()));
        collectStarts(item->childItems());
    }
}

// The pages from an entry's up to that of the next one. An outline may lead back and forth: but for
// the first, only pages that are in no range yet.
QJsonArray Maker::canvasesOf(std::size_t entry) {
    const int start = iStarts[entry];
    QJsonArray canvases;
    if (start == 0)
        return canvases;
    std::size_t next = entry + 1;
    while (next < iStarts.size() && iStarts[next] == 0)
        ++next;
    const int end = next < iStarts.size() ? iStarts[next] : int(iBook.pages.size()) + 1;
    for (int position = start; position < std::max(end, start + 1); ++position) {
        std::vector<bool>::reference isInRange = iAreInRanges[std::size_t(position) - 1];
        if (position > start && isInRange)
            break;
        isInRange = true;
        if (isShown(position))
            canvases.append(reference(position));
    }
    return canvases;
}

// next is the number of the next entry. A range must not be empty.
QJsonArray Maker::ranges(const Items& items, std::size_t& next) {
    QJsonArray array;
    for (const auto& item : items) {
        if (!item)
            continue;
        const std::size_t entry = next++;
        QJsonArray content = canvasesOf(entry);
        for (const auto& child : ranges(item->childItems(), next))
            content.append(child);
        if (content.isEmpty())
            continue;
        array.append(
            QJsonObject{{idKey, iAddress.file(QStringLiteral("range/%1").arg(entry + 1))},
                        {typeKey, QStringLiteral("Range")},
                        {labelKey, texts({item->caption()}, iBook.metadata.facts.language)},
                        {itemsKey, content}});
    }
    return array;
}

QJsonObject linkedPage(const QString& address, const QJsonObject& label) {
    return {{idKey, address},
            {typeKey, QStringLiteral("Text")},
            {labelKey, label},
            {QStringLiteral("format"), QStringLiteral("text/html")}};
}

QJsonObject Maker::manifest() {
    const WebBookMetadata& about = iBook.metadata;
    const QJsonObject title = texts({about.facts.title}, about.facts.language);
    const bool isRightToLeft = iBook.flashTemplate && iBook.flashTemplate->isRightToLeft();
    QJsonObject object{{QStringLiteral("@context"),
                        QStringLiteral("http://iiif.io/api/presentation/3/context.json")},
                       {idKey, iAddress.file(BookLayout::iiifManifest)},
                       {typeKey, QStringLiteral("Manifest")},
                       {labelKey, title},
                       {QStringLiteral("viewingDirection"), isRightToLeft
                                                                ? QStringLiteral("right-to-left")
                                                                : QStringLiteral("left-to-right")},
                       {QStringLiteral("behavior"), QJsonArray{QStringLiteral("paged")}},
                       {QStringLiteral("homepage"), QJsonArray{linkedPage(about.address, title)}}};
    if (const QJsonArray entries = metadata(); !entries.isEmpty())
        object[QStringLiteral("metadata")] = entries;
    addRights(object);
    if (!about.textPage.isEmpty())
        object[QStringLiteral("rendering")] = QJsonArray{linkedPage(
            iAddress.file(about.textPage), english(QStringLiteral("The text as a plain page")))};
    if (!about.cover.isEmpty())
        object[QStringLiteral("thumbnail")] =
            QJsonArray{pictureOn(iBook.firstPage()->thumbnail, about.cover)};
    QJsonArray canvases;
    for (int position = 1; position <= int(iBook.pages.size()); ++position) {
        if (isShown(position))
            canvases.append(canvas(position));
    }
    object[itemsKey] = canvases;
    if (about.start > 1 && isShown(about.start))
        object[QStringLiteral("start")] = reference(about.start);
    std::size_t next = 0;
    if (!iStarts.empty()) {
        if (const QJsonArray structures = ranges(iBook.content.outline->items(), next);
            !structures.isEmpty())
            object[QStringLiteral("structures")] = structures;
    }
    return object;
}

} // namespace

QByteArray IIIFManifest::json(const WebBook& book, const BookAddress& address) {
    return QJsonDocument(Maker(book, address).manifest()).toJson(QJsonDocument::Compact) + '\n';
}
