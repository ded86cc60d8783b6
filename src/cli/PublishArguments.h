#pragma once

#include <CLI/CLI.hpp>

struct PasswordOptions;
struct PublishOptions;

// The arguments of "folvero publish".
namespace PublishArguments {

// All of them; the options must live as long as the command.
void addTo(CLI::App& command, PublishOptions& options);

// Those for the password of a document, which other commands have as well.
void addPassword(CLI::App& command, PasswordOptions& options);

} // namespace PublishArguments
