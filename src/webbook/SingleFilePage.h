#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <map>
#include <vector>

// A web book as a single page that contains all of its files.
class SingleFilePage {
public:
    // The book's files, their paths on disk by their paths in the book, between the two parts of
    // its HTML page. The page's parts contain the configuration and the player.
    SingleFilePage(const QByteArray& start, const std::map<QString, QString>& files,
                   const QByteArray& end);

    // Size in bytes.
    qint64 size() const;

    // False, with the cause in *error, when a file can't be read or this one can't be written.
    bool write(const QString& path, Message* error) const;

private:
    // A part of the page, in order. Files are read only while writing: they may be large.
    struct Part {
        QByteArray text;
        QString source; // file whose bytes follow the text; null for none
    };

    void addFile(const QString& path, const QString& source);
    void addText(const QByteArray& text) { iParts.push_back({text, QString()}); }

    std::vector<Part> iParts;
};
