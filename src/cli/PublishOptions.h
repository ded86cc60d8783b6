#pragma once

#include "cli/PasswordOptions.h"
#include "drawing/SpareWorkers.h"
#include "pdf/MergePlan.h"
#include "pdf/SplitPDF.h"
#include "project/Project.h"
#include "webbook/BookFacts.h"

#include <QString>
#include <QStringList>
#include <vector>

// The options of "folvero publish".
struct PublishOptions {
    // Documents, pictures and folders of pictures, in this order. A book of several, or of
    // pictures, is named after the first one.
    QStringList inputs;
    QString pdf; // the first of them
    // A project's: sources are inputs; empty for all pages of all inputs.
    std::vector<MergePlan::Page> pageList;
    PasswordOptions password;
    QString outputFolder;
    enum class Type { html, app, web, scorm };
    Type type = Type::web;
    QString name;  // null: "index" for a page, the PDF's name for an application
    QString title; // null: the document's own title, or else its file name
    QString pages = QStringLiteral("ALL");
    Spreads spreads = Spreads::automatic;
    bool singleFile = false; // web books only
    bool allowText = false;  // web books only
    QString previewPages;    // web books only; null: all pages are included
    QString url;             // web books only: where the book will be; null: unknown
    bool iiif = false;       // web books in folders only, with url
    QString sharedPlayer;    // web books in folders only: where players lie; null: in the book
    BookFacts facts;         // web books only: known better than the document does; no title
    int quality = 100;
    bool links = false;
    bool bookmarks = false;
    QString templateName = QStringLiteral("float");
    QString styleName;
    std::vector<Project::Value> values; // a project's
    QString settingsFile;
    QStringList assignments; // "key=value"
    QString timingFile;
    QString reportFile;
    int jobs = usualWorkerCount(); // page workers
    bool quiet = false;
    bool force = false; // replace files that do not belong to a book
    bool watch = false; // republish whenever the PDF or the settings file changes
    // Names of the options on the command line, such as "--type": a project has no say in them.
    QStringList given;
};
