// folvero: makes page-flip books from PDF files without a window.

#include "base/Log.h"
#include "cli/CommandArguments.h"
#include "cli/DecodeCommand.h"
#include "cli/InfoCommand.h"
#include "cli/LibraryCommand.h"
#include "cli/PasswordOptions.h"
#include "cli/PublishArguments.h"
#include "cli/PublishCommand.h"
#include "cli/PublishOptions.h"
#include "cli/ServeCommand.h"
#include "cli/TemplatesCommand.h"
#include "console/CommandError.h"
#include "console/Terminal.h"
#include "output/BookLayout.h"
#include "system/Bundle.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

using CommandArguments::addPath;

namespace {

// The parsed command line.
struct CommandLine {
    PublishOptions publish;
    QString pdf;
    PasswordOptions password;
    QString book;
    std::string served; // undecoded: the server's process does that
    std::optional<int> port;
    bool json = false;
    bool verbose = false;
};

void addPublish(CLI::App& app, PublishOptions& options) {
    auto* command =
        app.add_subcommand("publish", "Make a page-flip book from PDF files and pictures")
            ->group("Commands");
    PublishArguments::addTo(*command, options);
    command->callback([&options] { runPublish(options); });
}

void addTemplates(CLI::App& app, CommandLine& line) {
    auto* command =
        app.add_subcommand("templates", "List templates, styles and properties")->group("Commands");
    command->add_flag("--json", line.json, "Print JSON");
    command->callback([&line] {
        runTemplates(line.json);
        Terminal::checkOutput();
    });
}

void addInfo(CLI::App& app, CommandLine& line) {
    auto* command =
        app.add_subcommand(
               "info", "Show pages, sizes, rotation, links and outline of a PDF file, or what a\n"
                       "project consists of")
            ->group("Commands");
    addPath(*command, "PDF", line.pdf, "The PDF file or project")->type_name("")->required();
    PublishArguments::addPassword(*command, line.password);
    command->add_flag("--json", line.json, "Print JSON");
    command->callback([&line] {
        runInfo(line.pdf, line.password.password(), line.json);
        Terminal::checkOutput();
    });
}

void addDecode(CLI::App& app, CommandLine& line) {
    auto* command =
        app.add_subcommand("decode", "Print the deciphered configuration of a published book")
            ->group("Commands");
    addPath(*command, "BOOK", line.book,
            "The book's folder, or its " + BookLayout::configuration.toStdString())
        ->type_name("")
        ->required();
    command->add_flag("--json", line.json, "Print JSON");
    command->callback([&line] {
        runDecode(line.book, line.json);
        Terminal::checkOutput();
    });
}

void addPort(CLI::App& command, std::optional<int>& port) {
    command
        .add_option("--port", port,
                    "Port of the address; by default 8000 or the next free one, 0 for any\n"
                    "free one")
        ->check(CLI::Range(0, 65535, "0-65535"))
        ->type_name("N");
}

void addServe(CLI::App& app, CommandLine& line) {
    auto* command =
        app.add_subcommand("serve", "Show a published book in the browser, as on a web server")
            ->group("Commands");
    command->add_option("BOOKDIR", line.served, "The book's folder")->type_name("")->required();
    addPort(*command, line.port);
    command->callback([&line] { runServe(Served::book, line.served, line.port, line.verbose); });
}

void addLibraryServe(CLI::App& library, CommandLine& line) {
    auto* command = library.add_subcommand(
        "serve", "Show a library in the browser, with a search of all its texts");
    command->add_option("OUT", line.served, "The library's folder")->type_name("")->required();
    addPort(*command, line.port);
    command->callback([&line] { runServe(Served::library, line.served, line.port, line.verbose); });
}

// The error of the command line, with a pointer to the help.
std::string explain(const CLI::App* app, const CLI::Error& error) {
    std::string cause = error.what();
    std::string command = "folvero";
    const CLI::App* last = app;
    for (auto next = app->get_subcommands(); !next.empty(); next = last->get_subcommands()) {
        last = next.front();
        command += ' ' + last->get_name();
    }
    // Of those that have commands.
    if (last->get_require_subcommand_min() > 0) {
        const auto words = last->remaining();
        cause = words.empty() ? "a command is needed" : "there is no command " + words.front();
    }
    return "folvero: " + cause + "; see " + command + " --help\n";
}

// A file opened later must not get the descriptor of a standard stream that the caller closed.
void openStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", O_RDWR);
    }
}

// Whether the option of a command, or of one within it, has a value.
bool hasValue(const CLI::App& app, const std::string& option) {
    const auto commands = app.get_subcommands([](const CLI::App*) { return true; });
    return std::any_of(commands.begin(), commands.end(), [&](const CLI::App* command) {
        const auto* known = command->get_option_no_throw(option);
        return (known && known->get_items_expected_min() > 0) || hasValue(*command, option);
    });
}

// The words of the command line in the order in which CLI11 takes them. It takes the word after
// "--title=" for the value, but not after "--title" and an empty word.
std::vector<std::string> wordsOf(int argc, char** argv, const CLI::App& app) {
    std::vector<std::string> words;
    for (const std::string word : std::span(argv, std::size_t(argc)).subspan(1)) {
        const std::string option = word.substr(0, word.size() - 1);
        const bool isEmpty = word.starts_with("--") && word.ends_with('=') && hasValue(app, option);
        words.push_back(isEmpty ? option : word);
        if (isEmpty)
            words.emplace_back();
    }
    std::reverse(words.begin(), words.end());
    return words;
}

int run(int argc, char** argv) {
    CLI::App app("Turns PDF files into page-flip books.", "folvero");
    CommandLine line;
    line.password.takeEnvironment();
    line.publish.password = line.password;
    app.failure_message(explain);
    for (const auto& [label, shown] :
         {std::pair{"SUBCOMMAND", "COMMAND"}, {"Positionals", "Arguments"}, {"REQUIRED", ""}})
        app.get_formatter()->label(label, shown);
    app.set_version_flag("--version", "folvero " + Bundle::version().toStdString());
    app.require_subcommand(1);
    app.add_flag_callback(
        "--verbose",
        [&line] {
            line.verbose = true;
            Log::configureForTerminal(Log::Level::debug);
        },
        "Log in detail to standard error");
    app.footer(
        "Exit codes: 0 done; 3 the book was made, but pages are missing or incomplete; nothing was "
        "made:\n2 command line not understood, 65 the document is at fault, 77 it needs a "
        "password,\n75 trying again may help, 130 cancelled, 1 any other error.");
    addPublish(app, line.publish);
    addTemplates(app, line);
    addInfo(app, line);
    addDecode(app, line);
    addServe(app, line);
    auto& library = addLibraryCommands(app, line.password);
    addLibraryServe(library, line);
    try {
        app.parse(wordsOf(argc, argv, app));
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : int(ExitCode::usage);
    }
    return int(ExitCode::ok);
}

} // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    // Exceeding the file size limit is an error like a full disk, not a signal.
    std::signal(SIGXFSZ, SIG_IGN);
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Folvero"));
    QCoreApplication::setApplicationName(QStringLiteral("Folvero"));
    try {
        return run(argc, argv);
    } catch (const std::exception& failure) {
        const auto error = CommandError::from(failure);
        Terminal::report(QStringLiteral("folvero: %1").arg(error.message()));
        return int(error.code());
    }
}
