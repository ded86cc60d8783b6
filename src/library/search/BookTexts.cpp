#include "library/search/BookTexts.h"

#include "output/BookLayout.h"
#include "output/WebScript.h"
#include "system/Files.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <cmath>

namespace {

// Far above what a publisher writes into one file.
constexpr qint64 mostBytes = qint64(256) << 20;

constexpr double tenthsOfPoint = 10;

bool isFromRight(const QString& word, bool isLineFromRight) {
    bool hasOthers = false;
    for (const char32_t letter : word.toUcs4()) {
        const auto direction = QChar::direction(letter);
        if (direction == QChar::DirR || direction == QChar::DirAL)
            return true;
        hasOthers = hasOthers || QChar::isLetterOrNumber(letter);
    }
    return isLineFromRight && !hasOthers;
}

double numberIn(const QJsonArray& list, qsizetype index) {
    const double number = list.at(index).toDouble();
    return std::isfinite(number) ? std::clamp(number, -1e9, 1e9) : 0;
}

} // namespace

PageWords::PageWords(const QJsonObject& data) {
    const QJsonArray size = data[QStringLiteral("size")].toArray();
    iSize = QSizeF(numberIn(size, 0), numberIn(size, 1)) / tenthsOfPoint;
    std::size_t lineNumber = 0;
    for (const auto& value : data[QStringLiteral("lines")].toArray()) {
        const QJsonArray line = value.toArray();
        const QRectF box(numberIn(line, 0), numberIn(line, 1), numberIn(line, 2),
                         numberIn(line, 3));
        const int turn = line.at(4).toInt();
        const bool isLineFromRight = line.at(5).toInt() == 1;
        const QJsonArray words = line.at(6).toArray();
        if (lineNumber > 0)
            iText += u'\n';
        for (qsizetype i = 0; i + 2 < words.size(); i += 3) {
            const QString word = words.at(i).toString();
            const bool isBackward = (turn >= 180) != isFromRight(word, isLineFromRight);
            const QString letters = word.trimmed();
            iWords.push_back({box, numberIn(words, i + 1), numberIn(words, i + 2), iText.size(),
                              letters.size(), turn % 180 == 90, isBackward, lineNumber});
            iText += word;
        }
        ++lineNumber;
    }
}

std::vector<QRectF> PageWords::boxesOf(qsizetype from, qsizetype to) const {
    std::vector<QRectF> boxes;
    std::optional<std::size_t> line;
    for (const Place& word : iWords) {
        const qsizetype first = std::max<qsizetype>(0, from - word.at);
        const qsizetype last = std::min(word.letters, to - word.at);
        if (first >= last)
            continue;
        const qsizetype begin = word.isBackward ? word.letters - last : first;
        const double start = word.start + word.length * double(begin) / double(word.letters);
        const double length = word.length * double(last - first) / double(word.letters);
        const QRectF& all = word.line;
        const QRectF box = word.isUpright ? QRectF(all.x(), all.y() + start, all.width(), length)
                                          : QRectF(all.x() + start, all.y(), length, all.height());
        if (line == word.lineNumber)
            boxes.back() |= box;
        else
            boxes.push_back(box);
        line = word.lineNumber;
    }
    for (QRectF& box : boxes)
        box = QRectF(box.topLeft() / tenthsOfPoint, box.size() / tenthsOfPoint);
    return boxes;
}

BookTexts::BookTexts(const QString& folder) : iFolder(folder) {
    const auto document = QJsonDocument::fromJson(json(BookLayout::metadata));
    iData = document.object();
    iIsThere = document.isObject();
}

bool BookTexts::forEachPage(int pages,
                            const std::function<void(int, const QString&)>& visit) const {
    if (!iData[QStringLiteral("text")].toBool())
        return true;
    int position = 0;
    for (int part = 0; position < pages; ++part) {
        const auto texts = QJsonDocument::fromJson(json(BookLayout::searchPart(part)));
        if (!texts.isArray() || texts.array().isEmpty())
            return false;
        for (const auto& text : texts.array()) {
            if (++position <= pages && !text.toString().isEmpty())
                visit(position, text.toString());
        }
    }
    return true;
}

QString BookTexts::label(int position) const {
    const QString label = iData[QStringLiteral("labels")].toArray().at(position - 1).toString();
    return label == QString::number(position) ? QString() : label;
}

std::optional<PageWords> BookTexts::page(int position) const {
    const QJsonValue numbers = iData[QStringLiteral("numbers")];
    const int number = numbers.toArray().at(position - 1).toInt(position);
    const auto data = QJsonDocument::fromJson(json(BookLayout::text(number)));
    if (!data.isObject())
        return {};
    return PageWords(data.object());
}

QByteArray BookTexts::json(const QString& path) const {
    const QString file = BookLayout(iFolder).at(path);
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > mostBytes)
        return {};
    const QByteArray script = Files::contents(file);
    return script.startsWith(WebScript::start(path)) ? WebScript::jsonIn(path, script)
                                                     : QByteArray();
}
