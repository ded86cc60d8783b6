#include "webbook/StartList.h"

#include "annotations/FlashOutline.h"
#include "output/BookLayout.h"
#include "output/BookXML.h"
#include "output/WebScript.h"
#include "picture/PhotographMark.h"
#include "webbook/WebBook.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>

namespace {

// Numbers as runs of a first value and a length. Each value is greater by a step than the one
// before it in its run.
class Runs {
public:
    explicit Runs(int step) : iStep(step) {}

    void append(int value) {
        if (iLength > 0 && value == iFirst + iLength * iStep) {
            ++iLength;
            return;
        }
        close();
        iFirst = value;
        iLength = 1;
    }
    QJsonArray array() {
        close();
        iLength = 0;
        return iArray;
    }

private:
    void close() {
        if (iLength > 0)
            iArray << iFirst << iLength;
    }

    int iStep;
    int iFirst = 0;
    int iLength = 0;
    QJsonArray iArray;
};

// A file's path from "files" for the page of any number.
QString pattern(const QString& path, int number) {
    return BookLayout::inFiles(path).replace(QStringLiteral("/%1.").arg(number),
                                             QStringLiteral("/#."));
}

bool isPhotograph(const QString& thumbnail) {
    QFile file(thumbnail);
    return !thumbnail.isEmpty() && file.open(QIODevice::ReadOnly) &&
           PhotographMark::isMarked(file.read(PhotographMark::headSize));
}

void addPages(QJsonObject& list, const WebBook& book) {
    Runs numbers(1);
    Runs runs(0);
    QJsonArray kinds;
    QHash<QStringList, int> indexes;
    for (std::size_t i = 0; i < book.pages.size(); ++i) {
        const WebPage& page = book.pages[i];
        QStringList kind{pattern(WebBook::picturePath(page), page.number),
                         pattern(WebBook::thumbnailPath(page), page.number),
                         book.metadata.large[qsizetype(i)]};
        if (book.isOpen(page) && isPhotograph(page.thumbnail))
            kind << QStringLiteral("photo");
        if (!indexes.contains(kind)) {
            indexes.insert(kind, int(indexes.size()));
            kinds << QJsonArray::fromStringList(kind);
        }
        numbers.append(page.number);
        runs.append(indexes[kind]);
    }
    list[QStringLiteral("numbers")] = numbers.array();
    list[QStringLiteral("kinds")] = kinds;
    list[QStringLiteral("runs")] = runs.array();
}

QJsonArray sizesIn(const pugi::xml_document& configuration) {
    QJsonArray sizes;
    for (const pugi::xml_node& picture :
         configuration.document_element().child("Ppts").child("Ppt").children()) {
        sizes << picture.child("Width").text().as_int() << picture.child("Height").text().as_int();
    }
    return sizes;
}

// Labels that count on become one: the text before the number, the number, how many they are.
QJsonArray runsOf(const QStringList& labels) {
    QJsonArray array;
    for (qsizetype i = 0; i < labels.size();) {
        const QString& label = labels[i];
        qsizetype digits = label.size();
        while (digits > 0 && label[digits - 1] >= u'0' && label[digits - 1] <= u'9')
            --digits;
        const QString before = label.left(digits);
        const int first = label.mid(digits).toInt(); // 0 where it is too large
        qsizetype length = 0;
        while (first > 0 && i + length < labels.size() &&
               labels[i + length] == before + QString::number(first + length))
            ++length;
        if (length > 1)
            array.append(QJsonArray{before, first, length});
        else
            array.append(label);
        i += std::max<qsizetype>(1, length);
    }
    return array;
}

QJsonObject factsOf(const WebBook& book, const TextParts& parts) {
    const FlashOutline* outline = book.content.outline.get();
    QJsonObject facts = book.metadata.forPlayer(nullptr, parts);
    // The list of pages has these.
    facts.remove(QStringLiteral("large"));
    facts.remove(QStringLiteral("numbers"));
    facts[QStringLiteral("outline")] = outline && !outline->items().empty();
    facts[QStringLiteral("labels")] = runsOf(book.metadata.labels);
    return facts;
}

} // namespace

QByteArray StartList::json(const WebBook& book, const TextParts& parts,
                           const std::vector<int>& next) {
    if (book.pages.empty())
        return {};
    const auto first = book.configuration(1);
    QJsonObject list{
        {QStringLiteral("settings"),
         QString::fromLatin1(BookXML::enciphered(*first, pugi::format_raw).toBase64())},
        {QStringLiteral("sizes"), sizesIn(*first)},
        {QStringLiteral("facts"), factsOf(book, parts)}};
    addPages(list, book);
    QJsonArray positions;
    for (const int position : next)
        positions << position;
    if (!positions.isEmpty())
        list[QStringLiteral("next")] = positions;
    // The page passes through a text template, whose placeholders begin with it.
    return WebScript::json(list).replace('$', "\\u0024");
}
