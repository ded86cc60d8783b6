#include "cli/ProjectInfo.h"

#include "console/Terminal.h"
#include "project/ProjectFile.h"
#include "project/ProjectFiles.h"
#include "project/ProjectJSON.h"

#include <QFileInfo>

namespace {

void print(const char* name, const QString& text) {
    if (!text.isEmpty())
        Terminal::print(QStringLiteral("%1: %2").arg(QLatin1String(name), text));
}

QString pagesOf(const Project& project) {
    if (!project.pages.empty())
        return QStringLiteral("%1, chosen one by one").arg(project.pages.size());
    return project.import.isRangeTyped ? project.import.range : QStringLiteral("all");
}

QString kindOf(const Project::Publish& publish) {
    switch (publish.kind) {
    case Project::Kind::html:
        return QStringLiteral("classic book");
    case Project::Kind::app:
        return QStringLiteral("application");
    case Project::Kind::web:
        break;
    }
    return publish.singleFile ? QStringLiteral("web book in a single file")
                              : QStringLiteral("web book");
}

} // namespace

void runProjectInfo(const QString& path, bool json) {
    const Project saved = ProjectFile::read(path);
    if (json) {
        Terminal::print(QString::fromUtf8(ProjectJSON::written(saved)).trimmed());
        return;
    }
    const auto located = ProjectFiles::locate(saved, QFileInfo(path).absolutePath());
    const Project& project = located.project;
    for (const Project::File& document : project.documents)
        print("Document", document.path);
    print("Pages", pagesOf(project));
    print("Template", project.templateName);
    print("Style", project.styleName);
    for (const Project::Value& value : project.values)
        Terminal::print(QStringLiteral("Value: %1=%2").arg(value.key, value.text));
    print("Kind", kindOf(project.publish));
    print("Title", project.publish.title);
    print("Name", project.publish.name);
    print("Folder", project.publish.folder);
    print("Address", project.publish.url);
    print("Reading sample", project.publish.previewPages);
    for (const Message& warning :
         located.changed + located.missingDocuments + located.missingValues)
        Terminal::report(QStringLiteral("folvero: %1").arg(warning.english()));
}
