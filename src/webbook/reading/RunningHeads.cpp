#include "webbook/reading/RunningHeads.h"

#include <QHash>
#include <QRegularExpression>
#include <array>
#include <cmath>
#include <map>
#include <set>

namespace RunningHeads {
namespace {

constexpr int edgeLevels = 3;        // heights at which lines count as at an edge
constexpr double sameHeight = 3;     // in points
constexpr double largestSize = 1.25; // for the size of most text; titles of slides recur, too
constexpr double usualShare = 0.4;   // of all pages, for a height at which heads stand
constexpr int nearPages = 2;         // between two that have the same head

// A line at the top or the bottom of its page.
struct EdgeLine {
    std::size_t page = 0;
    const ReadingLine* line = nullptr;
    bool isAtTop = false;
    double height = 0; // from the top of the page
    bool isApart = false;
    std::vector<int> numbers; // in its text
};

using Edge = std::vector<EdgeLine>;

bool isRoman(QStringView text) {
    static const QString letters = QStringLiteral("ivxlc");
    return !text.isEmpty() && text.size() <= 8 &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return letters.contains(c); });
}

// The text with its numbers replaced, which are added to the list.
QString shapeOf(const QString& text, std::vector<int>& numbers) {
    const QString folded = text.simplified().toLower();
    if (isRoman(folded))
        return QStringLiteral("#");
    QString shape;
    int number = -1;
    for (const QChar letter : folded) {
        if (letter.isDigit()) {
            if (number < 0)
                shape += u'#';
            number = std::min(std::max(number, 0), 100'000) * 10 + letter.digitValue();
            continue;
        }
        if (number >= 0)
            numbers.push_back(std::exchange(number, -1));
        shape += letter;
    }
    if (number >= 0)
        numbers.push_back(number);
    return shape;
}

// The outermost lines of a page at one of its edges.
void addEdge(Edge& edge, std::size_t page, std::vector<const ReadingLine*> lines, bool isAtTop) {
    const auto height = [&](const ReadingLine* line) {
        return isAtTop ? line->box.center().y() : -line->box.center().y();
    };
    std::sort(lines.begin(), lines.end(), [&](auto* a, auto* b) { return height(a) < height(b); });
    int level = 0;
    double last = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double at = height(lines[i]);
        if (level == 0 || at > last + sameHeight)
            ++level;
        if (level > edgeLevels)
            return;
        last = at;
        std::size_t next = i + 1;
        while (next < lines.size() && height(lines[next]) <= at + sameHeight)
            ++next;
        const bool isApart =
            next == lines.size() || height(lines[next]) - at > 1.4 * lines[i]->size;
        edge.push_back({page, lines[i], isAtTop, lines[i]->box.center().y(), isApart, {}});
    }
}

Edge edgesOf(const std::vector<ReadingPage>& pages) {
    Edge edge;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        std::vector<const ReadingLine*> lines;
        for (const ReadingRegion& region : pages[page].regions) {
            // Heads of tables recur, too.
            if (region.tag && region.tag->kind != ReadingBlock::Kind::paragraph)
                continue;
            for (const ReadingLine& line : region.lines)
                lines.push_back(&line);
        }
        addEdge(edge, page, lines, true);
        addEdge(edge, page, std::move(lines), false);
    }
    return edge;
}

// Whether some number counts as pages do, from one line to the other.
bool countOn(const EdgeLine& a, const EdgeLine& b) {
    const int pages = int(b.page) - int(a.page);
    for (const int from : a.numbers) {
        for (const int to : b.numbers) {
            if (to - from == pages)
                return true;
        }
    }
    return a.numbers == b.numbers;
}

bool recurs(const EdgeLine& a, const EdgeLine& b, std::size_t pages) {
    if (a.page == b.page || std::abs(a.height - b.height) > sameHeight ||
        std::abs(a.line->size - b.line->size) > 0.6)
        return false;
    const int distance = std::abs(int(a.page) - int(b.page));
    return countOn(a, b) && (distance <= nearPages || std::size_t(distance) < pages / 4);
}

std::set<const ReadingLine*> recurring(Edge& edge, double body, std::size_t pages) {
    QHash<QString, std::vector<const EdgeLine*>> byShape;
    std::set<const ReadingLine*> found;
    for (EdgeLine& line : edge) {
        if (line.line->size > largestSize * body)
            continue;
        auto& others = byShape[shapeOf(line.line->text, line.numbers)];
        // Those of the pages before, from the nearest on.
        constexpr std::size_t most = 12;
        for (std::size_t i = 0; i < std::min(most, others.size()); ++i) {
            const EdgeLine& other = **(others.rbegin() + std::ptrdiff_t(i));
            if (recurs(other, line, pages)) {
                found.insert(other.line);
                found.insert(line.line);
            }
        }
        others.push_back(&line);
    }
    return found;
}

int levelOf(const EdgeLine& line) {
    return int(std::lround(line.height / sameHeight)) * (line.isAtTop ? 1 : -1);
}

// Heads that are on one page only stand where the others do.
void addUsual(const Edge& edge, std::size_t pages, std::set<const ReadingLine*>& found) {
    std::map<int, std::set<std::size_t>> levels;
    for (const EdgeLine& line : edge) {
        if (found.contains(line.line))
            levels[levelOf(line)].insert(line.page);
    }
    for (const EdgeLine& line : edge) {
        std::set<std::size_t> usual;
        for (const int level : {-1, 0, 1}) {
            if (const auto at = levels.find(levelOf(line) + level); at != levels.end())
                usual.insert(at->second.begin(), at->second.end());
        }
        if (line.isApart && pages >= 4 && double(usual.size()) >= usualShare * double(pages))
            found.insert(line.line);
    }
}

// Numbers of pages that stand elsewhere than those of the others.
void addNumbers(const Edge& edge, std::set<const ReadingLine*>& found) {
    const auto isNumber = [](const EdgeLine& line) {
        const QString text = line.line->text.trimmed();
        return !text.isEmpty() && line.numbers.size() == 1 &&
               std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
    };
    std::map<int, int> offsets; // from the number of the page in the book
    for (const EdgeLine& line : edge) {
        if (!found.contains(line.line))
            continue;
        for (const int number : line.numbers)
            ++offsets[number - int(line.page)];
    }
    const auto usual = std::max_element(offsets.begin(), offsets.end(),
                                        [](auto& a, auto& b) { return a.second < b.second; });
    const int offset = usual == offsets.end() ? 1 : usual->first;
    for (const EdgeLine& line : edge) {
        if (line.isApart && isNumber(line) && line.numbers.front() - int(line.page) == offset)
            found.insert(line.line);
    }
}

double bodySize(const std::vector<ReadingPage>& pages) {
    std::map<int, qsizetype> letters;
    for (const ReadingPage& page : pages) {
        for (const ReadingRegion& region : page.regions) {
            for (const ReadingLine& line : region.lines)
                letters[int(std::lround(2 * line.size))] += line.text.size();
        }
    }
    const auto most = std::max_element(letters.begin(), letters.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    return most == letters.end() ? 0 : most->first / 2.0;
}

// Near the upper or lower edge of the page.
bool isAtEdge(const ReadingFigure& figure) {
    constexpr double edge = 0.15; // of the page's height
    const double middle = figure.box.center().y() / figure.page.height();
    return middle < edge || middle > 1 - edge;
}

// Logos and ornaments, which recur at the same place.
void removeFigures(std::vector<ReadingPage>& pages) {
    constexpr int mostPages = 2;
    const auto place = [](const ReadingFigure& figure) {
        const QRectF& box = figure.box;
        return std::array{std::lround(box.x() / sameHeight), std::lround(box.y() / sameHeight),
                          std::lround(box.width() / sameHeight)};
    };
    std::map<decltype(place({})), int> counts;
    for (const ReadingPage& page : pages) {
        for (const ReadingFigure& figure : page.figures)
            ++counts[place(figure)];
    }
    for (ReadingPage& page : pages) {
        std::erase_if(page.figures, [&](const ReadingFigure& figure) {
            return counts[place(figure)] > mostPages && isAtEdge(figure);
        });
    }
}

} // namespace

void remove(std::vector<ReadingPage>& pages) {
    removeFigures(pages);
    Edge edge = edgesOf(pages);
    auto found = recurring(edge, bodySize(pages), pages.size());
    addUsual(edge, pages.size(), found);
    addNumbers(edge, found);
    for (ReadingPage& page : pages) {
        for (ReadingRegion& region : page.regions) {
            std::vector<ReadingLine> kept;
            for (ReadingLine& line : region.lines) {
                if (!found.contains(&line))
                    kept.push_back(std::move(line));
            }
            region.lines = std::move(kept);
        }
        std::erase_if(page.regions, [](const auto& region) { return region.lines.empty(); });
    }
}

} // namespace RunningHeads
