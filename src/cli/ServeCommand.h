#pragma once

#include <QString>
#include <optional>

// Serves a published book to browsers on this machine until Ctrl-C: on the given port (0 means any
// free one), or on the first free one of a few. Replaces this process with the book server and does
// not return. Throws CommandError.
void runServe(const std::string& folder, std::optional<int> port, bool verbose);
