#pragma once

#include <QString>

// The paths of a library: a folder with many books, their catalogue, and what runs of "folvero
// library" leave for later runs.
class LibraryLayout {
public:
    // Folders in the library's folder.
    static inline const QString books = QStringLiteral("books");
    static inline const QString players = QStringLiteral("player");
    // Hidden: it is not part of the site.
    static inline const QString state = QStringLiteral(".folvero-library");

    // The path is made absolute.
    explicit LibraryLayout(const QString& folder);

    QString folder() const { return iFolder; }
    // The full path of a file or folder of the site, by its path in the library's folder.
    QString at(const QString& path) const;
    // The same for a file of the state.
    QString stateAt(const QString& path) const;

    // The book's folder, and its path in the library's folder.
    QString book(const QString& id) const;
    static QString bookPath(const QString& id);

    // What the last runs say of a book; in 256 folders, since file systems get slow with many files
    // in one.
    QString results() const;
    static constexpr int resultGroups = 256;
    // The folder with the results of a group, from 0, and the group of a book.
    QString resultGroup(int group) const;
    static int resultGroupOf(const QString& id);
    QString result(const QString& id) const;
    // Held by the run that makes the book.
    QString lease(const QString& id) const;
    // The IDs of the list as it was read last.
    QString list() const;
    // What each shard did last.
    QString runs() const;
    // The folder of the full text index.
    QString searchIndex() const;

private:
    QString iFolder;
};
