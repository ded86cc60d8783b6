#include "cli/CommandArguments.h"

#include "console/CommandError.h"
#include "system/NameAliases.h"

#include <QByteArray>

CLI::Option* CommandArguments::addText(CLI::App& command, const std::string& name, QString& value,
                                       const std::string& help) {
    return command.add_option_function<std::string>(
        name,
        [&value](const std::string& typed) {
            value = NameAliases::text(QByteArray::fromStdString(typed));
        },
        help);
}

CLI::Option* CommandArguments::addPath(CLI::App& command, const std::string& name, QString& path,
                                       const std::string& help) {
    return command.add_option_function<std::string>(
        name,
        [name, &path](const std::string& typed) {
            if (typed.empty() && name.starts_with('-'))
                throw CommandError(QString::fromStdString(name + ": the name of the file is empty"),
                                   ExitCode::usage);
            path = NameAliases::decoded(QByteArray::fromStdString(typed));
        },
        help);
}
