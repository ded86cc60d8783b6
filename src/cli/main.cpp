// folvero: makes page-flip books from PDF files without a window.

#include "base/Log.h"
#include "cli/DecodeCommand.h"
#include "cli/InfoCommand.h"
#include "cli/PasswordOptions.h"
#include "cli/PublishCommand.h"
#include "cli/ServeCommand.h"
#include "cli/TemplatesCommand.h"
#include "console/CommandError.h"
#include "console/Terminal.h"
#include "output/BookLayout.h"
#include "system/Bundle.h"
#include "system/NameAliases.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

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

// KEY=VALUE, where the value may be the path of a file.
QString decodedAssignment(const QByteArray& typed) {
    const qsizetype key = typed.indexOf('=') + 1;
    const QString value = typed.isValidUtf8() ? QString() : NameAliases::decoded(typed.sliced(key));
    return QFileInfo::exists(value) ? NameAliases::text(typed.first(key)) + value
                                    : NameAliases::text(typed);
}

// An option whose value is a text; the text is not null when the option was given.
CLI::Option* addText(CLI::App& command, const std::string& name, QString& value,
                     const std::string& help) {
    return command.add_option_function<std::string>(
        name,
        [&value](const std::string& typed) {
            value = NameAliases::text(QByteArray::fromStdString(typed));
        },
        help);
}

// The same for the path of a file or folder; an option's must not be empty.
CLI::Option* addPath(CLI::App& command, const std::string& name, QString& path,
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

PublishOptions::Type typeNamed(const std::string& name) {
    using Type = PublishOptions::Type;
    return name == "app" ? Type::app : name == "html" ? Type::html : Type::web;
}

void addPassword(CLI::App& command, PasswordOptions& options) {
    command
        .add_flag("--password", options.ask,
                  "Ask for the password of a protected PDF on the terminal")
        ->disable_flag_override();
    addPath(command, "--password-file", options.file,
            "A file with the password in its first line; without either option the\n"
            "environment variable FOLVERO_PASSWORD may hold it")
        ->type_name("FILE");
}

// Options that do not change the book.
void addRunOptions(CLI::App& command, PublishOptions& options) {
    command.add_flag("--watch", options.watch,
                     "Run until Ctrl-C, and republish whenever the PDF or the settings file\n"
                     "changes");
    command
        .add_option("--jobs", options.jobs,
                    "Number of pages to draw at the same time; by default as many as this\n"
                    "program may use processors, but at most 16")
        ->check(CLI::Range(1, 256, "1-256"))
        ->type_name("N");
    command.add_flag("--quiet", options.quiet, "Show no progress");
    addPath(command, "--timing", options.timingFile,
            "Write how long the steps took to this file, as JSON")
        ->type_name("FILE");
    addPath(command, "--report", options.reportFile,
            "Write what was made, or why not, to this file, as JSON; replaces the\n"
            "report of an earlier run")
        ->type_name("FILE");
}

Spreads spreadsNamed(const std::string& name) {
    return name == "keep" ? Spreads::keep : name == "split" ? Spreads::split : Spreads::automatic;
}

void addPublish(CLI::App& app, PublishOptions& options) {
    auto* command =
        app.add_subcommand("publish", "Make a page-flip book from a PDF file")->group("Commands");
    addPath(*command, "PDF", options.pdf, "The PDF file")->type_name("")->required();
    addPath(*command, "FOLDER", options.outputFolder, "The folder for the book; created if missing")
        ->type_name("")
        ->required();
    command
        ->add_option_function<std::string>(
            "--type", [&options](const std::string& name) { options.type = typeNamed(name); },
            "web: a book with links, contents, search and text to select, for disk and\n"
            "web; html: a classic book, with pictures of the pages only; app: a Mac\n"
            "application")
        ->check(CLI::IsMember({"web", "html", "app"}))
        ->type_name("TYPE")
        ->default_str("web");
    addText(*command, "--name", options.name,
            "Name of the HTML page (by default index) or of the application (by\n"
            "default that of the PDF file), without its extension")
        ->type_name("NAME");
    addText(*command, "--title", options.title,
            "Title of the book; by default the title of the document")
        ->type_name("TEXT");
    addText(*command, "--pages", options.pages, "Pages to include, for example 1-3,7 or ALL")
        ->type_name("PAGES")
        ->default_str("ALL");
    command
        ->add_option_function<std::string>(
            "--spreads",
            [&options](const std::string& name) { options.spreads = spreadsNamed(name); },
            "Double pages: auto makes two of each page twice as wide as the first one,\n"
            "split of each landscape page, keep leaves all as they are")
        ->check(CLI::IsMember({"auto", "split", "keep"}))
        ->type_name("HOW")
        ->default_str("auto");
    command->add_flag("--single-file", options.singleFile,
                      "Put all of a web book into its HTML page, for mail and USB sticks");
    command->add_flag("--allow-text", options.allowText,
                      "Include text in a web book also if the document forbids copying it");
    addText(*command, "--preview-pages", options.previewPages,
            "Pages that a preview of a web book contains, as in --pages; the others\n"
            "show that they are left out")
        ->type_name("PAGES");
    addText(*command, "--url", options.url,
            "Address at which a web book will be: search engines and previews of links\n"
            "name it, and show the first page")
        ->type_name("ADDRESS");
    command
        ->add_option("--quality", options.quality,
                     "100 for the sharpest pages, below that for the smallest files")
        ->check(CLI::Range(0, 100, "0-100"))
        ->type_name("N")
        ->capture_default_str();
    command->add_flag("--links", options.links,
                      "Read the links of the pages; web books always have them");
    command->add_flag("--bookmarks", options.bookmarks,
                      "Read the bookmarks of the document; web books always have them");
    addText(*command, "--template", options.templateName, "Template of the book")
        ->type_name("NAME")
        ->default_str("float");
    addText(*command, "--style", options.styleName, "Style of the template")->type_name("NAME");
    addPath(*command, "--settings", options.settingsFile, "A settings file to apply")
        ->type_name("FILE");
    command
        ->add_option_function<std::vector<std::string>>(
            "--set",
            [&options](const std::vector<std::string>& typed) {
                for (const std::string& assignment : typed)
                    options.assignments << decodedAssignment(QByteArray::fromStdString(assignment));
            },
            "Set one property of the template, see folvero templates; may be given\n"
            "many times")
        ->type_name("KEY=VALUE")
        ->allow_extra_args(false);
    command->add_flag(
        "--force", options.force,
        "Make the book even if it is up to date, and overwrite a page, an application\n"
        "or other files that don't belong to a book");
    addPassword(*command, options.password);
    addRunOptions(*command, options);
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
        app.add_subcommand("info", "Show pages, sizes, rotation, links and outline of a PDF file")
            ->group("Commands");
    addPath(*command, "PDF", line.pdf, "The PDF file")->type_name("")->required();
    addPassword(*command, line.password);
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

void addServe(CLI::App& app, CommandLine& line) {
    auto* command =
        app.add_subcommand("serve", "Show a published book in the browser, as on a web server")
            ->group("Commands");
    command->add_option("BOOKDIR", line.served, "The book's folder")->type_name("")->required();
    command
        ->add_option("--port", line.port,
                     "Port of the address; by default 8000 or the next free one, 0 for any\n"
                     "free one")
        ->check(CLI::Range(0, 65535, "0-65535"))
        ->type_name("N");
    command->callback([&line] { runServe(line.served, line.port, line.verbose); });
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

// The words of the command line in the order in which CLI11 takes them. It takes the word after
// "--title=" for the value, but not after "--title" and an empty word.
std::vector<std::string> wordsOf(int argc, char** argv, const CLI::App& app) {
    const auto hasValue = [&app](const std::string& option) {
        const auto commands = app.get_subcommands([](const CLI::App*) { return true; });
        return std::any_of(commands.begin(), commands.end(), [&](const CLI::App* command) {
            const auto* known = command->get_option_no_throw(option);
            return known && known->get_items_expected_min() > 0;
        });
    };
    std::vector<std::string> words;
    for (const std::string word : std::span(argv, std::size_t(argc)).subspan(1)) {
        const std::string option = word.substr(0, word.size() - 1);
        const bool isEmpty = word.starts_with("--") && word.ends_with('=') && hasValue(option);
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
