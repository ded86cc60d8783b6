#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>

class BookLayout;
struct PublishTarget;

// Files that make a web book available offline: its service worker, the list of files that it
// caches, and the web app manifest with its icon, for installing the book.
struct OfflineFiles {
    QString page;      // file name of its HTML page
    QString title;     // plain text
    QString language;  // "de", or empty
    QString cover;     // a picture written by the run, as a path in the book; empty for none
    QColor ground;     // background around the book
    QColor bar;        // background of its controls
    QByteArray script; // the player's service worker
    QString player;    // path of the part of the player that uses them

    // Whether the files may be written to the folder: false when it contains those of another site.
    static bool canWriteTo(const BookLayout& book);

    // Stages them. The list contains what the run writes, so call it last.
    void write(PublishTarget& to) const;

private:
    QByteArray manifest() const;
    QByteArray icon(const PublishTarget& to) const;
};
