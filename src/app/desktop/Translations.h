#pragma once

#include <QString>
#include <QStringList>

// Translations of the program's texts and of Qt's dialogs.
namespace Translations {

// Installs the first of the languages that has a translation, else English; they are named as
// QLocale::uiLanguages() names them, in order of preference. Returns its name.
QString install(const QStringList& languages);

} // namespace Translations
