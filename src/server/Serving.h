#pragma once

#include <QString>
#include <optional>

// Serves a published book to browsers on this machine until Ctrl-C: on the given port (0 means any
// free one), or on the first free one of a few. Throws CommandError.
void serveBook(const QString& folder, std::optional<int> port);

// The same for a library and its search.
void serveLibrary(const QString& folder, std::optional<int> port);
