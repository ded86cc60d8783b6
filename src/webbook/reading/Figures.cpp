#include "webbook/reading/Figures.h"

#include "webbook/reading/Caption.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <span>

namespace Figures {
namespace {

using Kind = PDFMark::Kind;
using Marks = std::vector<PDFMark>;

// In points: how far marks of one figure are apart, and rules from what they belong to.
constexpr double nearMarks = 14;
constexpr double nearRule = 7;
constexpr double nearRules = 2;
constexpr double staffPitch = 8;  // of the lines of a musical staff
constexpr double nearLabel = 13;  // of words beside a drawing
constexpr double nearFigure = 36; // of parts with one caption

constexpr double largerSize = 1.1; // of headings, for the size of most text

constexpr double leastArea = 1'600; // of a figure, in square points
constexpr double leastSide = 20;
constexpr double letterImage = 40; // the height of an image that may stand in a line

// Shares of an area.
constexpr double wholePage = 0.8;
constexpr double leastImages = 0.3;
constexpr double leastDrawn = 0.15;
constexpr double mostText = 0.35;
constexpr double leastFilled = 0.2;
constexpr double mostTextAtFills = 0.12;
constexpr double mostTextAboveCaption = 0.6;

double areaOf(const QRectF& box) {
    return box.width() * box.height();
}

QRectF around(const QRectF& box, double distance) {
    return box.adjusted(-distance, -distance, distance, distance);
}

// Also of boxes without width or height.
bool meet(const QRectF& a, const QRectF& b) {
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() &&
           b.top() <= a.bottom();
}

// A line of the page's text.
struct Line {
    QRectF box;
    double size = 0; // of its first letters
    int style = plainText;
    bool isShort = false; // a letter or a number
    bool isProse = false;
    bool isCaption = false;
};

bool hasLetters(const PDFTextLine& line) {
    return std::any_of(line.words.begin(), line.words.end(), [](const PDFTextWord& word) {
        return std::any_of(word.text.begin(), word.text.end(), [](QChar letter) {
            return letter.category() != QChar::Other_PrivateUse && !letter.isSpace();
        });
    });
}

// As long as those of paragraphs.
bool isProse(const PDFTextLine& line, const QString& text) {
    constexpr std::size_t fewestWords = 6;
    constexpr qsizetype fewestLetters = 25;
    return line.words.size() >= fewestWords && text.size() >= fewestLetters;
}

std::vector<Line> linesOf(const std::vector<PDFTextLine>& lines) {
    std::vector<Line> made;
    for (const PDFTextLine& line : lines) {
        QString text;
        for (const PDFTextWord& word : line.words)
            text += word.text;
        if (hasLetters(line))
            made.push_back({line.box, line.words.front().size, line.words.front().style,
                            text.trimmed().size() <= 3, isProse(line, text),
                            Caption::startsLike(text)});
    }
    // The last line of a paragraph may be short; so may those beside a picture.
    std::sort(made.begin(), made.end(),
              [](const Line& a, const Line& b) { return a.box.top() < b.box.top(); });
    for (std::size_t i = 1; i < made.size(); ++i) {
        constexpr double sameEdge = 2;
        constexpr std::size_t farthest = 4;
        for (std::size_t j = i - std::min(i, farthest); j < i && !made[i].isProse; ++j) {
            const double gap = made[i].box.top() - made[j].box.top();
            made[i].isProse = made[j].isProse && gap > 0 && gap < 1.8 * made[i].box.height() &&
                              std::abs(made[i].box.left() - made[j].box.left()) < sameEdge &&
                              std::abs(made[i].size - made[j].size) < 0.1 * made[i].size;
        }
    }
    return made;
}

// Of paragraphs, in points; endless without these.
double usualSize(const std::vector<Line>& lines) {
    std::map<double, double> lengths;
    for (const Line& line : lines) {
        if (line.isProse)
            lengths[std::round(2 * line.size) / 2] += line.box.width();
    }
    const auto most = std::max_element(lengths.begin(), lengths.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    return most == lengths.end() ? std::numeric_limits<double>::infinity() : most->first;
}

// What makes no figure by itself.
bool isWeak(Kind kind) {
    return kind == Kind::rule || kind == Kind::sign;
}

// Marks that belong together.
struct Cluster {
    QRectF box;
    QRectF drawn;      // what is no rule and not under text
    double images = 0; // areas
    double fills = 0;
    int fillCount = 0;
    int staffLines = 0;
    int signs = 0;
    bool hasDrawing = false;

    void add(const PDFMark& mark, bool isUnderText) {
        box |= mark.box;
        signs += mark.kind == Kind::sign ? 1 : 0;
        if (isWeak(mark.kind) || isUnderText)
            return;
        drawn |= mark.box;
        hasDrawing = hasDrawing || mark.kind == Kind::drawing;
        if (mark.kind == Kind::image)
            images += areaOf(mark.box);
        if (mark.kind != Kind::fill)
            return;
        fills += areaOf(mark.box);
        ++fillCount;
    }
};

class Finder {
public:
    Finder(const PDFPageContent& content, const QSizeF& size)
        : iPage(QPointF(), size), iLines(linesOf(content.text.lines)), iSize(usualSize(iLines)) {
        takeMarks(content.marks);
    }

    std::vector<Figure> find();

private:
    void takeMarks(const Marks& marks);
    bool isBackground(const PDFMark& mark) const;
    bool belongTogether(std::size_t a, std::size_t b) const;
    bool areStaff(const PDFMark& a, const PDFMark& b) const;
    std::vector<Cluster> clusters() const;
    bool isFigure(const Cluster& cluster) const;
    bool hasCaption(const QRectF& box) const;
    bool isLabel(const Line& line) const;
    bool divides(const Line& line) const;
    bool isOnMark(const Line& line) const;
    double textIn(const QRectF& box) const;
    int proseIn(const QRectF& box) const;
    QRectF withLabels(QRectF box) const;
    QRectF withoutText(QRectF box) const;
    bool haveOneCaption(const QRectF& a, const QRectF& b) const;
    void join(std::vector<QRectF>& boxes) const;

    QRectF iPage;
    std::vector<Line> iLines;
    double iSize; // of the letters of paragraphs
    Marks iMarks; // from left to right
    std::vector<bool> iUnderText;
};

int Finder::proseIn(const QRectF& box) const {
    return int(std::count_if(iLines.begin(), iLines.end(), [&](const Line& line) {
        return line.isProse && box.contains(line.box.center());
    }));
}

double Finder::textIn(const QRectF& box) const {
    double area = 0;
    for (const Line& line : iLines)
        area += box.contains(line.box.center()) ? areaOf(line.box) : 0;
    return area;
}

// What text stands on: the page's colour, a scan, a box around a paragraph.
bool Finder::isBackground(const PDFMark& mark) const {
    constexpr int fewestOnImage = 3;
    if (isWeak(mark.kind))
        return false;
    if (areaOf(mark.box) > wholePage * areaOf(iPage))
        return !iLines.empty() || mark.kind != Kind::image;
    return proseIn(mark.box) >= (mark.kind == Kind::image ? fewestOnImage : 1);
}

void Finder::takeMarks(const Marks& marks) {
    for (PDFMark mark : marks) {
        mark.box = mark.box.intersected(iPage);
        if (!mark.box.isNull() && !isBackground(mark))
            iMarks.push_back(mark);
    }
    std::sort(iMarks.begin(), iMarks.end(),
              [](const PDFMark& a, const PDFMark& b) { return a.box.left() < b.box.left(); });
    for (const PDFMark& mark : iMarks) {
        const bool isArea = mark.kind == Kind::frame || mark.kind == Kind::fill;
        iUnderText.push_back(isArea && textIn(mark.box) > 0);
    }
}

// Whether two rules are lines of one staff, or of something as narrow: rows of tables are higher.
bool Finder::areStaff(const PDFMark& a, const PDFMark& b) const {
    constexpr double sameEdge = 2;
    return a.kind == Kind::rule && b.kind == Kind::rule && a.box.width() > 4 * staffPitch &&
           std::abs(a.box.left() - b.box.left()) < sameEdge &&
           std::abs(a.box.right() - b.box.right()) < sameEdge &&
           std::abs(a.box.center().y() - b.box.center().y()) < staffPitch;
}

bool Finder::belongTogether(std::size_t a, std::size_t b) const {
    const auto weakness = [&](std::size_t i) {
        return isWeak(iMarks[i].kind) || iUnderText[i] ? 1 : 0;
    };
    const int weak = weakness(a) + weakness(b);
    const double distance = weak == 0 ? nearMarks : weak == 1 ? nearRule : nearRules;
    return meet(around(iMarks[a].box, distance), iMarks[b].box) || areStaff(iMarks[a], iMarks[b]);
}

std::vector<Cluster> Finder::clusters() const {
    std::vector<std::size_t> parents(iMarks.size());
    std::iota(parents.begin(), parents.end(), std::size_t(0));
    const auto root = [&](std::size_t i) {
        while (parents[i] != i)
            i = parents[i] = parents[parents[i]];
        return i;
    };
    std::vector<int> staffLines(iMarks.size());
    for (std::size_t a = 0; a < iMarks.size(); ++a) {
        const double furthest = iMarks[a].box.right() + nearMarks;
        for (std::size_t b = a + 1; b < iMarks.size() && iMarks[b].box.left() <= furthest; ++b) {
            if (!belongTogether(a, b))
                continue;
            parents[root(b)] = root(a);
            if (areStaff(iMarks[a], iMarks[b]))
                staffLines[a] = staffLines[b] = 1;
        }
    }
    std::vector<std::optional<Cluster>> found(iMarks.size());
    for (std::size_t i = 0; i < iMarks.size(); ++i) {
        auto& cluster = found[root(i)];
        if (!cluster)
            cluster.emplace();
        cluster->add(iMarks[i], iUnderText[i]);
        cluster->staffLines += staffLines[i];
    }
    std::vector<Cluster> made;
    for (const auto& cluster : found) {
        if (cluster)
            made.push_back(*cluster);
    }
    return made;
}

bool Finder::hasCaption(const QRectF& box) const {
    const QRectF below(box.left(), box.bottom(), box.width(), nearFigure);
    return std::any_of(iLines.begin(), iLines.end(), [&](const Line& line) {
        return line.isCaption && meet(below, line.box) && line.box.top() > box.center().y();
    });
}

bool Finder::isFigure(const Cluster& cluster) const {
    constexpr int fewestFills = 3;
    constexpr int fewestStaffLines = 4;
    constexpr int fewestSigns = 5;
    const double area = areaOf(cluster.box);
    if (area <= 0)
        return false;
    const double text = textIn(cluster.box) / area;
    if (cluster.images >= leastImages * area)
        return true;
    if (proseIn(cluster.box) > 2)
        return false;
    if (cluster.staffLines >= fewestStaffLines && text < mostText)
        return true;
    const bool isDrawn = cluster.hasDrawing || cluster.signs >= fewestSigns;
    if (isDrawn && areaOf(cluster.drawn) >= leastDrawn * area && text < mostText)
        return true;
    if (text < mostTextAboveCaption && hasCaption(cluster.box))
        return true;
    return cluster.fillCount >= fewestFills && cluster.fills >= leastFilled * area &&
           text < mostTextAtFills;
}

// Text of its own, though short: a caption, a bold heading, a program.
bool isText(const Line& line) {
    return line.isProse || line.isCaption || (line.style & (boldText | monospacedText)) != 0;
}

// Whether figures end at a line.
bool Finder::divides(const Line& line) const {
    return isText(line) || (line.size > largerSize * iSize && !line.isShort);
}

// A word in a box of a diagram, however large.
bool Finder::isOnMark(const Line& line) const {
    return std::any_of(iMarks.begin(), iMarks.end(), [&](const PDFMark& mark) {
        return !isWeak(mark.kind) && around(mark.box, 1).contains(line.box);
    });
}

// Neither the first or last line of more text, nor a line of the column.
bool Finder::isLabel(const Line& line) const {
    constexpr double sameEdge = 1;
    const auto goesOn = [&](const Line& other) {
        const double down = std::abs(other.box.top() - line.box.top());
        return std::abs(other.box.left() - line.box.left()) < sameEdge && down > 1 &&
               down < 1.6 * line.box.height();
    };
    const auto isOfColumn = [&](const Line& other) {
        return other.isProse && std::abs(other.box.left() - line.box.left()) < sameEdge;
    };
    return !divides(line) && std::count_if(iLines.begin(), iLines.end(), goesOn) < 2 &&
           std::none_of(iLines.begin(), iLines.end(), isOfColumn);
}

// With the words at its axes and ends.
QRectF Finder::withLabels(QRectF box) const {
    constexpr int rounds = 2;
    constexpr double mostGrowth = 1.75; // of the area, by one label
    for (int round = 0; round < rounds; ++round) {
        const QRectF before = box;
        const QRectF reach = around(box, nearLabel);
        for (const Line& line : iLines) {
            const bool isSmall = areaOf(before | line.box) < mostGrowth * areaOf(before);
            const bool isWithin = before.contains(line.box.center()) && !line.isProse;
            const bool isCut = before.intersects(line.box) && !isText(line);
            if (isSmall && (isWithin || isCut || (meet(reach, line.box) && isLabel(line))))
                box |= line.box;
        }
        if (box == before)
            break;
    }
    return box;
}

// Without what text above and below it takes of its edges.
QRectF Finder::withoutText(QRectF box) const {
    constexpr double mostCut = 0.25;
    const double height = box.height();
    for (const Line& line : iLines) {
        const QRectF common = box.intersected(line.box);
        const bool isBeside = common.width() < line.box.width() / 2;
        if (!divides(line) || common.isEmpty() || isBeside || isOnMark(line))
            continue;
        QRectF cut = box;
        if (line.box.center().y() > box.center().y())
            cut.setBottom(line.box.top());
        else
            cut.setTop(line.box.bottom());
        if (cut.height() > (1 - mostCut) * height)
            box = cut;
    }
    return box;
}

// Whether two figures are parts of one: beside or below each other, and no text between.
bool Finder::haveOneCaption(const QRectF& a, const QRectF& b) const {
    const QRectF both = a | b;
    const double across = std::min(a.right(), b.right()) - std::max(a.left(), b.left());
    const double down = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top());
    const bool areInRow = down > 0.5 * std::min(a.height(), b.height()) && across > -nearFigure;
    const bool areInColumn = across > 0.5 * std::min(a.width(), b.width()) && down > -nearFigure;
    return (areInRow || areInColumn) &&
           std::none_of(iLines.begin(), iLines.end(), [&](const Line& line) {
               const QPointF middle = line.box.center();
               return divides(line) && !isOnMark(line) && both.contains(middle) &&
                      !a.contains(middle) && !b.contains(middle);
           });
}

void Finder::join(std::vector<QRectF>& boxes) const {
    for (std::size_t a = 0; a < boxes.size(); ++a) {
        for (std::size_t b = 0; b < boxes.size(); ++b) {
            if (a == b || (!boxes[a].intersects(boxes[b]) && !haveOneCaption(boxes[a], boxes[b])))
                continue;
            boxes[std::min(a, b)] = boxes[a] | boxes[b];
            boxes.erase(boxes.begin() + std::ptrdiff_t(std::max(a, b)));
            a = std::min(a, b); // others may be near now
            b = std::size_t(-1);
        }
    }
}

std::vector<Figure> Finder::find() {
    std::vector<QRectF> boxes;
    for (const Cluster& cluster : clusters()) {
        if (isFigure(cluster))
            boxes.push_back(withoutText(withLabels(cluster.box)));
    }
    join(boxes);
    std::erase_if(boxes, [&](const QRectF& box) {
        const auto isBeside = [&](const Line& line) {
            return line.isProse && !box.contains(line.box.center()) &&
                   meet(around(line.box, nearLabel),
                        QRectF(box.left(), box.center().y(), box.width(), 0));
        };
        const bool stood =
            box.height() < letterImage && std::any_of(iLines.begin(), iLines.end(), isBeside);
        return areaOf(box) < leastArea || std::min(box.width(), box.height()) < leastSide || stood;
    });
    std::vector<Figure> figures;
    for (const QRectF& box : boxes) {
        const bool hasImages = std::any_of(iMarks.begin(), iMarks.end(), [&](const PDFMark& mark) {
            return mark.kind == Kind::image && box.contains(mark.box.center());
        });
        figures.push_back({around(box, 0.5).intersected(iPage), hasImages, {}});
    }
    return figures;
}

// Of the tagged figure that is at the same place, or of those that are parts of it.
QString alternativeOf(const QRectF& box, const std::vector<PDFAlternative>& alternatives) {
    constexpr double leastShare = 0.5;
    QStringList texts;
    for (const PDFAlternative& each : alternatives) {
        const double smaller = std::min(areaOf(box), areaOf(each.box));
        if (smaller > 0 && areaOf(box.intersected(each.box)) > leastShare * smaller)
            texts << each.text;
    }
    texts.removeDuplicates();
    return texts.join(QStringLiteral("; "));
}

} // namespace

OfPage of(const PDFPageContent& content, const QSizeF& size) {
    // A map has more, and a long answer of a broken program.
    constexpr std::size_t mostLines = 3'000;
    if (size.isEmpty() || content.marks.empty() || content.text.lines.size() > mostLines)
        return {size, {}};
    OfPage found{size, Finder(content, size).find()};
    for (Figure& figure : found.figures)
        figure.alternative = alternativeOf(figure.box, content.text.alternatives);
    return found;
}

} // namespace Figures
