#pragma once

#include <QString>
#include <QStringList>

// Somebody at work in the desktop program: opens a project or recovers it, edits, imports, saves
// and publishes. Every step is noted in a file before and after it, so that whoever kills the
// program knows what has to be there.
namespace Scenario {

// An option of the test program, with which it is that somebody; a folder and a text follow it.
inline const QString option = QStringLiteral("--work-in");

// Names of files in the folder.
inline const QString project = QStringLiteral("book.folvero");
inline const QString journal = QStringLiteral("journal");
inline const QString published = QStringLiteral("out");

// The project is that of the folder; text tells what is edited in this run from that of others.
// Returns the exit code.
int run(const QString& folder, const QString& text);

} // namespace Scenario
