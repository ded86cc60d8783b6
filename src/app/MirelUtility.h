#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Temporary folders, folder listings, MD5 text and the Flash Player trust file.
class MirelUtility {
public:
    MirelUtility() = delete;

    // The user's temporary folder, or "/tmp" when the platform has none.
    static QString tmpDiractoryForCurrentUser();

    // Creates a unique folder "/tmp/NAME/temp.XXXXXX" and returns its path. Stale ones of earlier
    // runs are removed. See TemporaryFolders; its remove() deletes the folder.
    static QString forceTmpDiractory(const QString& name);

    // Shows the file or folder selected in the platform's file browser.
    static void openFolderFromFolderOrFile(const QString& path);

    // Names (not paths) of the entries that end in ".jpg" or ".png", case-sensitive.
    static QStringList imageFilesOfDiractoryAtPath(const QString& folder);

    // Paths of all folders below one, recursively, each folder before its contents.
    static QStringList subFolderOfFolder(const QString& folder);

    // Adds the folder to the Flash Player trust file, once.
    static void makeDiractoryTrustByFlash(const QString& folder);

    static QString MD5StringOfString(const QString& text);
    static QString MD5StringOfData(const QByteArray& data);
    static QByteArray MD5DataOfString(const QString& text);
};
