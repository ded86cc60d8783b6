#pragma once

#include <QStringList>

// Gives the running QApplication the program's name, icon and style, and the first of the languages
// that the program speaks, named as QLocale::uiLanguages() names them.
void setUpApplication(const QStringList& languages);

// Runs the program in the running QApplication to its end and returns its exit code.
int runApplication(const QStringList& arguments);
