#include "project/ProjectFile.h"

#include "base/PlatformException.h"
#include "project/ProjectJSON.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/PartFile.h"
#include "system/ZipReader.h"
#include "system/ZipWriter.h"

#include <QDir>
#include <QFileInfo>
#include <sys/mman.h>

namespace {

const QString typeName = QStringLiteral("mimetype");
const QString descriptionName = QStringLiteral("project.json");
const QString coverName = QStringLiteral("cover.jpg");
const QByteArray mediaType = "application/x-folvero";

// Far more than any project has.
constexpr ZipReader::Limits limits{64, 64 << 20};

[[noreturn]] void fail(const QString& path, const Message& cause,
                       ErrorKind kind = ErrorKind::project) {
    throw PlatformException(kind, Message::about(path, cause));
}

ZipReader::Entries entriesOf(const QString& path) {
    if (!QFileInfo::exists(path))
        fail(path, Message::translate("Project", "no such file"), ErrorKind::pdfFile);
    Message error;
    auto entries = ZipReader::read(path, limits, &error);
    if (!entries)
        fail(path, error);
    if ((*entries)[typeName] != mediaType || !entries->contains(descriptionName))
        fail(path, Message::translate("Project", "is no project"));
    return *entries;
}

void setRelative(Project::File& file, const QDir& folder) {
    file.relative = folder.relativeFilePath(file.path);
}

// Null when it fails. Made in memory: of a program that is killed meanwhile no file is left.
QByteArray archiveOf(const QByteArray& description, const QByteArray& cover, Message* error) {
    const FileDescriptor memory(::memfd_create("project", MFD_CLOEXEC));
    if (!memory.isOpen()) {
        *error = Message::ofLastSystemError();
        return {};
    }
    const QString file = QStringLiteral("/proc/self/fd/%1").arg(memory.number());
    // Stored first, so that the file's first bytes tell its type.
    ZipWriter archive(file);
    archive.add(typeName, mediaType, ZipWriter::Method::stored);
    archive.add(descriptionName, description, ZipWriter::Method::deflated);
    if (!cover.isNull())
        archive.add(coverName, cover, ZipWriter::Method::stored);
    *error = archive.finish({});
    return error->isNull() ? Files::contents(file, error) : QByteArray();
}

} // namespace

bool ProjectFile::isProject(const QString& path) {
    return Files::pathExtension(path).compare(extension, Qt::CaseInsensitive) == 0;
}

Project ProjectFile::read(const QString& path) {
    const ZipReader::Entries entries = entriesOf(path);
    try {
        return ProjectJSON::read(entries.at(descriptionName));
    } catch (const PlatformException& failure) {
        fail(path, failure.message(), failure.kind());
    }
}

QByteArray ProjectFile::cover(const QString& path) {
    try {
        return entriesOf(path)[coverName];
    } catch (const PlatformException&) {
        return {};
    }
}

bool ProjectFile::write(Project project, const QByteArray& cover, const QString& path,
                        Message* error) {
    const QDir folder = QFileInfo(path).absoluteDir();
    for (Project::File& document : project.documents)
        setRelative(document, folder);
    for (Project::Value& value : project.values) {
        if (value.isFile)
            setRelative(value.file, folder);
    }
    const QByteArray archive = archiveOf(ProjectJSON::written(project), cover, error);
    return !archive.isNull() && PartFile::write(path, archive, error);
}
