#include "template/OwnStyles.h"

#include "system/Files.h"
#include "template/FlashTemplate.h"
#include "template/StyleFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>

namespace {

QString templateOf(const QString& stylePath) {
    return Files::lastPathComponent(QFileInfo(stylePath).path());
}

QString fileIn(const QString& stylePath, const QString& name) {
    return Files::join(stylePath, name);
}

bool isOfLibrary(const QString& tmplName, const QString& name) {
    for (const QString& path : FlashTemplate::tmplStyleNamesForTmpl(tmplName)) {
        if (Files::lastPathComponent(path).compare(name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

Message takenByLibrary(const QString& name) {
    return Message::translate("OwnStyles",
                              "The template itself has a style “%1”. Choose another name.")
        .arg(name);
}

} // namespace

Message OwnStyles::nameError(const QString& tmplName, const QString& name) {
    if (name.isEmpty())
        return Message::translate("OwnStyles", "Type a name.");
    if (!StyleFolders::isName(name))
        return Message::translate("OwnStyles", "A name can't begin with a dot, contain a slash, or "
                                               "be very long.");
    return isOfLibrary(tmplName, name) ? takenByLibrary(name) : Message();
}

Message OwnStyles::failureOf(const QString& stylePath) {
    const QString tmplName = templateOf(stylePath);
    const QString name = Files::lastPathComponent(stylePath);
    if (isOfLibrary(tmplName, name))
        return takenByLibrary(name);
    const QString file = fileIn(stylePath, StyleFolders::settingsFile);
    Message cause;
    if (Files::contents(file, &cause).isNull())
        return Message::about(file, cause);
    FlashTemplate tmpl;
    tmpl.loadTemplate(tmplName);
    if (tmpl.loadError().isNull() && tmpl.importPropertiesSettingsFrom(file) == 0)
        return Message::translate("OwnStyles", "The file %1 contains no settings.").arg(file);
    return {};
}

bool OwnStyles::save(const FlashTemplate& tmpl, const QString& name, const QStringList& leftOut,
                     const QByteArray& picture, Message* error) {
    const QString path = StyleFolders::ownFor(tmpl.tmplName(), name);
    const QString folder = QFileInfo(path).path();
    const bool isNew = !QFileInfo::exists(path);
    errno = 0;
    if (!QDir().mkpath(folder) || (isNew && !QDir(folder).mkdir(name))) {
        *error = Message::about(folder, Message::ofLastSystemError());
        return false;
    }
    Message cause;
    if (!Files::writeAtomically(fileIn(path, StyleFolders::settingsFile), tmpl.settings(leftOut),
                                &cause)) {
        *error = Message::about(path, cause);
        if (isNew)
            QDir(folder).rmdir(name);
        return false;
    }
    // A style is complete without one.
    const QString shot = fileIn(path, StyleFolders::pictureFile);
    if (picture.isEmpty() || !Files::writeAtomically(shot, picture))
        QFile::remove(shot);
    return true;
}

bool OwnStyles::rename(const QString& stylePath, const QString& name, Message* error) {
    const QString tmplName = templateOf(stylePath);
    const QString target = StyleFolders::ownFor(tmplName, name);
    *error = nameError(tmplName, name);
    if (error->isNull() && QFileInfo::exists(target))
        *error =
            Message::translate("OwnStyles", "There is a style “%1” already. Choose another name.")
                .arg(name);
    if (!error->isNull())
        return false;
    errno = 0;
    if (!QDir().rename(stylePath, target)) {
        *error = Message::about(stylePath, Message::ofLastSystemError());
        return false;
    }
    return true;
}

bool OwnStyles::remove(const QString& stylePath, Message* error) {
    for (const QString& name : {StyleFolders::settingsFile, StyleFolders::pictureFile}) {
        const QString file = fileIn(stylePath, name);
        const QFileInfo info(file);
        errno = 0;
        if ((info.exists() || info.isSymLink()) && !QFile::remove(file)) {
            *error = Message::about(file, Message::ofLastSystemError());
            return false;
        }
    }
    errno = 0;
    if (!QDir().rmdir(stylePath) && QDir(stylePath).isEmpty()) {
        *error = Message::about(stylePath, Message::ofLastSystemError());
        return false;
    }
    return true;
}
