#include "cli/PublishArguments.h"

#include "cli/CommandArguments.h"
#include "cli/PasswordOptions.h"
#include "cli/PublishOptions.h"
#include "system/NameAliases.h"

#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <memory>
#include <string>
#include <vector>

using CommandArguments::addPath;
using CommandArguments::addText;

namespace {

// KEY=VALUE, where the value may be the path of a file.
QString decodedAssignment(const QByteArray& typed) {
    const qsizetype key = typed.indexOf('=') + 1;
    const QString value = typed.isValidUtf8() ? QString() : NameAliases::decoded(typed.sliced(key));
    return QFileInfo::exists(value) ? NameAliases::text(typed.first(key)) + value
                                    : NameAliases::text(typed);
}

PublishOptions::Type typeNamed(const std::string& name) {
    using Type = PublishOptions::Type;
    return name == "app"     ? Type::app
           : name == "html"  ? Type::html
           : name == "scorm" ? Type::scorm
                             : Type::web;
}

Spreads spreadsNamed(const std::string& name) {
    return name == "keep" ? Spreads::keep : name == "split" ? Spreads::split : Spreads::automatic;
}

// Those that lists of books know better than the documents.
void addFacts(CLI::App& command, BookFacts& facts) {
    addText(command, "--author", facts.author,
            "Author of a web book; by default the document's. Several are separated by\n"
            "semicolons")
        ->type_name("TEXT");
    addText(command, "--subject", facts.subject,
            "What a web book is about; by default as the document says")
        ->type_name("TEXT");
    addText(command, "--language", facts.language,
            "Language of a web book, such as de or pt-BR; by default the document's")
        ->type_name("CODE");
    addText(command, "--date", facts.date, "When a web book was published")->type_name("TEXT");
    addText(command, "--rights", facts.rights,
            "Rights of a web book, a text or the address of a licence")
        ->type_name("TEXT");
}

// The last path is the folder, but a list takes whatever comes.
void addPaths(CLI::App& command, PublishOptions& options) {
    const auto folder = std::make_shared<CLI::Option*>();
    command
        .add_option_function<std::vector<std::string>>(
            "PDF",
            [folder, &options](std::vector<std::string> typed) {
                if (typed.size() > 1) {
                    (*folder)->add_result(typed.back());
                    typed.pop_back();
                }
                for (const std::string& path : typed)
                    options.inputs << NameAliases::decoded(QByteArray::fromStdString(path));
                options.pdf = options.inputs.front();
                // A book is named after a folder, even if that is called "." or "x/".
                if (QFileInfo(options.pdf).isDir())
                    options.pdf = QDir::cleanPath(QFileInfo(options.pdf).absoluteFilePath());
            },
            "The PDF file; or several PDFs, pictures and folders of them, whose pages\n"
            "make one book in this order; or a project. Other documents (Word, PowerPoint,\n"
            "OpenDocument) need LibreOffice")
        ->type_name("")
        ->required();
    *folder = addPath(command, "FOLDER", options.outputFolder,
                      "The folder for the book; created if missing");
    (*folder)->type_name("")->required();
}

// Options that change the book.
void addBookOptions(CLI::App& command, PublishOptions& options) {
    command
        .add_option_function<std::string>(
            "--type", [&options](const std::string& name) { options.type = typeNamed(name); },
            "web: a book with links, contents, search and text to select, for disk and\n"
            "web; html: a classic book, with pictures of the pages only; scorm: a web book\n"
            "as a course for learning platforms (SCORM 1.2), one ZIP file; app: a Mac\n"
            "application")
        ->check(CLI::IsMember({"web", "html", "scorm", "app"}))
        ->type_name("TYPE")
        ->default_str("web");
    addText(command, "--name", options.name,
            "Name of the HTML page (by default index), or of the application or course\n"
            "(by default that of the PDF file), without its extension")
        ->type_name("NAME");
    addText(command, "--title", options.title,
            "Title of the book; by default the title of the document")
        ->type_name("TEXT");
    addText(command, "--pages", options.pages, "Pages to include, for example 1-3,7 or ALL")
        ->type_name("PAGES")
        ->default_str("ALL");
    command
        .add_option_function<std::string>(
            "--spreads",
            [&options](const std::string& name) { options.spreads = spreadsNamed(name); },
            "Double pages: auto makes two of each page twice as wide as the first one,\n"
            "split of each landscape page, keep leaves all as they are")
        ->check(CLI::IsMember({"auto", "split", "keep"}))
        ->type_name("HOW")
        ->default_str("auto");
    command.add_flag("--single-file", options.singleFile,
                     "Put all of a web book into its HTML page, for mail and USB sticks");
    command.add_flag("--allow-text", options.allowText,
                     "Include text in a web book also if the document forbids copying it");
    addText(command, "--preview-pages", options.previewPages,
            "Pages that a preview of a web book contains, as in --pages; the others\n"
            "show that they are left out")
        ->type_name("PAGES");
    addText(command, "--url", options.url,
            "Address at which a web book will be: search engines and previews of links\n"
            "name it, and show the first page")
        ->type_name("ADDRESS");
    addPath(command, "--shared-player", options.sharedPlayer,
            "Folder for the files of the player that are the same in every web book,\n"
            "instead of a copy in each")
        ->type_name("FOLDER");
    command.add_flag("--iiif", options.iiif,
                     "Describe a web book for other viewers, in an IIIF manifest; needs --url");
    addFacts(command, options.facts);
    command
        .add_option("--quality", options.quality,
                    "100 for the sharpest pages, below that for the smallest files")
        ->check(CLI::Range(0, 100, "0-100"))
        ->type_name("N")
        ->capture_default_str();
    command.add_flag("--links", options.links,
                     "Read the links of the pages; web books always have them");
    command.add_flag("--bookmarks", options.bookmarks,
                     "Read the bookmarks of the document; web books always have them");
    addText(command, "--template", options.templateName, "Template of the book")
        ->type_name("NAME")
        ->default_str("float");
    addText(command, "--style", options.styleName, "Style of the template")->type_name("NAME");
    addPath(command, "--settings", options.settingsFile, "A settings file to apply")
        ->type_name("FILE");
    command
        .add_option_function<std::vector<std::string>>(
            "--set",
            [&options](const std::vector<std::string>& typed) {
                for (const std::string& assignment : typed)
                    options.assignments << decodedAssignment(QByteArray::fromStdString(assignment));
            },
            "Set one property of the template, see folvero templates; may be given\n"
            "many times")
        ->type_name("KEY=VALUE")
        ->allow_extra_args(false);
    command.add_flag(
        "--force", options.force,
        "Make the book even if it is up to date, and overwrite a page, an application\n"
        "or other files that don't belong to a book");
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

} // namespace

void PublishArguments::addTo(CLI::App& command, PublishOptions& options) {
    addPaths(command, options);
    addBookOptions(command, options);
    addPassword(command, options.password);
    addRunOptions(command, options);
    command.parse_complete_callback([&command, &options] {
        for (const CLI::Option* option : command.get_options()) {
            if (option->count() > 0)
                options.given << QString::fromStdString(option->get_name());
        }
    });
}

void PublishArguments::addPassword(CLI::App& command, PasswordOptions& options) {
    command
        .add_flag("--password", options.ask,
                  "Ask for the password of a protected PDF on the terminal")
        ->disable_flag_override();
    addPath(command, "--password-file", options.file,
            "A file with the password in its first line; without either option the\n"
            "environment variable FOLVERO_PASSWORD may hold it")
        ->type_name("FILE");
}
