#include "output/PageScripts.h"

#include "output/TextTemplate.h"
#include "util/NSData+CommonCrypto.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

constexpr auto options =
    QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption;

struct Scripts {
    QStringList inlined;  // their texts
    QStringList handlers; // values of attributes such as "onclick"
    QStringList servers;  // of those loaded from elsewhere
};

QString withoutEntities(QString value) {
    return value.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&#39;"), QStringLiteral("'"))
        .replace(QStringLiteral("&apos;"), QStringLiteral("'"))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

void addAttributes(const QString& attributes, Scripts& scripts) {
    static const QRegularExpression handler(
        QStringLiteral(R"re([\s"'/]on\w+\s*=\s*(?|"([^"]*)"|'([^']*)'|([^\s"'>]+)))re"), options);
    for (const auto& match : handler.globalMatch(attributes))
        scripts.handlers << withoutEntities(match.captured(1));
}

Scripts scriptsOf(const QString& page) {
    // Comments, elements whose content is text, and the start tags of others.
    static const QRegularExpression element(
        QStringLiteral(R"re(<!--.*?-->|<(script|style|textarea|title)\b)re"
                       R"re(((?:[^"'>]|"[^"]*"|'[^']*')*+)>(.*?)</\1|)re"
                       R"re(<[a-z][^\s/>]*((?:[^"'>]|"[^"]*"|'[^']*')*+)>)re"),
        options);
    static const QRegularExpression server(
        QStringLiteral(R"re(\ssrc\s*=\s*["']?((?:https?:)?//[\w.:-]+))re"), options);
    static const QRegularExpression hasAddress(QStringLiteral(R"re(\ssrc\s*=)re"), options);
    Scripts scripts;
    for (const auto& match : element.globalMatch(page)) {
        addAttributes(match.captured(2) + match.captured(4), scripts);
        if (match.captured(1).compare(u"script", Qt::CaseInsensitive) != 0)
            continue;
        const auto from = server.match(match.captured(2));
        if (from.hasMatch())
            scripts.servers << from.captured(1);
        else if (!match.captured(2).contains(hasAddress))
            scripts.inlined << match.captured(3);
    }
    return scripts;
}

QString withoutSlashes(const QString& server) {
    return server.startsWith(u"//") ? server.mid(2) : server;
}

} // namespace

QString PageScripts::source(const QString& script) {
    // Browsers see line feeds only.
    QString text = script;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return QStringLiteral("'sha256-%1'")
        .arg(QString::fromLatin1(CommonDigest::SHA256Hash(text.toUtf8()).toBase64()));
}

QString PageScripts::sources(const QString& pageTemplate) {
    static const QRegularExpression address(
        QStringLiteral(R"re(["'`]((?:https?:)?//(?:[\w-]+\.)+[\w-]+(?::\d+)?))re"), options);
    const Scripts scripts = scriptsOf(TextTemplate(pageTemplate).parse());
    QStringList sources;
    for (const QString& server : scripts.servers)
        sources << withoutSlashes(server);
    // Nobody can tell from the page what these scripts load in turn.
    if (!sources.isEmpty())
        sources << QStringLiteral("https:");
    for (const auto& match : address.globalMatch((scripts.inlined + scripts.handlers).join(u' ')))
        sources << withoutSlashes(match.captured(1));
    for (const QString& script : scripts.inlined)
        sources << source(script);
    if (!scripts.handlers.isEmpty())
        sources << QStringLiteral("'unsafe-hashes'");
    for (const QString& handler : scripts.handlers)
        sources << source(handler);
    sources.removeDuplicates();
    return sources.join(u' ');
}

bool PageScripts::allowAll(const QString& pageTemplate) {
    static const QRegularExpression beyond(
        QStringLiteral(R"re(\$\{|\beval\s*\(|\bFunction\s*\(|\bdocument\s*\.\s*write)re"));
    static const QRegularExpression link(QStringLiteral(R"re(=\s*["']?\s*javascript:)re"), options);
    const Scripts scripts = scriptsOf(pageTemplate);
    return !(scripts.inlined + scripts.handlers).join(u' ').contains(beyond) &&
           !pageTemplate.contains(link);
}
