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

// The initial colour when the panel is cancelled.
QColor chooseColor(const QColor& initial);

} // namespace Panels
