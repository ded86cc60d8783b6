#pragma once

#include <CLI/CLI.hpp>
#include <QString>
#include <string>

// Arguments of commands, which may have bytes that are not UTF-8.
namespace CommandArguments {

// An option whose value is a text; the text is not null when the option was given.
CLI::Option* addText(CLI::App& command, const std::string& name, QString& value,
                     const std::string& help);

// The same for the path of a file or folder; an option's must not be empty.
CLI::Option* addPath(CLI::App& command, const std::string& name, QString& path,
                     const std::string& help);

} // namespace CommandArguments
