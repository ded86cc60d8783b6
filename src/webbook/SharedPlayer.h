#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

class FlashTemplate;

// The files of the player that are the same in every book of a look, in a folder that these books
// share: the parts of the player, script and style of the page, and the sounds and pictures that
// the template and its style come with. Each version of these files has a folder of its own, so
// that two versions never mix.
class SharedPlayer {
public:
    // folder is where players lie, that of each version below it; bookFolder is the book's own.
    // Reads the files, writes nothing. Throws PlatformException when one can't be read, or no
    // relative address leads from the book to the folder.
    SharedPlayer(const QString& folder, const QString& bookFolder,
                 const FlashTemplate& flashTemplate);

    struct File {
        QString name;   // path below the player's folder
        QString inBook; // path in a book that does not share; null for a part of a file there
        QByteArray bytes;
    };
    const std::vector<File>& files() const { return iFiles; }

    // The player's folder as the book's page refers to it, percent-encoded, with a slash at its
    // end; and the same for a file by its name.
    const QByteArray& address() const { return iAddress; }
    QByteArray address(const QString& name) const;

    // What the page's script finds here that other books have below "files", separated by spaces.
    QString namesForPage() const;

    // Whether all files are there, by their sizes.
    bool isThere() const;
    // Writes those that are missing; any number of programs may do so at once. Throws
    // PlatformException, also when a file is there with another content.
    void put() const;

private:
    void addFiles(const QString& bookFolder, const FlashTemplate& flashTemplate);
    QString at(const QString& name) const;

    std::vector<File> iFiles; // sorted by name
    QString iFolder;          // of this version
    QByteArray iAddress;
};
