#pragma once

#include <QString>
#include <QStringList>

// What "folvero publish" was asked to do.
struct PublishOptions {
    QString pdf;
    QString outputFolder;
    enum class Type { html, app, web };
    Type type = Type::html;
    QString name;  // null: "index" for a page, the PDF's name for an application
    QString title; // null: the document's own title, or else its file name
    QString pages = QStringLiteral("ALL");
    bool singleFile = false; // of a web book
    QString previewPages;    // of a web book; null: all pages can be read
    int quality = 100;
    bool links = false;
    bool bookmarks = false;
    QString templateName = QStringLiteral("float");
    QString styleName;
    QString settingsFile;
    QStringList assignments; // "key=value"
    QString timingFile;
    bool quiet = false;
    bool force = false; // replace files that are no book's
    bool watch = false; // publish again whenever the PDF or the settings file changes
};

// Makes a book from a PDF; to watch its files is to make it again and again, until Ctrl-C. Throws
// CommandError.
void runPublish(const PublishOptions& options);
