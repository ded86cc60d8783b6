#pragma once

#include <CLI/CLI.hpp>

// The commands of "folvero library" that are about the texts of all books.

void addLibraryIndex(CLI::App& library);
void addLibraryExport(CLI::App& library);
