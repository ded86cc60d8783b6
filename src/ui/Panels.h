#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <optional>

// The system's own panels, as functions that wait for the user's answer.
namespace Panels {

// None when the panel is cancelled. Types are file name extensions; empty ones are left out, and
// without any every file may be chosen.
std::optional<QString> chooseFile(const QString& proposed, const QStringList& types);

// Where to save; none when the panel is cancelled. The types are as above. A file that is there
// already is asked for, under the name as it is returned.
std::optional<QString> chooseFileToSave(const QString& proposed, const QStringList& types);

// The initial colour when the panel is cancelled.
QColor chooseColor(const QColor& initial);

// None when the panel is cancelled. The prompt names the button.
std::optional<QString> chooseFolder(const QString& prompt);

// True for "Open it".
bool askToOpen(const QString& message, const QString& information);

// True when the user wants to replace what would be lost; the safe answer is the default one.
bool askToReplace(const QString& message, const QString& information);

void showMessage(const QString& message, const QString& information);

// What the program is, its version and its licence.
void about();

// Opens a file or a folder with the program that the system uses for it.
void open(const QString& path);

} // namespace Panels
