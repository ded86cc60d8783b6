#include "template/StyleFolders.h"

#include "system/Files.h"
#include "system/Folders.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

// A folder with nothing in it but somebody else's files is none. What is left of a style is one
// that users see, and can delete.
bool isStyle(const QString& path) {
    const QDir folder(path);
    return folder.exists(StyleFolders::settingsFile) || folder.exists(StyleFolders::pictureFile) ||
           folder.isEmpty();
}

} // namespace

QString StyleFolders::own() {
    const QString support = Folders::userApplicationSupport();
    return Files::join(support.isNull() ? Folders::temporary() : support,
                       QStringLiteral("Folvero/styles"));
}

bool StyleFolders::isName(const QString& name) {
    constexpr qsizetype mostBytes = 200;
    return !name.isEmpty() && !name.startsWith(u'.') && name.toUtf8().size() <= mostBytes &&
           std::none_of(name.begin(), name.end(), [](QChar letter) {
               return letter == u'/' || letter.category() == QChar::Other_Control;
           });
}

QString StyleFolders::ownFor(const QString& tmplName, const QString& styleName) {
    if (!isName(tmplName) || !isName(styleName))
        return {};
    return Files::join(Files::join(own(), tmplName), styleName);
}

QStringList StyleFolders::ownOf(const QString& tmplName) {
    if (!isName(tmplName))
        return {};
    const QString folder = Files::join(own(), tmplName);
    QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    names.removeIf(
        [&](const QString& name) { return !isName(name) || !isStyle(Files::join(folder, name)); });
    QCollator order;
    order.setNumericMode(true);
    std::sort(names.begin(), names.end(), order);
    for (QString& name : names)
        name = Files::join(folder, name);
    return names;
}

bool StyleFolders::isOwn(const QString& stylePath) {
    return stylePath.startsWith(own() + u'/');
}
