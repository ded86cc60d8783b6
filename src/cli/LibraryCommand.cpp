#include "cli/LibraryCommand.h"

#include "cli/CommandArguments.h"
#include "cli/LibraryBatch.h"
#include "cli/LibraryCatalogue.h"
#include "cli/LibraryMake.h"
#include "cli/LibraryOptions.h"
#include "cli/LibrarySearchCommands.h"
#include "cli/LibraryStatusCommand.h"
#include "cli/PublishArguments.h"
#include "library/catalogue/CatalogueTexts.h"
#include "system/NameAliases.h"

#include <QByteArray>
#include <QFileInfo>
#include <memory>
#include <string>
#include <vector>

using CommandArguments::addPath;
using CommandArguments::addText;

namespace {

const std::string listHelp = "The list: CSV or JSON lines with a column pdf, or a folder with PDFs";
const std::string folderHelp = "The folder of the library";

void addListAndFolder(CLI::App& command, QString& list, QString& folder) {
    addPath(command, "LIST", list, listHelp)->type_name("")->required();
    addPath(command, "OUT", folder, folderHelp)->type_name("")->required();
}

// Options of publish that are passed on as they are typed.
void addBookOptions(CLI::App& command, QStringList& options) {
    const auto passOn = [&options](const std::string& name, const std::string& value) {
        options << NameAliases::text(QByteArray::fromStdString(name + '=' + value));
    };
    struct Option {
        std::string name;
        std::string type;
        std::string help;
    };
    for (const auto& [name, type, help] :
         {Option{"--template", "NAME", "Template of all books that the list names none for"},
          Option{"--style", "NAME", "Style of the template"},
          Option{"--quality", "N", "As in folvero publish"},
          Option{"--spreads", "HOW", "As in folvero publish"}}) {
        command
            .add_option_function<std::string>(
                name, [passOn, option = name](const std::string& value) { passOn(option, value); },
                help)
            ->type_name(type);
    }
    // The books may be made in another folder.
    command
        .add_option_function<std::string>(
            "--settings",
            [&options](const std::string& path) {
                const QString file = NameAliases::decoded(QByteArray::fromStdString(path));
                options << QStringLiteral("--settings=") + QFileInfo(file).absoluteFilePath();
            },
            "A settings file to apply")
        ->type_name("FILE");
    command
        .add_option_function<std::vector<std::string>>(
            "--set",
            [passOn](const std::vector<std::string>& values) {
                for (const std::string& value : values)
                    passOn("--set", value);
            },
            "Set one property of the template; may be given many times")
        ->type_name("KEY=VALUE")
        ->allow_extra_args(false);
    command.add_flag_callback(
        "--allow-text", [&options] { options << QStringLiteral("--allow-text"); },
        "Include text also if a document forbids copying it");
}

// I/N
void takeShard(const std::string& typed, LibraryMakeOptions& options) {
    const QByteArrayList parts = QByteArray::fromStdString(typed).split('/');
    bool isShard = false;
    bool isCount = false;
    options.shard = parts.value(0).toInt(&isShard);
    options.shards = parts.value(1).toInt(&isCount);
    if (parts.size() != 2 || !isShard || !isCount || options.shard < 1 ||
        options.shard > options.shards)
        throw CLI::ValidationError("--shard", typed + " is not like 3/8");
}

// What a catalogue is made with besides the address.
void addCatalogueTexts(CLI::App& command, LibraryCatalogueOptions& options) {
    addText(command, "--title", options.title, "Name of the library; by default that of its folder")
        ->type_name("TEXT");
    addText(command, "--language", options.language,
            "Language of the catalogue's pages:\n" +
                CatalogueTexts::languages().join(QStringLiteral(", ")).toStdString())
        ->type_name("CODE")
        ->default_str("en");
    addText(command, "--contact", options.contact,
            "Mail address in the OAI-PMH file, which is left out without it")
        ->type_name("MAIL");
    addText(command, "--oai-gateway", options.gateway,
            "Address of the gateway through which the OAI-PMH file will be read")
        ->type_name("ADDRESS");
}

void addMake(CLI::App& library, const PasswordOptions& environment) {
    auto* command = library.add_subcommand("make", "Make the books of a list");
    const auto options = std::make_shared<LibraryMakeOptions>();
    options->password = environment;
    addListAndFolder(*command, options->list, options->folder);
    addBookOptions(*command, options->bookOptions);
    command
        ->add_option("--jobs", options->jobs,
                     "Number of pages to draw at the same time, of all books together; by\n"
                     "default as many as this program may use processors, but at most 16")
        ->check(CLI::Range(1, 256, "1-256"))
        ->type_name("N");
    command
        ->add_option_function<std::string>(
            "--shard", [options](const std::string& typed) { takeShard(typed, *options); },
            "Make only part I of N parts of the list")
        ->type_name("I/N");
    addText(*command, "--url", options->catalogue.address,
            "Address at which the library will be: its books name it to search engines,\n"
            "and get IIIF manifests, and its catalogue has feeds")
        ->type_name("ADDRESS");
    addCatalogueTexts(*command, options->catalogue);
    command->add_flag_callback(
        "--no-catalogue", [options] { options->makesCatalogue = false; },
        "Make only the books, not the catalogue, which with --shard is not made anyway");
    command->add_flag("--only-failed", options->onlyFailed,
                      "Make only the books that are not done: failed, incomplete or never made");
    command->add_flag("--prune", options->prune, "Remove books that are not in the list any more");
    command->add_flag("--force", options->force, "Make books even if they are up to date");
    command->add_flag("--quiet", options->quiet, "Show no progress");
    command->callback([options] { runLibraryMake(*options); });
}

void addCatalogue(CLI::App& library) {
    auto* command = library.add_subcommand(
        "catalogue", "Make pages, a search and feeds over the books of a library");
    const auto options = std::make_shared<LibraryCatalogueOptions>();
    addPath(*command, "OUT", options->folder, folderHelp)->type_name("")->required();
    addText(*command, "--url", options->address,
            "Address at which the library will be: feeds, sitemap, OPDS, IIIF\n"
            "collection and OAI-PMH file name it, and are left out without it")
        ->type_name("ADDRESS");
    addCatalogueTexts(*command, *options);
    command->add_flag("--force", options->force,
                      "Overwrite files that are not of a catalogue, such as an index.html");
    command->add_flag("--quiet", options->quiet, "Show no progress");
    command->footer("The last run's title, language and addresses are used again unless others "
                    "are given; an empty\ntext takes one back.");
    command->callback([options] { LibraryCatalogue::run(*options); });
}

void addStatus(CLI::App& library) {
    struct Arguments {
        QString folder;
        bool asJson = false;
    };
    auto* command = library.add_subcommand("status", "Show which books are done and which are not");
    const auto arguments = std::make_shared<Arguments>();
    addPath(*command, "OUT", arguments->folder, folderHelp)->type_name("")->required();
    command->add_flag("--json", arguments->asJson, "Print JSON");
    command->callback([arguments] { runLibraryStatus(arguments->folder, arguments->asJson); });
}

void addBatch(CLI::App& library) {
    auto* command =
        library.add_subcommand("sbatch", "Print a batch script that makes the books with Slurm");
    const auto options = std::make_shared<LibraryBatchOptions>();
    addListAndFolder(*command, options->list, options->folder);
    command
        ->add_option("--shards", options->shards, "Number of tasks, each with a part of the list")
        ->required()
        ->check(CLI::Range(1, 100'000, "1-100000"))
        ->type_name("N");
    addBookOptions(*command, options->makeOptions);
    addText(*command, "--url", options->address, "Address at which the library will be")
        ->type_name("ADDRESS");
    command->callback([options] { runLibraryBatch(*options); });
}

} // namespace

CLI::App& addLibraryCommands(CLI::App& app, const PasswordOptions& environment) {
    auto* library = app.add_subcommand("library", "Make, search and show a library of many books")
                        ->group("Commands")
                        ->require_subcommand(1);
    addMake(*library, environment);
    addCatalogue(*library);
    addStatus(*library);
    addBatch(*library);
    addLibraryIndex(*library);
    addLibraryExport(*library);
    return *library;
}
