// folvero: makes page-flip books from PDF files without a window.

#include "base/Log.h"
#include "cli/DecodeCommand.h"
#include "cli/InfoCommand.h"
#include "cli/PublishCommand.h"
#include "cli/ServeCommand.h"
#include "cli/TemplatesCommand.h"
#include "console/CommandError.h"
#include "console/Terminal.h"
#include "output/BookLayout.h"
#include "system/Bundle.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QFile>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

// The parsed command line; texts are in the terminal's encoding.
struct CommandLine {
    std::string pdf;
    std::string outputFolder;
    std::string type = "html";
    std::string name;
    std::string title;
    std::string pages = "ALL";
    bool singleFile = false;
    std::string previewPages;
    int quality = 100;
    bool links = false;
    bool bookmarks = false;
    std::string templateName = "float";
    std::string styleName;
    std::vector<std::string> assignments;
    std::string settingsFile;
    std::string timingFile;
    bool quiet = false;
    bool force = false;
    bool watch = false;
    bool json = false;
    bool verbose = false;
    std::string book;
    std::optional<int> port;
};

QString text(const std::string& typed) {
    return QString::fromLocal8Bit(typed.data(), qsizetype(typed.size()));
}

QString path(const std::string& typed) {
    return QFile::decodeName(QByteArray::fromStdString(typed));
}

void publish(const CommandLine& line, const CLI::App& command) {
    PublishOptions options;
    options.pdf = path(line.pdf);
    options.outputFolder = path(line.outputFolder);
    using Type = PublishOptions::Type;
    options.type = line.type == "app" ? Type::app : line.type == "web" ? Type::web : Type::html;
    if (command.count("--name") > 0)
        options.name = path(line.name).isNull() ? QStringLiteral("") : path(line.name);
    if (command.count("--title") > 0)
        options.title = text(line.title).isNull() ? QStringLiteral("") : text(line.title);
    options.pages = text(line.pages);
    options.singleFile = line.singleFile;
    if (command.count("--preview-pages") > 0)
        options.previewPages = QStringLiteral("") + text(line.previewPages);
    options.quality = line.quality;
    options.links = line.links;
    options.bookmarks = line.bookmarks;
    options.templateName = text(line.templateName);
    options.styleName = text(line.styleName);
    if (!line.settingsFile.empty())
        options.settingsFile = path(line.settingsFile);
    for (const std::string& assignment : line.assignments)
        options.assignments << text(assignment);
    if (!line.timingFile.empty())
        options.timingFile = path(line.timingFile);
    options.quiet = line.quiet;
    options.force = line.force;
    options.watch = line.watch;
    runPublish(options);
}

void addPublish(CLI::App& app, CommandLine& line) {
    auto* command =
        app.add_subcommand("publish", "Make a page-flip book from a PDF file")->group("Commands");
    command->add_option("PDF", line.pdf, "The PDF file")->type_name("")->required();
    command->add_option("FOLDER", line.outputFolder, "The folder for the book; created if missing")
        ->type_name("")
        ->required();
    command
        ->add_option("--type", line.type,
                     "html: a page with its files, for disk and web; web: the same with links,\n"
                     "contents, search and text to select; app: a Mac application")
        ->check(CLI::IsMember({"html", "web", "app"}))
        ->type_name("TYPE")
        ->capture_default_str();
    command
        ->add_option("--name", line.name,
                     "Name of the HTML page (by default index) or of the application (by\n"
                     "default that of the PDF file), without its extension")
        ->type_name("NAME");
    command
        ->add_option("--title", line.title,
                     "Title of the book; by default the title of the document")
        ->type_name("TEXT");
    command->add_option("--pages", line.pages, "Pages to include, for example 1-3,7 or ALL")
        ->type_name("PAGES")
        ->capture_default_str();
    command->add_flag("--single-file", line.singleFile,
                      "Put all of a web book into its HTML page, for mail and USB sticks");
    command
        ->add_option("--preview-pages", line.previewPages,
                     "Pages that a preview of a web book contains, as in --pages; the others\n"
                     "show that they are left out")
        ->type_name("PAGES");
    command
        ->add_option("--quality", line.quality,
                     "100 for the sharpest pages, below that for the smallest files")
        ->check(CLI::Range(0, 100, "0-100"))
        ->type_name("N")
        ->capture_default_str();
    command->add_flag("--links", line.links,
                      "Read the links of the pages; web books always have them");
    command->add_flag("--bookmarks", line.bookmarks,
                      "Read the bookmarks of the document; web books always have them");
    command->add_option("--template", line.templateName, "Template of the book")
        ->type_name("NAME")
        ->capture_default_str();
    command->add_option("--style", line.styleName, "Style of the template")->type_name("NAME");
    command->add_option("--settings", line.settingsFile, "A settings file to apply")
        ->type_name("FILE");
    command
        ->add_option("--set", line.assignments,
                     "Set one property of the template, see folvero templates; may be given\n"
                     "many times")
        ->type_name("KEY=VALUE")
        ->allow_extra_args(false);
    command->add_flag(
        "--force", line.force,
        "Overwrite a page, an application or other files that don't belong to a book");
    command->add_flag("--watch", line.watch,
                      "Run until Ctrl-C, and republish whenever the PDF or the settings file\n"
                      "changes");
    command->add_flag("--quiet", line.quiet, "Show no progress");
    command
        ->add_option("--timing", line.timingFile,
                     "Write how long the steps took to this file, as JSON")
        ->type_name("FILE");
    command->callback([&line, command] { publish(line, *command); });
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
        app.add_subcommand("info", "Show pages, sizes, rotation, links and outline of a PDF file")
            ->group("Commands");
    command->add_option("PDF", line.pdf, "The PDF file")->type_name("")->required();
    command->add_flag("--json", line.json, "Print JSON");
    command->callback([&line] {
        runInfo(path(line.pdf), line.json);
        Terminal::checkOutput();
    });
}

void addDecode(CLI::App& app, CommandLine& line) {
    auto* command =
        app.add_subcommand("decode", "Print the deciphered configuration of a published book")
            ->group("Commands");
    command
        ->add_option("BOOK", line.book,
                     "The book's folder, or its " + BookLayout::configuration.toStdString())
        ->type_name("")
        ->required();
    command->add_flag("--json", line.json, "Print JSON");
    command->callback([&line] {
        runDecode(path(line.book), line.json);
        Terminal::checkOutput();
    });
}

void addServe(CLI::App& app, CommandLine& line) {
    auto* command =
        app.add_subcommand("serve", "Show a published book in the browser, as on a web server")
            ->group("Commands");
    command->add_option("BOOKDIR", line.book, "The book's folder")->type_name("")->required();
    command
        ->add_option("--port", line.port,
                     "Port of the address; by default 8000 or the next free one, 0 for any\n"
                     "free one")
        ->check(CLI::Range(0, 65535, "0-65535"))
        ->type_name("N");
    command->callback([&line] { runServe(path(line.book), line.port, line.verbose); });
}

// The error of the command line, with a pointer to the help.
std::string explain(const CLI::App* app, const CLI::Error& error) {
    std::string cause = error.what();
    std::string help = "folvero --help";
    if (const auto commands = app->get_subcommands(); !commands.empty()) {
        help = "folvero " + commands.front()->get_name() + " --help";
    } else {
        const auto words = app->remaining();
        cause = words.empty() ? "a command is needed" : "there is no command " + words.front();
    }
    return "folvero: " + cause + "; see " + help + "\n";
}

// A file opened later must not get the descriptor of a standard stream that the caller closed.
void openStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", O_RDWR);
    }
}

int run(int argc, char** argv) {
    CLI::App app("Turns PDF files into page-flip books.", "folvero");
    CommandLine line;
    app.failure_message(explain);
    for (const auto& [label, shown] : {std::pair{"SUBCOMMAND", "COMMAND"},

                                       {"Positionals", "Arguments"},
                                       {"REQUIRED", ""}})
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
    app.footer("Exit codes: 0 done, 1 nothing was made, 2 command line not understood, 3 the book "
               "was made\nbut pages are missing from it, 75 nothing was made but trying again may "
               "help, 130 cancelled.");
    addPublish(app, line);
    addTemplates(app, line);
    addInfo(app, line);
    addDecode(app, line);
    addServe(app, line);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : int(ExitCode::usage);
    } catch (const CommandError& error) {
        Terminal::report(QStringLiteral("folvero: %1").arg(error.message()));
        return int(error.code());
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
        Terminal::report(QStringLiteral("folvero: %1").arg(QString::fromUtf8(failure.what())));
        return int(ExitCode::failed);
    }
}
