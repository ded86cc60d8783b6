#include "output/HTMLConfigInfo.h"

#include "output/TextTemplate.h"
#include "platform/Files.h"

#include <QFile>

namespace {

QString contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

bool HTMLConfigInfo::generateHTMLFrom(const QString& templatePath, const QString& toFile,
                                      Message* error) const {
    TextTemplate page(contentsOf(templatePath));
    page.setItem(QStringLiteral("index.title"), iHTMLTitle);
    page.setItem(QStringLiteral("meta.keywords"), iHTMLKeywords);
    page.setItem(QStringLiteral("meta.description"), iHTMLDescription);
    return Files::writeAtomically(toFile, page.parse().toUtf8(), error);
}
