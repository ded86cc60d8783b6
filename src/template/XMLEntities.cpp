#include "template/XMLEntities.h"

#include "base/PlatformException.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace {

// Nested entities of a few hundred bytes can expand to gigabytes.
constexpr qsizetype maximumTextBytes = 1 << 20;
constexpr int maximumDepth = 16;
constexpr qsizetype maximumNameLength = 255;

struct Entities {
    QHash<QByteArray, QByteArray> texts;
    qsizetype end = 0; // of the declarations
};

bool startsAt(const QByteArray& xml, qsizetype at, QByteArrayView text) {
    return QByteArrayView(xml).sliced(at).startsWith(text);
}

qsizetype endOf(const QByteArray& xml, QByteArrayView end, qsizetype from) {
    const qsizetype found = xml.indexOf(end, from);
    return found < 0 ? xml.size() : found + end.size();
}

// The end of the comment, CDATA section or processing instruction that starts at that position; the
// same position when there is none.
qsizetype endOfVerbatim(const QByteArray& xml, qsizetype at) {
    static constexpr std::pair<const char*, const char*> kinds[] = {
        {"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
    for (const auto& [start, end] : kinds) {
        if (startsAt(xml, at, start))
            return endOf(xml, end, at + qsizetype(qstrlen(start)));
    }
    return at;
}

// The same for declarations, where quoted strings may contain any character.
qsizetype endOfPart(const QByteArray& xml, qsizetype at) {
    if (xml[at] == '"' || xml[at] == '\'')
        return endOf(xml, QByteArrayView(xml).sliced(at, 1), at + 1);
    return std::max(at + 1, endOfVerbatim(xml, at));
}

// Where the internal DTD subset begins; the end of the text when there is none.
qsizetype startOfDeclarations(const QByteArray& xml) {
    static const QByteArrayView space = " \t\r\n";
    qsizetype at = 0;
    for (qsizetype from = -1; from != at && at < xml.size();) {
        from = at;
        at = space.contains(xml[at]) ? at + 1 : endOfVerbatim(xml, at);
    }
    if (!startsAt(xml, at, "<!DOCTYPE"))
        return xml.size();
    while (at < xml.size() && xml[at] != '[') {
        if (xml[at] == '>')
            return xml.size();
        at = endOfPart(xml, at);
    }
    return at;
}

Entities declaredEntities(const QByteArray& xml) {
    Entities entities;
    qsizetype at = startOfDeclarations(xml);
    if (at == xml.size())
        return entities;
    static const QRegularExpression declaration(
        QStringLiteral(R"re(<!ENTITY\s++([^\s%"'<>&;]++)\s++(?:"([^"]*+)"|'([^']*+)')\s*+>)re"));
    static const QByteArrayList predefined{"amp", "lt", "gt", "quot", "apos"};
    const QString text = QString::fromLatin1(xml); // one character per byte
    while (at < xml.size() && xml[at] != ']') {
        const auto match = startsAt(xml, at, "<!ENTITY")
                               ? declaration.match(text, at, QRegularExpression::NormalMatch,
                                                   QRegularExpression::AnchorAtOffsetMatchOption)
                               : QRegularExpressionMatch();
        at = match.hasMatch() ? match.capturedEnd() : endOfPart(xml, at);
        const QByteArray name = match.captured(1).toLatin1();
        // The first declaration of a name counts.
        if (match.hasMatch() && !predefined.contains(name) && !entities.texts.contains(name))
            entities.texts[name] = (match.captured(2) + match.captured(3)).toLatin1();
    }
    entities.end = at;
    return entities;
}

class Expansion {
public:
    explicit Expansion(const Entities& entities) : iEntities(entities) {}

    void append(const QByteArray& text, qsizetype from, int depth) {
        qsizetype copied = from;
        for (qsizetype at = from; at < text.size();) {
            const QByteArray name = text[at] == '&' ? nameAt(text, at + 1) : QByteArray();
            const auto entity = iEntities.texts.constFind(name);
            if (entity == iEntities.texts.constEnd()) {
                at = std::max(at + 1, endOfVerbatim(text, at));
                continue;
            }
            iResult.append(QByteArrayView(text).sliced(copied, at - copied));
            spend(entity->size() + 1, depth); // empty entities cost time, too
            append(*entity, 0, depth + 1);
            at += name.size() + 2;
            copied = at;
        }
        iResult.append(QByteArrayView(text).sliced(copied));
    }

    const QByteArray& result() const { return iResult; }

private:
    static QByteArray nameAt(const QByteArray& text, qsizetype at) {
        const QByteArray start = text.mid(at, maximumNameLength + 1);
        return start.left(std::max<qsizetype>(start.indexOf(';'), 0));
    }

    void spend(qsizetype bytes, int depth) {
        iLeft -= bytes;
        if (iLeft < 0 || depth == maximumDepth)
            throw PlatformException(
                ErrorKind::templateFile,
                Message::translate("TemplateFile",
                                   "its entities stand for too much text or for themselves"));
    }

    const Entities& iEntities;
    QByteArray iResult;
    qsizetype iLeft = maximumTextBytes;
};

} // namespace

QByteArray XMLEntities::resolved(const QByteArray& xml) {
    const Entities entities = declaredEntities(xml);
    if (entities.texts.isEmpty())
        return xml;
    Expansion expansion(entities);
    expansion.append(xml, entities.end, 0);
    return xml.left(entities.end) + expansion.result();
}
