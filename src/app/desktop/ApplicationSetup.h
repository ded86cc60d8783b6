#pragma once

#include <QStringList>

// Sets the name, icon, style and language of the running QApplication: the first of the languages
// (as named by QLocale::uiLanguages()) that has a translation.
void setUpApplication(const QStringList& languages);

// Runs the program in the running QApplication and returns its exit code.
int runApplication(const QStringList& arguments);
