#include "output/HTMLConfigInfo.h"

#include "output/TextTemplate.h"
#include "system/Files.h"

bool HTMLConfigInfo::generateHTMLFrom(const QString& templatePath, const QString& toFile,
                                      Message* error) const {
    TextTemplate page(QString::fromUtf8(Files::contents(templatePath)));
    page.setItem(QStringLiteral("index.title"), iHTMLTitle);
    page.setItem(QStringLiteral("meta.keywords"), iHTMLKeywords);
    page.setItem(QStringLiteral("meta.description"), iHTMLDescription);
    return Files::writeAtomically(toFile, page.parse().toUtf8(), error);
}
