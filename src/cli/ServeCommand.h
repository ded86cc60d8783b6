#pragma once

#include <QString>
#include <optional>
#include <string>

enum class Served { book, library };

// Serves a published book or a library to browsers on this machine until Ctrl-C: on the given port
// (0 means any free one), or on the first free one of a few. Replaces this process with the book
// server and does not return. Throws CommandError.
[[noreturn]] void runServe(Served what, const std::string& folder, std::optional<int> port,
                           bool verbose);
