#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>

class PublishTransaction;

// What lets readers of a web book keep it: the page's script that answers for the server, the list
// of files that it goes by, and what systems ask for that put a book among their programs.
struct OfflineFiles {
    QString folder;    // of the book
    QString page;      // name of its HTML page
    QString title;     // plain text
    QString language;  // "de", or empty
    QString cover;     // a picture that the transaction writes, a path in the book; empty for none
    QColor ground;     // what lies around the book
    QColor bar;        // what its controls lie on
    QByteArray script; // that answers, as the player has it

    // Whether the folder has room for them: it may hold such files of somebody else's site.
    static bool canWriteTo(const QString& folder);

    // Stages them. The list has what the transaction writes, so it comes last.
    void write(PublishTransaction& transaction) const;

    // For a book that does without them: takes away those of the earlier book that the transaction
    // replaces, whose readers would go on with it, and its page of plain text.
    static void removeOutdated(PublishTransaction& transaction, const QString& folder);

private:
    QByteArray manifest() const;
    QByteArray icon(const PublishTransaction& transaction) const;
};
