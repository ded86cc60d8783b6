#include "webbook/WebBookMetadata.h"

#include "annotations/FlashOutline.h"
#include "output/WebScript.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <algorithm>

namespace {

constexpr int maxOutlineDepth = 64;

QJsonArray outlineOf(const FlashOutlineItem::Items& items, const WebBookMetadata& metadata,
                     int depth) {
    QJsonArray array;
    if (depth > maxOutlineDepth)
        return array;
    for (const auto& item : items) {
        if (!item)
            continue;
        array.append(QJsonArray{item->caption(), metadata.positionOf(item->pageIndex()),
                                outlineOf(item->childItems(), metadata, depth + 1)});
    }
    return array;
}

QJsonValue openRuns(const WebBookMetadata& metadata) {
    if (!metadata.open)
        return QJsonValue::Null;
    QJsonArray array;
    for (const PageRun& run : *metadata.open)
        array.append(QJsonArray{run.first, run.last});
    return array;
}

// Labels that just count the pages carry no information.
bool areOnlyPositions(const QStringList& labels) {
    for (qsizetype i = 0; i < labels.size(); ++i) {
        if (labels[i] != QString::number(i + 1))
            return false;
    }
    return true;
}

QJsonValue persons(const QStringList& names) {
    QJsonArray array;
    for (const QString& name : names) {
        array.append(QJsonObject{{QStringLiteral("@type"), QStringLiteral("Person")},
                                 {QStringLiteral("name"), name}});
    }
    return array.size() == 1 ? array[0] : QJsonValue(array);
}

// A year, month or day as in ISO 8601: search engines understand no others.
bool isDate(const QString& text) {
    static const QRegularExpression date(QStringLiteral("^\\d{4}(-\\d\\d){0,2}$"));
    return date.match(text).hasMatch();
}

bool isWebAddress(const QString& text) {
    return text.startsWith(u"https://") || text.startsWith(u"http://");
}

QByteArray meta(const char* kind, const char* name, const QString& content) {
    if (content.isEmpty())
        return {};
    return QByteArray("<meta ") + kind + "=\"" + name + "\" content=\"" +
           content.toHtmlEscaped().toUtf8() + "\">\n";
}

QJsonArray arrayOf(const std::vector<int>& numbers) {
    QJsonArray array;
    for (const int number : numbers)
        array.append(number);
    return array;
}

QByteArray link(const char* kind, const QString& page) {
    if (page.isEmpty())
        return {};
    return QByteArray("<link ") + kind + " href=\"" + page.toHtmlEscaped().toUtf8() + "\">\n";
}

} // namespace

int WebBookMetadata::positionOf(int number) const {
    const auto found = std::lower_bound(numbers.begin(), numbers.end(), number);
    return found != numbers.end() && *found == number ? int(found - numbers.begin()) + 1 : 0;
}

bool WebBookMetadata::isOpen(int position) const {
    return !open || isWithin(*open, position);
}

QJsonObject WebBookMetadata::forPlayer(const FlashOutline* outline, const TextParts& parts) const {
    QJsonObject object{{QStringLiteral("version"), 1},
                       {QStringLiteral("large"), QJsonArray::fromStringList(large)},
                       {QStringLiteral("text"), parts.search > 0},
                       {QStringLiteral("language"), facts.language},
                       {QStringLiteral("open"), openRuns(*this)},
                       {QStringLiteral("textPage"), textPage},
                       {QStringLiteral("offline"), offline},
                       {QStringLiteral("numbers"), QJsonValue::Null},
                       {QStringLiteral("labels"), QJsonValue::Null}};
    if (parts.search > 1)
        object[QStringLiteral("searchParts")] = parts.search;
    if (!parts.reading.empty())
        object[QStringLiteral("reading")] = arrayOf(parts.reading);
    if (!parts.listings.empty())
        object[QStringLiteral("listings")] = arrayOf(parts.listings);
    object[QStringLiteral("outline")] =
        outline ? outlineOf(outline->items(), *this, 0) : QJsonArray();
    if (!numbers.empty() && numbers.back() != int(numbers.size()))
        object[QStringLiteral("numbers")] = arrayOf(numbers);
    if (start > 1)
        object[QStringLiteral("start")] = start;
    if (!panel.isEmpty())
        object[QStringLiteral("panel")] = panel;
    if (!areOnlyPositions(labels))
        object[QStringLiteral("labels")] = QJsonArray::fromStringList(labels);
    return object;
}

QByteArray WebBookMetadata::imageMarkup() const {
    if (imageAddress.isEmpty())
        return {};
    return meta("property", "og:image", imageAddress) +
           meta("property", "og:image:type", QStringLiteral("image/jpeg")) +
           meta("property", "og:image:width", QString::number(imageSize.width())) +
           meta("property", "og:image:height", QString::number(imageSize.height()));
}

QByteArray WebBookMetadata::headMarkup() const {
    QJsonObject linked{{QStringLiteral("@context"), QStringLiteral("https://schema.org")},
                       {QStringLiteral("@type"), QStringLiteral("Book")},
                       {QStringLiteral("name"), facts.title},
                       {QStringLiteral("bookFormat"), QStringLiteral("https://schema.org/EBook")},
                       {QStringLiteral("numberOfPages"), int(numbers.size())}};
    const auto add = [&](const QString& key, const QString& value) {
        if (!value.isEmpty())
            linked[key] = value;
    };
    if (!facts.author.isEmpty())
        linked[QStringLiteral("author")] = persons(facts.authors());
    add(QStringLiteral("description"), facts.subject);
    add(QStringLiteral("keywords"), keywords);
    add(QStringLiteral("inLanguage"), facts.language);
    if (isDate(facts.date))
        add(QStringLiteral("datePublished"), facts.date);
    add(isWebAddress(facts.rights) ? QStringLiteral("license") : QStringLiteral("copyrightNotice"),
        facts.rights);
    add(QStringLiteral("url"), address);
    add(QStringLiteral("image"), imageAddress);
    return meta("name", "author", facts.author) + meta("name", "dcterms.date", facts.date) +
           meta("name", "dcterms.rights", facts.rights) +
           meta("property", "og:type", QStringLiteral("book")) +
           meta("property", "og:title", facts.title) +
           meta("property", "og:description", facts.subject) + meta("property", "og:url", address) +
           imageMarkup() + meta("name", "twitter:card", QStringLiteral("summary")) +
           link("rel=\"canonical\"", address) +
           link("rel=\"alternate\" type=\"text/html\"", textPage) +
           "<script type=\"application/ld+json\">" + WebScript::json(linked) + "</script>\n";
}
