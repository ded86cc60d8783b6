#pragma once

#include "project/Project.h"

#include <QByteArray>

// The text of a project in its file; docs/formats.md describes it.
namespace ProjectJSON {

// A file of a greater version is of a newer program.
inline constexpr int formatVersion = 1;

QByteArray written(const Project& project);

// Ignores keys that it does not know. Throws PlatformException with the cause; whoever knows the
// file's name adds it.
Project read(const QByteArray& text);

} // namespace ProjectJSON
