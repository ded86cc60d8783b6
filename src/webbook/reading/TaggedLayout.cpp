#include "webbook/reading/TaggedLayout.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace TaggedLayout {
namespace {

using Kind = ReadingBlock::Kind;
using Tags = std::vector<PDFTag>;

// Shares of a page's letters.
constexpr double leastCovered = 0.9;
constexpr double mostArtifacts = 0.5;

constexpr std::size_t fewLetters = 200; // of a page that may be nothing but artifacts
constexpr std::size_t fewBlocks = 8;
constexpr std::size_t leastOfBlock = 4; // letters, on the average

// Between lines of one paragraph, in sizes of letters.
constexpr double mostPitch = 2.5;
constexpr double mostGrowth = 1.3;

// What belongs to one block, and to one cell of it, has the same.
struct Part {
    PDFTag::Kind kind = PDFTag::Kind::unknown;
    int element = 0;
    int cell = 0;

    auto operator<=>(const Part&) const = default;
};

const PDFTag* tagOf(const PDFTextWord& word, const Tags& tags) {
    return word.tag >= 0 && std::size_t(word.tag) < tags.size() ? &tags[std::size_t(word.tag)]
                                                                : nullptr;
}

bool isArtifact(const PDFTag* tag) {
    return tag && tag->kind == PDFTag::Kind::artifact;
}

bool isBlock(const PDFTag* tag) {
    return tag && !isArtifact(tag) && tag->kind != PDFTag::Kind::unknown;
}

Part partOf(const PDFTag* tag) {
    return tag ? Part{tag->kind, tag->element, tag->cell} : Part{PDFTag::Kind::unknown, -1, 0};
}

Kind kindOf(PDFTag::Kind kind) {
    switch (kind) {
    case PDFTag::Kind::heading:
        return Kind::heading;
    case PDFTag::Kind::listItem:
        return Kind::listItem;
    case PDFTag::Kind::note:
        return Kind::footnote;
    case PDFTag::Kind::code:
        return Kind::code;
    case PDFTag::Kind::tableRow:
        return Kind::tableRow;
    case PDFTag::Kind::paragraph:
    case PDFTag::Kind::unknown:
    case PDFTag::Kind::artifact:
        break;
    }
    return Kind::paragraph;
}

// Whether lines are rather several blocks under one tag, or a table.
bool areSeveral(const std::vector<ReadingLine>& lines) {
    constexpr std::size_t enough = 3;
    std::size_t breaks = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            const auto [smaller, larger] = std::minmax(lines[i - 1].size, lines[i].size);
            const double pitch = std::abs(lines[i].baseline - lines[i - 1].baseline);
            breaks += pitch > mostPitch * larger || larger > mostGrowth * smaller ? 1 : 0;
        }
    }
    const auto rows = std::count_if(lines.begin(), lines.end(),
                                    [](const ReadingLine& line) { return line.cells > 2; });
    return (breaks >= enough && 8 * breaks > lines.size()) ||
           (std::size_t(rows) >= enough && 2 * std::size_t(rows) > lines.size());
}

PDFTextLine lineOf(const PDFTextLine& from, std::size_t first, std::size_t end) {
    PDFTextLine line = from;
    line.words.assign(from.words.begin() + std::ptrdiff_t(first),
                      from.words.begin() + std::ptrdiff_t(end));
    double start = line.words.front().start;
    double last = start;
    for (const PDFTextWord& word : line.words) {
        start = std::min(start, word.start);
        last = std::max(last, word.start + word.length);
    }
    for (PDFTextWord& word : line.words)
        word.start -= start;
    if (line.turn % 180 == 0)
        line.box = {from.box.x() + start, from.box.y(), last - start, from.box.height()};
    else
        line.box = {from.box.x(), from.box.y() + start, from.box.width(), last - start};
    while (line.words.back().text.endsWith(u' '))
        line.words.back().text.chop(1);
    return line;
}

// A block of the page, or lines that belong to none.
struct Block {
    int order = 0; // that of its first tag
    const PDFTag* tag = nullptr;
    std::vector<std::size_t> lines;
};

// In the order of the tags.
std::vector<Block> blocksOf(const std::vector<PDFTextLine>& lines, const Tags& tags) {
    std::vector<Block> blocks;
    std::map<std::pair<PDFTag::Kind, int>, std::size_t> byElement;
    std::size_t last = 0; // the block of the line before
    bool isLoose = false; // it has no tag
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const PDFTextWord& word = lines[i].words.front();
        const PDFTag* tag = tagOf(word, tags);
        if (isArtifact(tag))
            continue;
        if (!isBlock(tag)) {
            if (!isLoose) {
                const int before = blocks.empty() ? -1 : blocks[last].order;
                blocks.push_back({tag ? word.tag : before, nullptr, {}});
                last = blocks.size() - 1;
            }
            isLoose = true;
        } else {
            const auto [found, isNew] =
                byElement.try_emplace({tag->kind, tag->element}, blocks.size());
            if (isNew)
                blocks.push_back({word.tag, tag, {}});
            last = found->second;
            isLoose = false;
        }
        blocks[last].lines.push_back(i);
        if (blocks[last].tag)
            blocks[last].order = std::min(blocks[last].order, word.tag);
    }
    std::stable_sort(blocks.begin(), blocks.end(),
                     [](const Block& a, const Block& b) { return a.order < b.order; });
    for (Block& block : blocks) {
        if (block.tag)
            std::stable_sort(block.lines.begin(), block.lines.end(),
                             [&](std::size_t a, std::size_t b) {
                                 return lines[a].words.front().tag < lines[b].words.front().tag;
                             });
    }
    return blocks;
}

std::vector<PDFTextLine> linesAt(const std::vector<std::size_t>& places,
                                 const std::vector<PDFTextLine>& lines) {
    std::vector<PDFTextLine> found;
    std::transform(places.begin(), places.end(), std::back_inserter(found),
                   [&](std::size_t i) { return lines[i]; });
    return found;
}

// Of lines that were made of those at some places.
void setSources(std::vector<ReadingLine>& lines, const std::vector<std::size_t>& places) {
    for (ReadingLine& line : lines) {
        for (std::size_t& source : line.sources)
            source = places[source];
    }
}

// A block's lines, cell by cell.
std::vector<ReadingLine> linesOf(const Block& block, int position,
                                 const std::vector<PDFTextLine>& lines, const Tags& tags,
                                 const std::vector<PageLayout::Link>& links) {
    std::vector<ReadingLine> found;
    const auto cellOf = [&](std::size_t i) { return tagOf(lines[i].words.front(), tags)->cell; };
    for (auto first = block.lines.begin(); first != block.lines.end();) {
        const int cell = cellOf(*first);
        const auto end = std::find_if(first, block.lines.end(),
                                      [&](std::size_t i) { return cellOf(i) != cell; });
        const std::vector<std::size_t> places(first, end);
        auto ofCell = PageLayout::inOrder(position, linesAt(places, lines), links);
        setSources(ofCell, places);
        for (ReadingLine& line : ofCell) {
            line.cell = cell;
            found.push_back(std::move(line));
        }
        first = end;
    }
    return found;
}

} // namespace

bool isPlausible(const PDFPageText& text) {
    std::size_t all = 0;
    std::size_t tagged = 0;
    std::size_t artifacts = 0;
    std::set<int> elements;
    for (const PDFTextLine& line : text.lines) {
        for (const PDFTextWord& word : line.words) {
            const auto letters = std::size_t(word.text.size());
            const PDFTag* tag = tagOf(word, text.tags);
            all += letters;
            artifacts += isArtifact(tag) ? letters : 0;
            if (!tag || isArtifact(tag) || tag->element == 0)
                continue;
            tagged += letters;
            elements.insert(tag->element);
        }
    }
    return tagged > 0 && double(tagged + artifacts) >= leastCovered * double(all) &&
           (all <= fewLetters || double(artifacts) <= mostArtifacts * double(all)) &&
           (elements.size() <= fewBlocks || elements.size() * leastOfBlock <= tagged);
}

std::vector<PDFTextLine> divided(const PDFPageText& text) {
    std::vector<PDFTextLine> lines;
    for (const PDFTextLine& line : text.lines) {
        for (std::size_t first = 0; first < line.words.size();) {
            const Part part = partOf(tagOf(line.words[first], text.tags));
            std::size_t end = first + 1;
            while (end < line.words.size() && partOf(tagOf(line.words[end], text.tags)) == part)
                ++end;
            lines.push_back(end - first == line.words.size() ? line : lineOf(line, first, end));
            first = end;
        }
    }
    return lines;
}

ReadingPage of(int position, const std::vector<PDFTextLine>& divided, const Tags& tags,
               const std::vector<PageLayout::Link>& links) {
    ReadingPage page{position, {}, {}};
    for (const Block& block : blocksOf(divided, tags)) {
        ReadingRegion region;
        if (block.tag)
            region.lines = linesOf(block, position, divided, tags, links);
        const bool isParagraph = block.tag && block.tag->kind == PDFTag::Kind::paragraph;
        if (!block.tag || (isParagraph && areSeveral(region.lines))) {
            ReadingPage part = PageLayout::of(position, linesAt(block.lines, divided), links);
            for (ReadingRegion& each : part.regions) {
                setSources(each.lines, block.lines);
                page.regions.push_back(std::move(each));
            }
        } else if (!region.lines.empty()) {
            region.tag = {kindOf(block.tag->kind), block.tag->level, block.tag->element};
            page.regions.push_back(std::move(region));
        }
    }
    return page;
}

} // namespace TaggedLayout
