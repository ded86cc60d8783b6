#include "webbook/WebPageTemplate.h"

#include "output/HTMLConfigInfo.h"
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

QString withPlaces(QString page) {
    for (const auto& [name, where] :
         {Place{PagePlaces::languageName, "(?<=<html lang=\")en(?=\">)"},
          Place{PagePlaces::startName, "(?=<script)"}, Place{PagePlaces::headName, "(?=</head>)"},
          Place{PagePlaces::movieName, "<object .*?</object>"},
          Place{PagePlaces::endName, "(?=</body>(?!.*</body>))"}}) {
        const QRegularExpression element(QString::fromLatin1(where),
                                         QRegularExpression::DotMatchesEverythingOption);
        const auto match = element.match(page);
        if (!match.hasMatch())
            continue;
        QString changed = page;
        changed.replace(match.capturedStart(), match.capturedLength(), placeholder(name));
        if (!TextTemplate(changed).parse().contains(placeholder(name)))
            page = changed;
    }
    return page;
}

} // namespace

QString WebPageTemplate::of(const FlashTemplate* flashTemplate) {
    const QString path = flashTemplate ? flashTemplate->tmplHTMLFilePath() : QString();
    const QString page = QString::fromUtf8(Files::contents(path));
    return hasHead(page) ? page : withPlaces(page);
}

bool WebPageTemplate::hasHead(const QString& page) {
    return page.contains(placeholder(PagePlaces::headName));
}
