#include "webbook/WebPageText.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace {

int tenths(double points) {
    constexpr double limit = 1e8;
    return int(std::lround(std::clamp(points, -limit, limit) * 10));
}

void append(QJsonArray& array, const QRectF& box) {
    for (const double number : {box.x(), box.y(), box.width(), box.height()})
        array.append(tenths(number));
}

// The page rotation in degrees, rounded to a multiple of 90, as it is drawn.
int turnOf(int rotation) {
    return (rotation + 45) / 90 * 90 % 360;
}

// Maps PDF user space to the page as displayed, both in points.
QTransform toSeen(const PDFPage& page) {
    const QRectF& crop = page.cropBox;
    const int turn = turnOf(page.rotation);
    QTransform transform;
    switch (turn) {
    case 90:
        transform = {0, 1, 1, 0, -crop.y(), -crop.x()};
        break;
    case 180:
        transform = {-1, 0, 0, 1, crop.x() + crop.width(), -crop.y()};
        break;
    case 270:
        transform = {0, -1, -1, 0, crop.y() + crop.height(), crop.x() + crop.width()};
        break;
    default:
        transform = {1, 0, 0, -1, -crop.x(), crop.y() + crop.height()};
        break;
    }
    // A page may have its own user unit.
    const double width = turn % 180 == 0 ? crop.width() : crop.height();
    const double unit = width > 0 && page.display.width() > 0 ? page.display.width() / width : 1;
    return transform * QTransform::fromScale(unit, unit);
}

// Empty for a page that has none.
QSizeF sizeOf(const PDFPage& page) {
    return page.display.isValid() ? page.display : QSizeF(0, 0);
}

QJsonArray arrayOf(const std::vector<PageLayout::Link>& links) {
    QJsonArray array;
    for (const PageLayout::Link& link : links) {
        QJsonArray entry;
        append(entry, link.box);
        entry.append(link.url.isNull() ? QJsonValue(link.target) : QJsonValue(link.url));
        array.append(entry);
    }
    return array;
}

// Whether a word is one of the dots that lead from an entry of the contents to its page number.
bool isLeader(const PDFTextWord& word) {
    return QStringView(word.text).trimmed() == QStringView(u".");
}

// The words of a line, with leaders as one word: a page of contents has a thousand dots, and each
// word becomes an element in the reader's browser.
std::vector<PDFTextWord> withJoinedLeaders(const std::vector<PDFTextWord>& words) {
    std::vector<PDFTextWord> joined;
    bool isLast = false;
    for (const PDFTextWord& word : words) {
        const bool wasLast = isLast;
        isLast = isLeader(word);
        if (!isLast || !wasLast) {
            joined.push_back(word);
            continue;
        }
        PDFTextWord& leaders = joined.back();
        const double end = std::max(leaders.start + leaders.length, word.start + word.length);
        leaders.start = std::min(leaders.start, word.start);
        leaders.length = end - leaders.start;
        leaders.text += word.text;
    }
    return joined;
}

QJsonArray linesOf(const std::vector<PDFTextLine>& lines) {
    QJsonArray array;
    for (const PDFTextLine& line : lines) {
        QJsonArray entry;
        append(entry, line.box);
        entry.append(line.turn);
        entry.append(line.rightToLeft ? 1 : 0);
        QJsonArray words;
        for (const PDFTextWord& word : withJoinedLeaders(line.words)) {
            words.append(word.text);
            words.append(tenths(word.start));
            words.append(tenths(word.length));
        }
        entry.append(words);
        array.append(entry);
    }
    return array;
}

} // namespace

QRectF WebPageText::placeOnPage(const QRectF& bounds, const PDFPage& page) {
    return toSeen(page).mapRect(bounds).normalized();
}

std::vector<PageLayout::Link> WebPageText::linksOf(const PDFPage& page,
                                                   const std::vector<PDFAnnotation>& annotations,
                                                   const Position& position) {
    const QRectF whole({0, 0}, sizeOf(page));
    std::vector<PageLayout::Link> links;
    for (const PDFAnnotation& annotation : annotations) {
        if (annotation.type != QStringLiteral("Link"))
            continue;
        const bool toAddress = !annotation.url.isNull();
        if (!toAddress && !annotation.destinationPage)
            continue;
        const QRectF place = placeOnPage(annotation.bounds, page).intersected(whole);
        if (!place.isEmpty())
            links.push_back(
                {place, annotation.url, toAddress ? 0 : position(*annotation.destinationPage)});
    }
    return links;
}

QJsonArray WebPageText::tenths(const QRectF& box) {
    QJsonArray array;
    append(array, box);
    return array;
}

QJsonArray WebPageText::tenths(const QSizeF& size) {
    return {::tenths(size.width()), ::tenths(size.height())};
}

QJsonObject WebPageText::asJson(const PDFPage& page, const std::vector<PDFTextLine>& lines,
                                const std::vector<PageLayout::Link>& links) {
    return {{QStringLiteral("size"), tenths(sizeOf(page))},
            {QStringLiteral("lines"), linesOf(lines)},
            {QStringLiteral("links"), arrayOf(links)}};
}

QString WebPageText::plain(const std::vector<PDFTextLine>& lines) {
    QString text;
    for (const PDFTextLine& line : lines) {
        if (!text.isEmpty())
            text += u'\n';
        for (const PDFTextWord& word : line.words)
            text += word.text;
    }
    return text;
}

bool WebPageText::isListing(const QString& text) {
    constexpr int fewestEntries = 5;
    constexpr qsizetype lettersOfEnd = 100;
    static const QRegularExpression marked(QStringLiteral(
        R"re((?:(?:[.\x{b7}\x{2024}-\x{2026}_]\s*){3,}|,\s*)(?:(\d{1,4})|[ivxlc]+)(?:\s?[-\x{2013}]\s?\d+)?[,;]?\s*$)re"));
    static const QRegularExpression unmarked(QStringLiteral(R"re(\s(\d{1,4})\s*$)re"));
    int lines = 0;
    int entries = 0;
    int markedEntries = 0;
    int falls = 0;
    int last = 0;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        if (std::none_of(line.begin(), line.end(), [](QChar letter) { return letter.isLetter(); }))
            continue;
        ++lines;
        const QString end = line.right(std::min(line.size(), lettersOfEnd)).toString();
        auto entry = marked.match(end);
        if (entry.hasMatch())
            ++markedEntries;
        else
            entry = unmarked.match(end);
        if (!entry.hasMatch())
            continue;
        ++entries;
        const int number = entry.captured(1).toInt(); // 0 for one in Roman figures
        if (number > 0 && number < last)
            ++falls;
        if (number > 0)
            last = number;
    }
    return entries >= fewestEntries && 2 * entries >= lines &&
           (2 * markedEntries >= entries || 10 * falls <= entries);
}
