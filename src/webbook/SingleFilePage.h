#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

// A web book as a single page that contains all of its files.
class SingleFilePage {
public:
    // Paths in a book and on disk.
    using Files = std::vector<std::pair<QString, QString>>;

    // The book's files in the order in which a reader gets them, between the two parts of its HTML
    // page, which contain the player and what it begins with. checkCancelled is called before each
    // file and may throw: scripts are read and packed here.
    SingleFilePage(const QByteArray& start, const Files& files, const QByteArray& end,
                   const std::function<void()>& checkCancelled);

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

    void addScript(const QString& path, const QString& source);
    void addFile(const QString& path, const QString& source);
    void addText(const QByteArray& text) { iParts.push_back({text, QString()}); }

    std::vector<Part> iParts;
};
