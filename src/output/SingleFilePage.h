#pragma once

#include "platform/Message.h"

#include <QByteArray>
#include <QString>
#include <map>
#include <vector>

// A web book as one page that holds all of its files, so that it asks for none.
class SingleFilePage {
public:
    // The book's files: where each lies, by its path in the book; page is that of the HTML page.
    // What is neither the page nor beneath "files" is left out.
    SingleFilePage(const std::map<QString, QString>& files, const QString& page);

    // Bytes that it takes.
    qint64 size() const;

    // False, with the reason in *error, when a file can't be read or this one can't be written.
    bool write(const QString& path, Message* error) const;

private:
    // A part of the page, in its order. Only bytes are read when they are written: they may be
    // many.
    struct Part {
        QByteArray text;
        QString source; // of the bytes that follow the text; null for none
    };

    void addFile(const QString& name, const QString& source);
    void addText(const QByteArray& text) { iParts.push_back({text, QString()}); }

    std::vector<Part> iParts;
};
