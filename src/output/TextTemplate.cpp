#include "output/TextTemplate.h"

namespace {

constexpr QStringView opening = u"${";
constexpr QStringView closing = u"}";
// Where copying of the unsubstituted rest ends.
constexpr QStringView endOfRest = u"___${__";

// Consumes a text from the front, skipping white space before each token.
class Scanner {
public:
    explicit Scanner(QStringView text) : iLeft(text) {}

    bool isAtEnd() {
        skipSpace();
        return iLeft.isEmpty();
    }

    // The text up to the next mark, or the whole rest when there is none.
    QStringView upTo(QStringView mark) {
        skipSpace();
        return take(iLeft.indexOf(mark));
    }

    bool startsWith(QStringView mark) const { return iLeft.startsWith(mark); }

    void skip(QStringView mark) {
        if (startsWith(mark))
            iLeft = iLeft.sliced(mark.size());
    }

private:
    void skipSpace() {
        while (!iLeft.isEmpty() && iLeft.front().isSpace())
            iLeft = iLeft.sliced(1);
    }

    QStringView take(qsizetype length) {
        const QStringView taken = length < 0 ? iLeft : iLeft.first(length);
        iLeft = iLeft.sliced(taken.size());
        return taken;
    }

    QStringView iLeft;
};

QStringView withoutTrailingSpace(QStringView text) {
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

} // namespace

QString TextTemplate::parse() const {
    qsizetype anywhere = 0;
    return parse({}, anywhere);
}

QString TextTemplate::parse(const QString& name, qsizetype& position) const {
    position = -1;
    const QString result = filled(name, position);
    if (position < 0)
        position = result.size();
    return result;
}

QString TextTemplate::filled(const QString& wanted, qsizetype& position) const {
    QString result = QStringLiteral("");
    result.reserve(iFromStr.size());
    Scanner scanner(iFromStr);
    while (!scanner.isAtEnd()) {
        const QStringView prefix = scanner.upTo(opening);
        if (prefix.isEmpty()) {
            const QStringView rest = scanner.upTo(endOfRest);
            // White space is dropped only at the end of the text, not before the mark.
            return result.append(scanner.isAtEnd() ? withoutTrailingSpace(rest) : rest);
        }
        if (!scanner.startsWith(opening))
            return result.append(withoutTrailingSpace(prefix));
        scanner.skip(opening);
        const QStringView name = scanner.upTo(closing);
        scanner.skip(closing);
        result += prefix;
        if (position < 0 && name == wanted)
            position = result.size();
        result += iKeyAndValues.value(name.toString());
    }
    return result;
}
