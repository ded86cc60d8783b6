#include "webbook/reading/BookReading.h"

#include "webbook/reading/FigurePlaces.h"
#include "webbook/reading/RunningHeads.h"
#include "webbook/reading/TaggedLayout.h"

#include <cmath>
#include <unordered_map>
#include <utility>

namespace {

using Kind = ReadingBlock::Kind;
using List = std::vector<ReadingParagraph>;

bool endsSentence(const QString& text) {
    static const QString ends = QStringLiteral(".!?:。！？؟۔…");
    static const QString quotes = QStringLiteral("\"'”’»)]」』）");
    for (auto letter = text.crbegin(); letter != text.crend(); ++letter) {
        if (!quotes.contains(*letter) && !letter->isSpace())
            return ends.contains(*letter);
    }
    return true;
}

bool startsLower(const QString& text) {
    for (const QChar letter : text) {
        if (letter.isLetterOrNumber())
            return letter.isLower();
    }
    return false;
}

// Chinese and Japanese have no small letters.
bool startsWithin(const ReadingParagraph& paragraph) {
    const QString& text = paragraph.lines.front().text;
    return startsLower(text) || (!paragraph.isIndented && isUnspaced(text.front()));
}

bool haveSameLook(const ReadingLine& a, const ReadingLine& b) {
    return std::abs(a.size - b.size) <= 0.04 * std::max(a.size, b.size) &&
           a.isBold() == b.isBold() && a.rightToLeft == b.rightToLeft;
}

// Of the last line on a page, for the width of the next column: a caption is shorter.
constexpr double leastLength = 0.6;

// Whether a paragraph goes on in the first one of the next column or page. Where paragraphs begin
// with an indent, one without goes on even after the end of a sentence.
bool goesOn(const ReadingParagraph& a, const ReadingParagraph& b, bool areIndented) {
    const ReadingLine& last = a.lines.back();
    const ReadingLine& next = b.lines.front();
    if (!haveSameLook(last, next) || Paragraphs::isEntry(last.text) ||
        Paragraphs::wouldFit(last, a.right, next) ||
        last.right - last.left < leastLength * (b.right - next.left))
        return false;
    if (!endsSentence(last.text))
        return startsWithin(b) || (!b.isIndented && next.text.front().isLetter());
    return areIndented && !b.isIndented;
}

bool isText(const ReadingParagraph& paragraph) {
    return paragraph.kind == Kind::paragraph || paragraph.kind == Kind::listItem;
}

bool isFigure(const ReadingParagraph& paragraph) {
    return paragraph.kind == Kind::figure;
}

bool isTagged(const ReadingParagraph& paragraph) {
    return paragraph.isTagged;
}

// What the tag of a region says.
ReadingParagraph taggedFrom(const ReadingRegion& region) {
    ReadingParagraph made;
    made.kind = region.tag->kind;
    made.level = region.tag->level;
    made.element = region.tag->element;
    made.isTagged = true;
    made.lines = region.lines;
    made.right = region.right();
    return made;
}

// The paragraph in which the last one of the list goes on: the first text of the next column, or
// behind what stands above it there.
std::size_t continuationOf(const ReadingParagraph& open, const List& next, bool areIndented) {
    constexpr std::size_t furthest = 24;
    const auto first =
        std::size_t(std::find_if_not(next.begin(), next.end(), isFigure) - next.begin());
    for (std::size_t i = first; i < std::min(furthest, next.size()); ++i) {
        const ReadingParagraph& candidate = next[i];
        if (candidate.kind != Kind::paragraph || !goesOn(open, candidate, areIndented))
            continue;
        const bool isCertain = !endsSentence(open.lines.back().text) && startsWithin(candidate);
        if (i == first ? isCertain || candidate.lines.size() > 1 : isCertain)
            return i;
    }
    return next.size();
}

void append(ReadingParagraph& to, ReadingParagraph&& from) {
    to.right = from.right;
    to.endsRegion = from.endsRegion;
    for (ReadingLine& line : from.lines)
        to.lines.push_back(std::move(line));
}

// From line to line of a program, in sizes of letters: some are left empty.
constexpr double mostPitchOfCode = 4;

// Collects a book's paragraphs, region by region, and joins those that go on.
class Flow {
public:
    explicit Flow(const TextMeasure& measure) : iMeasure(measure) {}

    void add(const ReadingPage& page);
    List take() { return std::move(iAll); }

private:
    void add(List region);
    void addTagged(ReadingParagraph made);
    bool goesOnTagged(const ReadingParagraph& paragraph) const;
    bool isTaggedCode(const ReadingParagraph& paragraph) const;
    bool isBelowCode(const ReadingLine& line) const;
    bool areIndented() const { return iIndented >= 4 && iIndented > 0.3 * iLong; }

    const TextMeasure& iMeasure;
    List iAll;
    List iNotes;               // of the page
    int iLong = 0;             // paragraphs of several lines so far
    int iIndented = 0;         // those whose first line is indented
    std::ptrdiff_t iOpen = -1; // the last paragraph of text, which may go on
    // Tagged blocks of the page before and of this one, by their elements.
    using Elements = std::unordered_map<int, std::size_t>;
    Elements iBefore;
    Elements iHere;
};

void Flow::add(List region) {
    List rest;
    for (ReadingParagraph& paragraph : region)
        (paragraph.kind == Kind::footnote ? iNotes : rest).push_back(std::move(paragraph));
    if (rest.empty())
        return;
    rest.back().endsRegion = true;
    if (iOpen >= 0 && !iMeasure.isLarge(iAll[std::size_t(iOpen)].lines.front().size)) {
        ReadingParagraph& open = iAll[std::size_t(iOpen)];
        if (const std::size_t i = continuationOf(open, rest, areIndented()); i < rest.size()) {
            append(open, std::move(rest[i]));
            rest.erase(rest.begin() + std::ptrdiff_t(i));
        }
    }
    for (ReadingParagraph& paragraph : rest) {
        if (paragraph.kind == Kind::paragraph && paragraph.lines.size() > 1) {
            ++iLong;
            iIndented += paragraph.isIndented ? 1 : 0;
        }
        // A page of figures does not end a paragraph.
        const bool mayBeLabel = iOpen >= 0 && paragraph.lines.size() < 2;
        if (isText(paragraph) && !mayBeLabel)
            iOpen = paragraph.endsRegion ? std::ssize(iAll) : -1;
        iAll.push_back(std::move(paragraph));
    }
}

// Some programs divide at the end of a page what is one paragraph.
bool Flow::goesOnTagged(const ReadingParagraph& paragraph) const {
    if (iOpen < 0 || !iHere.empty() || paragraph.kind != Kind::paragraph)
        return false;
    const ReadingParagraph& open = iAll[std::size_t(iOpen)];
    return isText(open) && !endsSentence(open.lines.back().text) &&
           startsLower(paragraph.lines.front().text) && goesOn(open, paragraph, false);
}

// Programs are tagged as paragraphs, each line as one or all as a single one.
bool Flow::isTaggedCode(const ReadingParagraph& paragraph) const {
    return paragraph.kind == Kind::paragraph &&
           std::all_of(paragraph.lines.begin(), paragraph.lines.end(),
                       [&](const ReadingLine& line) { return iMeasure.isCode(line); });
}

// Whether a program goes on in the next paragraph of the page.
bool Flow::isBelowCode(const ReadingLine& line) const {
    if (iHere.empty() || !iAll.back().isTagged || iAll.back().kind != Kind::code)
        return false;
    const double pitch = line.baseline - iAll.back().lines.back().baseline;
    return pitch > 0 && pitch < mostPitchOfCode * line.size;
}

void Flow::addTagged(ReadingParagraph made) {
    const int element = made.element;
    const bool isCode = isTaggedCode(made);
    if (isCode)
        made.kind = Kind::code;
    const auto begun = iBefore.find(element);
    const bool isContinued = begun != iBefore.end() && iAll[begun->second].kind == made.kind &&
                             made.kind != Kind::tableRow;
    std::size_t place = iAll.size();
    if (isContinued || goesOnTagged(made)) {
        place = isContinued ? begun->second : std::size_t(iOpen);
        append(iAll[place], std::move(made));
    } else if (isCode && isBelowCode(made.lines.front())) {
        append(iAll[--place], std::move(made));
    } else {
        iAll.push_back(std::move(made));
    }
    iHere[element] = place;
    iOpen = isText(iAll[place]) ? std::ptrdiff_t(place) : -1;
}

void Flow::add(const ReadingPage& page) {
    std::vector<List> regions;
    for (const ReadingRegion& region : page.regions)
        regions.push_back(region.tag ? List{taggedFrom(region)} : Paragraphs::of(region, iMeasure));
    FigurePlaces::insert(page.figures, regions);
    for (List& region : regions) {
        if (std::none_of(region.begin(), region.end(), isTagged)) {
            add(std::move(region));
            continue;
        }
        for (ReadingParagraph& paragraph : region) {
            if (isFigure(paragraph))
                iAll.push_back(std::move(paragraph));
            else
                addTagged(std::move(paragraph));
        }
    }
    iBefore = std::exchange(iHere, {});
    for (ReadingParagraph& note : std::exchange(iNotes, {}))
        iAll.push_back(std::move(note));
}

// Blanks before a line of code.
QString indentOf(const ReadingLine& line, double left) {
    const double letter =
        (line.right - line.left) / double(std::max<qsizetype>(1, line.text.size()));
    constexpr double most = 80;
    const double blanks = letter > 0 ? (line.left - left) / letter : 0;
    return QString(int(std::lround(std::clamp(blanks, 0.0, most))), u' ');
}

void indentCode(ReadingParagraph& paragraph) {
    double left = paragraph.lines.front().left;
    for (const ReadingLine& line : paragraph.lines)
        left = std::min(left, line.left);
    for (ReadingLine& line : paragraph.lines)
        line.runs.front().text.prepend(indentOf(line, left));
}

void replaceTabs(ReadingLine& line) {
    for (ReadingRun& run : line.runs)
        run.text.replace(u'\t', u' ');
    line.text.replace(u'\t', u' ');
}

void addLines(ReadingBlock& block, const ReadingLine& line) {
    for (const std::size_t source : line.sources) {
        ReadingBlock::Lines* last = block.lines.empty() ? nullptr : &block.lines.back();
        if (last && last->position == line.position() && last->first + last->count == source)
            ++last->count;
        else
            block.lines.push_back({line.position(), source, 1});
    }
}

// The cells between two lines of a tagged row, empty ones included.
void endCells(ReadingBlock& block, const ReadingLine& next, int cells) {
    constexpr int most = PDFTag::lastCell;
    const QString tabs(std::clamp(cells, 1, most), u'\t');
    block.runs.push_back({tabs, next.position(), plainText, {}, 0});
}

ReadingBlock blockFrom(ReadingParagraph&& paragraph, const LineJoin& join) {
    ReadingBlock block;
    block.kind = paragraph.kind;
    block.level = paragraph.level;
    if (isFigure(paragraph)) {
        block.position = paragraph.figure.lines.position;
        block.box = paragraph.figure.box;
        block.pageSize = paragraph.figure.page;
        block.words = paragraph.figure.words;
        block.alternative = paragraph.figure.alternative;
        block.within = paragraph.figure.lines;
        block.hasImages = paragraph.figure.hasImages;
    } else {
        block.position = paragraph.lines.front().position();
    }
    block.rightToLeft = !paragraph.lines.empty() && paragraph.lines.front().rightToLeft;
    if (block.kind == Kind::code)
        indentCode(paragraph);
    int cell = 0;
    for (ReadingLine& line : paragraph.lines) {
        if (block.kind != Kind::tableRow || paragraph.isTagged)
            replaceTabs(line);
        if (line.position() == block.position && block.kind != Kind::figure)
            block.box |= line.box;
        addLines(block, line);
        if (line.cell != cell)
            endCells(block, line, line.cell - std::exchange(cell, line.cell));
        else if (!block.runs.empty()) {
            join.append(block, line);
            continue;
        }
        block.runs.insert(block.runs.end(), line.runs.begin(), line.runs.end());
    }
    return block;
}

} // namespace

std::vector<PDFTextLine> BookReading::addPage(int position, const PDFPageText& text,
                                              const std::vector<PageLayout::Link>& links,
                                              const Figures::OfPage& figures) {
    const bool usesTags = TaggedLayout::isPlausible(text);
    const std::vector<PDFTextLine> lines = usesTags ? TaggedLayout::divided(text) : text.lines;
    const auto figureOf = [&](const PDFTextLine& line) {
        return std::find_if(figures.figures.begin(), figures.figures.end(),
                            [&](const auto& each) { return each.box.contains(line.box.center()); });
    };
    std::vector<PDFTextLine> flow;
    std::vector<std::size_t> sources; // of the flow, among all lines
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (figureOf(lines[i]) != figures.figures.end())
            continue;
        flow.push_back(lines[i]);
        sources.push_back(i);
    }
    iPages.push_back(usesTags ? TaggedLayout::of(position, flow, text.tags, links)
                              : PageLayout::of(position, flow, links));
    std::vector<PDFTextLine> ordered;
    std::vector<bool> isTaken(lines.size());
    const auto take = [&](std::size_t i) {
        isTaken[i] = true;
        ordered.push_back(lines[i]);
    };
    for (ReadingRegion& region : iPages.back().regions) {
        for (ReadingLine& line : region.lines) {
            for (std::size_t& source : line.sources) {
                take(sources[source]);
                source = ordered.size() - 1;
            }
        }
    }
    for (auto each = figures.figures.begin(); each != figures.figures.end(); ++each) {
        ReadingFigure figure{
            each->box, figures.size,     each->hasImages, {position, ordered.size(), 0},
            {},        each->alternative};
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (figureOf(lines[i]) != each)
                continue;
            take(i);
            for (const PDFTextWord& word : lines[i].words)
                figure.words += word.text;
            figure.words += u' ';
        }
        figure.words = figure.words.simplified();
        figure.lines.count = ordered.size() - figure.lines.first;
        iPages.back().figures.push_back(std::move(figure));
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!isTaken[i])
            ordered.push_back(lines[i]);
    }
    return ordered;
}

std::vector<ReadingBlock> BookReading::finish(const std::vector<Headings::Entry>& outline) {
    std::vector<ReadingPage> pages = std::exchange(iPages, {});
    RunningHeads::remove(pages);
    const TextMeasure measure = TextMeasure::of(pages);
    LineJoin join;
    Flow flow(measure);
    for (ReadingPage& page : pages) {
        for (const ReadingRegion& region : page.regions) {
            for (const ReadingLine& line : region.lines)
                join.learn(line);
        }
        flow.add(std::exchange(page, {})); // which frees it
    }
    List paragraphs = flow.take();
    Headings::mark(paragraphs, measure, outline);
    std::vector<ReadingBlock> blocks;
    for (ReadingParagraph& paragraph : paragraphs)
        blocks.push_back(blockFrom(std::move(paragraph), join));
    return blocks;
}
