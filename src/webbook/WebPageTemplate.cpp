#include "webbook/WebPageTemplate.h"

#include "output/BookLayout.h"
#include "output/HTMLConfigInfo.h"
#include "output/PageScripts.h"
#include "system/Files.h"
#include "template/FlashTemplate.h"

#include <QRegularExpression>

namespace {

struct Place {
    QString name;
    const char* where; // what the place replaces, a regular expression
};

QString placeholder(const QString& name) {
    return QStringLiteral("${%1}").arg(name);
}

// Whether the place is not in the rest that is copied as it is.
bool isFilled(const QString& page, const QString& name) {
    return !TextTemplate(page).parse().contains(placeholder(name));
}

QString withPlaces(QString page) {
    for (const auto& [name, where] :
         {Place{PagePlaces::languageName, "(?<=<html lang=\")en(?=\">)"},
          Place{PagePlaces::headName, "(?=</head>)"},
          Place{PagePlaces::movieName, "<object .*?</object>"},
          Place{PagePlaces::endName, "(?=</body>(?!.*</body>))"}}) {
        const QRegularExpression element(QString::fromLatin1(where),
                                         QRegularExpression::DotMatchesEverythingOption);
        const auto match = element.match(page);
        if (!match.hasMatch())
            continue;
        QString changed = page;
        changed.replace(match.capturedStart(), match.capturedLength(), placeholder(name));
        if (isFilled(changed, name))
            page = changed;
    }
    return page;
}

// Restricts scripts only: the page of a template may load pictures and frames from anywhere.
QString policyFor(const QString& page) {
    QString policy =
        QStringLiteral("script-src 'self' file: ") + placeholder(PagePlaces::scriptsName);
    if (!page.contains(u"<object", Qt::CaseInsensitive) &&
        !page.contains(u"<embed", Qt::CaseInsensitive))
        policy += QStringLiteral("; object-src 'none'");
    if (!page.contains(u"<base", Qt::CaseInsensitive))
        policy += QStringLiteral("; base-uri 'none'");
    return QStringLiteral("<meta http-equiv=\"Content-Security-Policy\" content=\"%1\">")
        .arg(policy);
}

// Not where the page has a policy, or where this one would keep the page's own scripts from
// running.
QString withPolicy(const QString& page) {
    static const QRegularExpression start(
        QStringLiteral(R"re(<head(?:\s[^>]*)?>(?:\s*<meta charset=[^>]*>)?)re"),
        QRegularExpression::CaseInsensitiveOption);
    const auto place = start.match(page);
    if (!place.hasMatch() || page.contains(u"Content-Security-Policy", Qt::CaseInsensitive) ||
        !PageScripts::allowAll(page))
        return page;
    QString changed = page;
    changed.insert(place.capturedEnd(), policyFor(page));
    return isFilled(changed, PagePlaces::scriptsName) ? changed : page;
}

const QRegularExpression& sharedPart() {
    static const QRegularExpression part(
        QStringLiteral(
            R"re(<(style|script) data-shared="(page\.css|page\.js|early\.js)">(.*?)</\1>\n?)re"),
        QRegularExpression::DotMatchesEverythingOption);
    return part;
}

// Browsers look for the body's scripts only when those of the head have run, so the head names the
// page's script, too.
QString reference(const QString& name) {
    if (name.endsWith(u".js"))
        return QStringLiteral("<script src=\"%1") + name + QStringLiteral("\"></script>\n");
    return QStringLiteral("<link rel=\"preload\" as=\"script\" href=\"%1page.js\">\n"
                          "<link rel=\"stylesheet\" href=\"%1") +
           name + QStringLiteral("\">\n");
}

bool isForClassicBooks(const QString& name) {
    return name == u"early.js";
}

// The page with something else for each of its parts, and without those for classic books.
template <typename Replacement>
QString withParts(const QString& page, const Replacement& replacement) {
    QString changed;
    qsizetype end = 0;
    for (const auto& match : sharedPart().globalMatch(page)) {
        changed += page.mid(end, match.capturedStart() - end);
        if (!isForClassicBooks(match.captured(2)))
            changed += replacement(match);
        end = match.capturedEnd();
    }
    return changed + page.mid(end);
}

} // namespace

QString WebPageTemplate::of(const FlashTemplate* flashTemplate) {
    const QString path = flashTemplate ? flashTemplate->tmplHTMLFilePath() : QString();
    const QString page = QString::fromUtf8(Files::contents(path));
    return withPolicy(page.contains(placeholder(PagePlaces::headName)) ? page : withPlaces(page));
}

std::map<QString, QString> WebPageTemplate::parts(const QString& page) {
    std::map<QString, QString> parts;
    for (const auto& match : sharedPart().globalMatch(page)) {
        const QString name = match.captured(2);
        if (!isForClassicBooks(name))
            parts[BookLayout::in(QString(), name)] = match.captured(3).trimmed() + u'\n';
    }
    return parts;
}

QString WebPageTemplate::withReferences(const QString& page, const QString& address) {
    return withParts(page, [&](const QRegularExpressionMatch& part) {
        return reference(part.captured(2)).arg(address);
    });
}

QString WebPageTemplate::withStartList(const QString& page) {
    return withParts(page, [](const QRegularExpressionMatch& part) { return part.captured(); });
}
