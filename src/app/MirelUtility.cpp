#include "app/MirelUtility.h"

#include "system/FolderList.h"
#include "system/Folders.h"
#include "system/TemporaryFolders.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace {

QByteArray md5(const QByteArray& data) {
    return QCryptographicHash::hash(data, QCryptographicHash::Md5);
}

} // namespace

QString MirelUtility::tmpDiractoryForCurrentUser() {
    const QString folder = Folders::temporary();
    return folder.isNull() ? QStringLiteral("/tmp") : folder;
}

// In "/tmp" on purpose, wherever the user's own temporary folder is.
QString MirelUtility::forceTmpDiractory(const QString& name) {
    return TemporaryFolders::make(name);
}

void MirelUtility::openFolderFromFolderOrFile(const QString& path) {
    const QFileInfo info(path);
    const QString absolute = QDir::cleanPath(info.absoluteFilePath());
    // The file manager's D-Bus interface can select an entry; without one, the folder is opened. A
    // comma would separate two URLs.
    const QString address = QString::fromLatin1(
        QUrl::fromLocalFile(absolute).toEncoded(QUrl::FullyEncoded).replace(',', "%2C"));
    const QString folder = info.isDir() ? absolute : QFileInfo(absolute).path();
    const QString script = QStringLiteral(
        "dbus-send --session --print-reply --dest=org.freedesktop.FileManager1 "
        "/org/freedesktop/FileManager1 org.freedesktop.FileManager1.ShowItems "
        "\"array:string:$1\" string: >/dev/null 2>&1 || exec xdg-open \"$2\" >/dev/null 2>&1");
    QProcess::startDetached(QStringLiteral("/bin/sh"),
                            {QStringLiteral("-c"), script, QStringLiteral("sh"), address, folder});
}

QStringList MirelUtility::imageFilesOfDiractoryAtPath(const QString& folder) {
    QStringList images;
    for (const QString& name : QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot |
                                                      QDir::Hidden | QDir::System)) {
        if (name.endsWith(u".jpg") || name.endsWith(u".png"))
            images << name;
    }
    return images;
}

QStringList MirelUtility::subFolderOfFolder(const QString& folder) {
    return FolderList::foldersBeneath(folder);
}

QString MirelUtility::MD5StringOfString(const QString& text) {
    return MD5StringOfData(text.toUtf8());
}

QString MirelUtility::MD5StringOfData(const QByteArray& data) {
    return QString::fromLatin1(md5(data).toHex());
}

QByteArray MirelUtility::MD5DataOfString(const QString& text) {
    return md5(text.toUtf8());
}
