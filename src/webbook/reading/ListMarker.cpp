#include "webbook/reading/ListMarker.h"

#include <QRegularExpression>

namespace {

constexpr qsizetype longestNumber = 9;

} // namespace

ListMarker listMarkerOf(const QString& text) {
    if (text.isEmpty())
        return ListMarker::none;
    static const QString bullets = QStringLiteral("•◦▪▫‣⁃∙●○■□◆◇►▶➢➤✓✔★☐☑");
    static const QString dashes = QStringLiteral("-–—*·−");
    if (bullets.contains(text.front()) && text.size() > 1)
        return ListMarker::bullet;
    const auto category = text.front().category();
    const bool isSymbol = category == QChar::Other_PrivateUse || category == QChar::Other_Control;
    if (isSymbol && text.size() > 2 && text[1].isSpace())
        return ListMarker::bullet; // of a font of symbols
    if (dashes.contains(text.front()) && text.size() > 2 && text[1].isSpace())
        return ListMarker::dash;
    // Most lines have none, which is seen without an expression.
    qsizetype blank = 1;
    while (blank < text.size() && blank < longestNumber && !text[blank].isSpace())
        ++blank;
    static const QString ends = QStringLiteral(".)]");
    if (blank == text.size() || !text[blank].isSpace() ||
        !(ends.contains(text[blank - 1]) || text[blank - 1].isDigit()))
        return ListMarker::none;
    static const QRegularExpression number(QStringLiteral(
        "^(?:\\(?(?:\\d{1,3}|[a-z]|[ivx]{1,5})[.)]|[A-Z]\\)|\\[\\d{1,3}\\]|\\d{1,2}(?:\\."
        "\\d{1,2})+\\.?)\\s"));
    return number.match(text).hasMatch() ? ListMarker::number : ListMarker::none;
}

bool startsLikeFootnote(const QString& text) {
    static const QRegularExpression mark(QStringLiteral("^(?:[*†‡§¶]+|\\(?\\d{1,3}[.)]?)\\s*\\S"));
    return mark.match(text).hasMatch();
}
