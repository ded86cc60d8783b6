// The book server, which "folvero serve" executes. It is a separate program because a web server's
// libraries would slow down the start of every other command.
//
//     folvero-book-server FOLDER PORT|usual book|library [verbose]

#include "base/Log.h"
#include "console/CommandError.h"
#include "console/Terminal.h"
#include "server/Serving.h"
#include "system/NameAliases.h"

#include <QCoreApplication>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <span>
#include <string_view>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (argc < 4 || argc > 5) {
        std::cerr << "usage: folvero-book-server FOLDER PORT|usual book|library [verbose]\n";
        return int(ExitCode::usage);
    }
    if (argc == 5)
        Log::configureForTerminal(Log::Level::debug);
    const QString folder = NameAliases::decoded(arguments[1]);
    const std::string_view typed = arguments[2];
    const auto port = typed == "usual" ? std::nullopt : std::optional(std::atoi(arguments[2]));
    try {
        if (std::string_view(arguments[3]) == "library")
            serveLibrary(folder, port);
        else
            serveBook(folder, port);
    } catch (const std::exception& failure) {
        const auto error = CommandError::from(failure);
        Terminal::report(QStringLiteral("folvero: %1").arg(error.message()));
        return int(error.code());
    }
    return int(ExitCode::ok);
}
