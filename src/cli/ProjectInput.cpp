#include "cli/ProjectInput.h"

#include "base/PlatformException.h"
#include "cli/PublishOptions.h"
#include "cli/TemplateOptions.h"
#include "console/CommandError.h"
#include "console/Terminal.h"
#include "project/ProjectFile.h"
#include "project/ProjectFiles.h"

#include <QFileInfo>
#include <algorithm>

namespace {

using Type = PublishOptions::Type;

Type typeOf(Project::Kind kind) {
    return kind == Project::Kind::html  ? Type::html
           : kind == Project::Kind::app ? Type::app
                                        : Type::web;
}

// Throws PlatformException.
ProjectFiles::Located locatedOf(const QString& path) {
    return ProjectFiles::locate(ProjectFile::read(path), QFileInfo(path).absolutePath());
}

// Null when the inputs are documents.
QString projectOf(const PublishOptions& options) {
    const auto found =
        std::find_if(options.inputs.begin(), options.inputs.end(), ProjectFile::isProject);
    if (found == options.inputs.end() || QFileInfo(*found).isDir())
        return {};
    if (options.inputs.size() > 1)
        throw CommandError(
            QStringLiteral("%1: a project can't be joined with other documents").arg(*found),
            ExitCode::usage);
    return *found;
}

// Sets an option that is not on the command line.
class Choices {
public:
    explicit Choices(PublishOptions& options) : iOptions(options) {}

    template <class Value>
    void set(const char* name, Value PublishOptions::*option, const Value& value) {
        if (!isGiven(name))
            iOptions.*option = value;
    }
    // Empty texts are not chosen.
    void setText(const char* name, QString PublishOptions::*option, const QString& text) {
        if (!text.isEmpty())
            set(name, option, text);
    }
    bool isGiven(const char* name) const { return iOptions.given.contains(QLatin1String(name)); }

private:
    PublishOptions& iOptions;
};

void apply(const Project& project, PublishOptions& options) {
    Choices choices(options);
    const Project::Import& import = project.import;
    if (import.isRangeTyped)
        choices.setText("--pages", &PublishOptions::pages, import.range);
    choices.set("--spreads", &PublishOptions::spreads, import.spreads);
    choices.set("--quality", &PublishOptions::quality, import.quality);
    choices.set("--links", &PublishOptions::links, import.links);
    choices.set("--bookmarks", &PublishOptions::bookmarks, import.bookmarks);
    // A style is one of its template.
    const bool isMissing =
        project.holdsStyle &&
        !TemplateOptions::styleNames(project.templateName).contains(project.styleName);
    if (!choices.isGiven("--template") && !isMissing)
        choices.setText("--style", &PublishOptions::styleName, project.styleName);
    choices.set("--template", &PublishOptions::templateName, project.templateName);
    options.values = project.values;
    const Project::Publish& publish = project.publish;
    choices.setText("--name", &PublishOptions::name, publish.name);
    choices.setText("--title", &PublishOptions::title, publish.title);
    choices.set("--type", &PublishOptions::type, typeOf(publish.kind));
    if (options.type == Type::web) {
        choices.set("--single-file", &PublishOptions::singleFile, publish.singleFile);
        choices.setText("--url", &PublishOptions::url, publish.url);
    }
    if (options.type == Type::web || options.type == Type::scorm)
        choices.setText("--preview-pages", &PublishOptions::previewPages, publish.previewPages);
}

} // namespace

PublishOptions ProjectInput::resolved(const PublishOptions& options) {
    const QString path = projectOf(options);
    if (path.isNull())
        return options;
    const ProjectFiles::Located located = locatedOf(path);
    const Project& project = located.project;
    for (const Message& missing : located.missingDocuments + located.missingValues)
        throw CommandError(Messages{Message::about(path, missing)});
    if (project.documents.empty())
        throw CommandError(QStringLiteral("%1: has no documents").arg(path), ExitCode::badDocument);
    for (const Message& warning : located.changed)
        Terminal::report(QStringLiteral("folvero: %1").arg(warning.english()));
    PublishOptions whole = options;
    whole.inputs.clear();
    for (const Project::File& document : project.documents)
        whole.inputs << document.path;
    whole.pdf = whole.inputs.front();
    whole.pageList = project.pages;
    apply(project, whole);
    return whole;
}

QStringList ProjectInput::filesOf(const PublishOptions& options) {
    QStringList files = options.inputs;
    try {
        const QString path = projectOf(options);
        if (path.isNull())
            return files;
        const Project project = locatedOf(path).project;
        for (const Project::File& document : project.documents)
            files << document.path;
        for (const Project::Value& value : project.values) {
            if (value.isFile)
                files << value.file.path;
        }
    } catch (const std::exception&) {
        // Making the book reports it.
    }
    return files;
}
