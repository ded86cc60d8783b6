#include "library/catalogue/Markup.h"

#include "util/XMLText.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

QByteArray Markup::escaped(const QString& text) {
    const bool isPlain = std::none_of(text.begin(), text.end(), [](QChar letter) {
        const char16_t code = letter.unicode();
        return code < 0x20 || letter.isSurrogate() || code >= 0xFFFE || code == u'&' ||
               code == u'<' || code == u'>' || code == u'"' || code == u'\'';
    });
    return isPlain ? text.toUtf8()
                   : XMLText::legal(text)
                         .toHtmlEscaped()
                         .replace(u'\'', QStringLiteral("&#39;"))
                         .toUtf8();
}

QByteArray Markup::path(const QString& path) {
    static const QByteArray plain = "/.-_";
    const bool isPlain = std::all_of(path.begin(), path.end(), [](QChar letter) {
        return letter.unicode() < 0x80 &&
               (letter.isLetterOrNumber() || plain.contains(letter.toLatin1()));
    });
    return isPlain ? path.toLatin1() : QUrl::toPercentEncoding(path, "/");
}

QByteArray Markup::lang(const QString& tag, const QString& page) {
    static const QRegularExpression valid(QStringLiteral("^[A-Za-z]{2,3}(-[A-Za-z0-9]{1,8})*\\z"));
    if (tag.isEmpty() || tag.compare(page, Qt::CaseInsensitive) == 0 ||
        !valid.match(tag).hasMatch())
        return {};
    return " lang=\"" + tag.toLatin1() + '"';
}
