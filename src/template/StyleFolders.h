#pragma once

#include <QString>
#include <QStringList>

// Where users' own styles are: in a folder of theirs that is laid out like the library's, as
// TEMPLATE/STYLE/. The library itself is never written to.
namespace StyleFolders {

QString own();
// The folder of one style; null for names that can't be those of folders. It may not exist.
QString ownFor(const QString& tmplName, const QString& styleName);
// The folders of a template's own styles, sorted by name; also those that have lost their settings
// file, see OwnStyles::failureOf().
QStringList ownOf(const QString& tmplName);
bool isOwn(const QString& stylePath);

// Of every style.
inline const QString settingsFile = QStringLiteral("tmplSetting.txt");
inline const QString pictureFile = QStringLiteral("shot.jpg");

// Whether a folder can have that name: it has no slash or control character, does not begin with a
// dot, and is neither empty nor too long.
bool isName(const QString& name);

} // namespace StyleFolders
