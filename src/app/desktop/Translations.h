#pragma once

#include <QString>
#include <QStringList>

// The program's texts and those of the toolkit's dialogs in the user's language.
namespace Translations {

// Installs the first of the languages that the program speaks; they are named as
// QLocale::uiLanguages() names them, the user's favourite first. Returns its name, or a null text
// when there is none, which leaves the texts in English.
QString install(const QStringList& languages);

} // namespace Translations
