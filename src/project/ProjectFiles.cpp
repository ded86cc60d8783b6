#include "project/ProjectFiles.h"

#include "system/Files.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

QByteArray digestOf(const QString& path) {
    return Files::digest(path, QCryptographicHash::Sha256);
}

QStringList placesOf(const Project::File& file, const QString& projectFolder) {
    QStringList places{file.path};
    if (!file.relative.isEmpty())
        places << QDir::cleanPath(Files::join(projectFolder, file.relative));
    places << Files::join(projectFolder, Files::lastPathComponent(file.path));
    places.removeDuplicates();
    return places;
}

// The size spares reading a large document that was replaced.
bool isChanged(const Project::File& file, const QString& path) {
    if (file.digest.isEmpty())
        return false;
    return QFileInfo(path).size() != file.size || digestOf(path) != file.digest;
}

class Search {
public:
    explicit Search(const QString& projectFolder) : iFolder(projectFolder) {}

    void find(Project::File& file, Messages& missing) {
        const QStringList places = placesOf(file, iFolder);
        const auto found = std::find_if(places.begin(), places.end(), [](const QString& place) {
            return QFileInfo(place).isFile();
        });
        if (found == places.end()) {
            missing << Message::translate("Project", "%1 was not found; it was looked for at: %2")
                           .arg(Files::lastPathComponent(file.path),
                                places.join(QStringLiteral(", ")));
            return;
        }
        if (isChanged(file, *found))
            changed << Message::about(
                *found, Message::translate("Project", "was changed after the project was saved"));
        file.path = *found;
    }

    Messages changed;

private:
    QString iFolder;
};

} // namespace

Project::File ProjectFiles::describe(const QString& path) {
    Project::File file;
    file.path = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    file.digest = digestOf(file.path);
    if (!file.digest.isEmpty())
        file.size = QFileInfo(file.path).size();
    return file;
}

ProjectFiles::Located ProjectFiles::locate(Project project, const QString& projectFolder) {
    Search search(projectFolder);
    Located located;
    for (Project::File& document : project.documents)
        search.find(document, located.missingDocuments);
    for (Project::Value& value : project.values) {
        if (!value.isFile)
            continue;
        search.find(value.file, located.missingValues);
        value.text = value.file.path;
    }
    located.project = std::move(project);
    located.changed = search.changed;
    return located;
}
