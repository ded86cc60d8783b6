#pragma once

#include <CLI/CLI.hpp>

struct PasswordOptions;

// Adds "folvero library" with its commands but "serve", and returns it.
CLI::App& addLibraryCommands(CLI::App& app, const PasswordOptions& environment);
