#include "webbook/ReadingFiles.h"

#include "output/WebScript.h"
#include "webbook/WebPageText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>

namespace {

QString nameOf(const ReadingBlock& block) {
    switch (block.kind) {
    case ReadingBlock::Kind::heading:
        return u'h' + QString::number(block.level);
    case ReadingBlock::Kind::listItem:
        return QStringLiteral("item");
    case ReadingBlock::Kind::footnote:
        return QStringLiteral("note");
    case ReadingBlock::Kind::code:
        return QStringLiteral("code");
    case ReadingBlock::Kind::tableRow:
        return QStringLiteral("row");
    case ReadingBlock::Kind::figure:
        return QStringLiteral("figure");
    case ReadingBlock::Kind::paragraph:
        break;
    }
    return QStringLiteral("p");
}

// Texts, with the positions of pages that begin between them.
QJsonArray textOf(const ReadingBlock& block) {
    QJsonArray array;
    int position = block.position;
    for (const ReadingRun& run : block.runs) {
        if (run.position != position)
            array.append(position = run.position);
        if (run.target > 0)
            array.append(QJsonArray{run.text, run.style, run.target});
        else if (!run.url.isEmpty())
            array.append(QJsonArray{run.text, run.style, run.url});
        else if (run.style != plainText)
            array.append(QJsonArray{run.text, run.style});
        else
            array.append(run.text);
    }
    return array;
}

QJsonObject jsonOf(const ReadingBlock& block) {
    QJsonObject object{{QStringLiteral("kind"), nameOf(block)},
                       {QStringLiteral("page"), block.position},
                       {QStringLiteral("box"), WebPageText::tenths(block.box)},
                       {QStringLiteral("text"), textOf(block)}};
    if (block.rightToLeft)
        object[QStringLiteral("rtl")] = 1;
    if (block.kind == ReadingBlock::Kind::figure)
        object[QStringLiteral("size")] = WebPageText::tenths(block.pageSize);
    if (block.hasImages)
        object[QStringLiteral("images")] = 1;
    if (!block.alternative.isEmpty())
        object[QStringLiteral("alt")] = block.alternative;
    if (!block.words.isEmpty())
        object[QStringLiteral("words")] = block.words;
    return object;
}

} // namespace

std::map<int, QJsonArray> ReadingFiles::blocksOfPages(const std::vector<ReadingBlock>& blocks) {
    struct Part {
        std::size_t first = 0;
        std::size_t count = 0;
        QString name;
    };
    std::map<int, std::vector<Part>> pages;
    for (const ReadingBlock& block : blocks) {
        const bool isFigure = block.kind == ReadingBlock::Kind::figure;
        if (block.within.count > 0)
            pages[block.within.position].push_back(
                {block.within.first, block.within.count, nameOf(block)});
        for (const auto& [position, first, count] : block.lines)
            pages[position].push_back(
                {first, count, isFigure ? QStringLiteral("p") : nameOf(block)});
    }
    std::map<int, QJsonArray> arrays;
    for (auto& [position, parts] : pages) {
        std::sort(parts.begin(), parts.end(),
                  [](const Part& a, const Part& b) { return a.first < b.first; });
        std::size_t next = 0;
        for (const auto& [first, count, name] : parts) {
            if (first > next)
                arrays[position] << QString() << int(first - next);
            arrays[position] << name << int(count);
            next = first + count;
        }
    }
    return arrays;
}

std::vector<int> ReadingFiles::write(const std::vector<ReadingBlock>& blocks, const Write& write) {
    constexpr qsizetype mostLetters = 250'000;
    std::vector<int> starts;
    QJsonArray part;
    qsizetype letters = 0;
    for (const ReadingBlock& block : blocks) {
        if (part.isEmpty())
            starts.push_back(block.position);
        part.append(jsonOf(block));
        letters += block.text().size();
        if (letters <= mostLetters && &block != &blocks.back())
            continue;
        write(int(starts.size()), WebScript::json(part));
        part = {};
        letters = 0;
    }
    return starts;
}
