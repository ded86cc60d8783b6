#include "pdf/PDFText.h"

#include <QChar>
#include <QList>
#include <algorithm>

namespace {

enum class Direction { left, right, neutral };

// A character with its combining marks.
struct Cluster {
    QString text;
    double from;
    double to;
    Direction direction;
    double size;
    int style;
    int tag;
};

Direction directionOf(char32_t code) {
    switch (QChar::direction(code)) {
    case QChar::DirR:
    case QChar::DirAL:
        return Direction::right;
    case QChar::DirL:
    case QChar::DirEN:
    case QChar::DirAN:
        return Direction::left;
    default:
        return Direction::neutral;
    }
}

// Presentation forms: ligatures, and Arabic letters in their positional shapes.
bool isPresentationForm(char32_t code) {
    return (code >= 0xFB00 && code <= 0xFDFF) || (code >= 0xFE70 && code <= 0xFEFC);
}

QString textOf(char32_t code) {
    const QString text = QString::fromUcs4(&code, 1);
    return isPresentationForm(code) ? text.normalized(QString::NormalizationForm_KC) : text;
}

bool isBlank(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.isSpace(); });
}

// Scripts that are written without spaces between words.
bool isOfUnspacedScript(const QString& text) {
    switch (text.isEmpty() ? 0 : QChar::script(text.toUcs4().front())) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Bopomofo:
        return true;
    default:
        return false;
    }
}

std::vector<Cluster> clustersOf(const std::vector<PDFTextCharacter>& characters) {
    std::vector<Cluster> clusters;
    for (const PDFTextCharacter& character : characters) {
        const auto category = QChar::category(character.code);
        const bool isMark = category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
        if (isMark && !clusters.empty())
            clusters.back().text += textOf(character.code);
        else
            clusters.push_back({textOf(character.code), character.from, character.to,
                                directionOf(character.code), character.size, character.style,
                                character.tag});
    }
    return clusters;
}

// Blanks in tightly set lines are narrower than the 0.15 of a letter's size that MuPDF takes for
// one. Not so the gap after a slanted letter that leans over, nor gaps in letterspaced words.
void addNarrowBlanks(std::vector<Cluster>& clusters) {
    constexpr double narrowest = 0.13;
    constexpr std::size_t lettersOfWords = 3; // on average, in lines that are not letterspaced
    const auto isBetweenWords = [](const Cluster& a, const Cluster& b) {
        return !isBlank(a.text) && !isBlank(b.text) && !isOfUnspacedScript(a.text) &&
               !isOfUnspacedScript(b.text) &&
               ((a.style & italicText) == 0 || (b.style & italicText) != 0) &&
               b.from - a.to > narrowest * std::min(a.size, b.size);
    };
    std::vector<Cluster> spaced;
    std::size_t added = 0;
    for (const Cluster& cluster : clusters) {
        if (!spaced.empty() && isBetweenWords(spaced.back(), cluster)) {
            spaced.push_back({QStringLiteral(" "), spaced.back().to, cluster.from,
                              Direction::neutral, cluster.size, cluster.style, spaced.back().tag});
            ++added;
        }
        spaced.push_back(cluster);
    }
    if (added * lettersOfWords < clusters.size())
        clusters = std::move(spaced);
}

// Neutral characters take the direction of their neighbours when these agree, else that of the
// line.
void resolveNeutrals(std::vector<Cluster>& clusters, Direction ofLine) {
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        if (clusters[i].direction != Direction::neutral)
            continue;
        std::size_t end = i;
        while (end < clusters.size() && clusters[end].direction == Direction::neutral)
            ++end;
        const Direction before = i == 0 ? ofLine : clusters[i - 1].direction;
        const Direction after = end == clusters.size() ? ofLine : clusters[end].direction;
        for (; i < end; ++i)
            clusters[i].direction = before == after ? before : ofLine;
    }
}

// From visual order (left to right) to reading order.
void reorderToReadingOrder(std::vector<Cluster>& clusters, Direction ofLine) {
    std::stable_sort(clusters.begin(), clusters.end(),
                     [](const Cluster& a, const Cluster& b) { return a.from < b.from; });
    resolveNeutrals(clusters, ofLine);
    const auto againstLine = [&](const Cluster& cluster) { return cluster.direction != ofLine; };
    if (ofLine == Direction::right)
        std::reverse(clusters.begin(), clusters.end());
    for (auto run = std::find_if(clusters.begin(), clusters.end(), againstLine);
         run != clusters.end();) {
        const auto end = std::find_if_not(run, clusters.end(), againstLine);
        std::reverse(run, end);
        run = std::find_if(end, clusters.end(), againstLine);
    }
}

} // namespace

void PDFText::makeWords(const std::vector<PDFTextCharacter>& characters, double lineStart,
                        PDFTextLine& line) {
    std::vector<Cluster> clusters = clustersOf(characters);
    const auto count = [&](Direction direction) {
        return std::count_if(clusters.begin(), clusters.end(), [&](const Cluster& cluster) {
            return cluster.direction == direction;
        });
    };
    const auto rightToLeft = count(Direction::right);
    line.rightToLeft = rightToLeft > 0 && rightToLeft >= count(Direction::left);
    if (rightToLeft > 0)
        reorderToReadingOrder(clusters, line.rightToLeft ? Direction::right : Direction::left);
    else
        addNarrowBlanks(clusters);

    bool begins = true;
    for (const Cluster& cluster : clusters) {
        if (isBlank(cluster.text)) {
            if (!line.words.empty() && !line.words.back().text.endsWith(u' '))
                line.words.back().text += u' ';
            begins = true;
            continue;
        }
        const bool alone = isOfUnspacedScript(cluster.text);
        if (begins || alone)
            line.words.push_back(
                {QString(), cluster.from - lineStart, 0, cluster.size, cluster.style, cluster.tag});
        PDFTextWord& word = line.words.back();
        const double from = std::min(word.start, cluster.from - lineStart);
        const double to = std::max(word.start + word.length, cluster.to - lineStart);
        word.text += cluster.text;
        word.start = from;
        word.length = to - from;
        begins = alone;
    }
    if (!line.words.empty() && line.words.back().text.endsWith(u' '))
        line.words.back().text.chop(1);
}
