#include "webbook/reading/LineJoin.h"

namespace {

constexpr QChar softHyphen(0xAD);
constexpr QChar emDash(0x2014);

bool isHyphen(QChar letter) {
    return letter == u'-' || letter == QChar(0x2010) || letter == softHyphen;
}

bool isOfWord(QChar letter) {
    return letter.isLetter() || letter.isMark() || letter == u'-' || letter == u'\'' ||
           letter == QChar(0x2019);
}

// The part of a word before a hyphen at the end of a text, without the hyphen.
QString endOf(const QString& text) {
    qsizetype first = text.size() - 1;
    while (first > 0 && isOfWord(text[first - 1]))
        --first;
    return text.mid(first, text.size() - 1 - first);
}

QString startOf(const QString& text) {
    qsizetype end = 0;
    while (end < text.size() && isOfWord(text[end]))
        ++end;
    return text.left(end);
}

bool isInAddress(const QString& text) {
    const qsizetype word = text.lastIndexOf(u' ') + 1;
    return text.endsWith(u'/') && text.indexOf(u"://", word) >= 0;
}

void add(ReadingBlock& block, const ReadingRun& run) {
    if (!block.runs.empty()) {
        ReadingRun& last = block.runs.back();
        if (last.position == run.position && last.style == run.style && last.url == run.url &&
            last.target == run.target) {
            last.text += run.text;
            return;
        }
    }
    block.runs.push_back(run);
}

} // namespace

bool isUnspaced(QChar letter) {
    const char16_t code = letter.unicode();
    const bool isKanaOrHan = code >= 0x3000 && code < 0xA000;
    const bool isFullWidth = code >= 0xFF01 && code <= 0xFF9F;
    return isKanaOrHan || isFullWidth || letter.isSurrogate();
}

void LineJoin::learn(const ReadingLine& line) {
    learn(line.text);
}

void LineJoin::learn(const QString& text) {
    const QString folded = text.toLower();
    qsizetype first = 0;
    for (qsizetype i = 0; i <= folded.size(); ++i) {
        if (i < folded.size() && isOfWord(folded[i]))
            continue;
        // The last one may be the part of a word only.
        if (i > first && !(i == folded.size() && isHyphen(folded[i - 1])))
            iWords.insert(qHash(QStringView(folded).mid(first, i - first)));
        first = i + 1;
    }
}

bool LineJoin::isKnown(const QString& word) const {
    return iWords.contains(qHash(QStringView(word.toLower())));
}

bool LineJoin::belongsHyphen(const QString& before, const QString& after) const {
    if (isKnown(before + after))
        return false;
    if (isKnown(before + u'-' + after))
        return true;
    return before.size() < 2 || before.contains(u'-') || !after.front().isLower();
}

void LineJoin::append(ReadingBlock& block, const ReadingLine& line) const {
    QString& last = block.runs.back().text;
    const QChar end = last.isEmpty() ? QChar() : last.back();
    const QChar start = line.text.isEmpty() ? QChar() : line.text.front();
    if (block.kind == ReadingBlock::Kind::code) {
        last += u'\n';
    } else if (isHyphen(end) && start.isLetterOrNumber() && last.size() > 1) {
        const QString before = endOf(last);
        const bool isDash = !last[last.size() - 2].isLetterOrNumber();
        if (isDash)
            last += u' ';
        else if (end == softHyphen || (!before.isEmpty() && start.isLetter() &&
                                       !belongsHyphen(before, startOf(line.text))))
            last.chop(1);
    } else if (!last.endsWith(u' ') && end != emDash && !isInAddress(last) &&
               !(isUnspaced(end) && isUnspaced(start))) {
        last += u' ';
    }
    for (const ReadingRun& run : line.runs)
        add(block, run);
}
