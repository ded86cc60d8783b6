#pragma once

#include <CLI/CLI.hpp>

struct PasswordOptions;

// Adds "folvero library" with its commands.
void addLibraryCommands(CLI::App& app, const PasswordOptions& environment);
