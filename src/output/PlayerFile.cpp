#include "output/PlayerFile.h"

#include "output/BookLayout.h"
#include "output/PublishTransaction.h"
#include "system/Bundle.h"
#include "system/Files.h"

namespace {

const QString folder = QStringLiteral("AppFiles/Web");
const QString languageFolder = Files::join(folder, BookLayout::languages);

} // namespace

QString PlayerFile::installed(const BookLayout& layout, const QString& path) {
    const QString source = Bundle::pathForResource(
        Files::lastPathComponent(path), {},
        BookLayout::isIn(BookLayout::languages, path) ? languageFolder : folder);
    if (source.isNull())
        PublishTransaction::fail(
            layout.at(path), Message::translate("FolveroOutput", "the player is not installed"));
    return source;
}

QStringList PlayerFile::languages() {
    QStringList paths;
    for (const QString& file :
         Bundle::pathsForResourcesOfType(QStringLiteral("js"), languageFolder))
        paths << BookLayout::in(BookLayout::languages, Files::lastPathComponent(file));
    return paths;
}
