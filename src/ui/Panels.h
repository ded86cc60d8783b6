#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

// The system's dialogs, as functions that wait for the user's answer.
namespace Panels {

// Asks for a file; see chooseFile().
using FilePanel =
    std::function<std::optional<QString>(const QString& proposed, const QStringList& types)>;

// None when cancelled. types are file name extensions; empty ones are ignored, and without any
// every file may be chosen.
std::optional<QString> chooseFile(const QString& proposed, const QStringList& types);

// Where to save; none when cancelled. types as above. Asks before replacing an existing file, by
// the name that is returned.
std::optional<QString> chooseFileToSave(const QString& proposed, const QStringList& types);

// The initial colour when cancelled. moved is called with each colour that the user comes to
// meanwhile, as while one is dragged; it may be empty.
using ColorMoved = std::function<void(const QColor& color)>;
QColor chooseColor(const QColor& initial, const ColorMoved& moved = {});

// None when cancelled. prompt is the button's text.
std::optional<QString> chooseFolder(const QString& prompt);

// True for "Open it".
bool askToOpen(const QString& message, const QString& information);

// True when the user wants to replace what would be lost; "no" is the default.
bool askToReplace(const QString& message, const QString& information);

// True for "Delete"; "no" is the default.
bool askToDelete(const QString& message, const QString& information);

// What becomes of changes that are not saved.
enum class Unsaved { save, discard, cancel };

// "Save" is the default.
Unsaved askToSave(const QString& message, const QString& information);

// True for "Recover", the default. Otherwise what could be recovered is lost.
bool askToRecover(const QString& message, const QString& information);

// True for "With text", none when cancelled; "Without text" is the default.
std::optional<bool> askForText(const QString& message, const QString& information);

void showMessage(const QString& message, const QString& information);

// Shows the about box: the program, its version and its licence.
void about();

// Opens a file or folder with the system's default program.
void open(const QString& path);

} // namespace Panels
