#pragma once

#include "pdf/MergePlan.h"
#include "pdf/SplitPDF.h"

#include <QByteArray>
#include <QString>
#include <vector>

// All that a book is made of and how, so that it can be taken up again later. It names the
// documents; it does not contain them, nor any password.
struct Project {
    // A file that the project refers to, and what is needed to find it again.
    struct File {
        QString path;      // absolute
        QString relative;  // to the project's folder; empty when unknown
        qint64 size = -1;  // bytes; -1 when unknown
        QByteArray digest; // SHA-256 in hexadecimal; empty when unknown
    };
    // A value of the template that differs from those of its style. When it is the path of a file,
    // file says where that is.
    struct Value {
        QString key;
        QString text;
        bool isFile = false;
        File file;
    };
    struct Import {
        bool isRangeTyped = false; // or else all pages
        QString range;             // as typed; kept while all pages are imported
        int quality = 100;         // 100 for the sharpest pages, 0 for the smallest files
        Spreads spreads = Spreads::automatic;
        bool links = false;
        bool bookmarks = false;
    };
    enum class Kind { html, app, web };
    // Empty texts are not chosen yet.
    struct Publish {
        QString folder;
        QString name; // of the page or the application, without extension
        QString title;
        Kind kind = Kind::web;
        // Web books only.
        bool singleFile = false;
        QString url;          // where the book will be
        QString previewPages; // of a reading sample, by their numbers in the document

        bool operator==(const Publish& other) const = default;
    };

    std::vector<File> documents; // PDFs and pictures; none for the demo book
    // Sources are documents. Empty for all pages of all documents, in order.
    std::vector<MergePlan::Page> pages;
    Import import;
    QString templateName = QStringLiteral("float");
    QString styleName; // empty for the template's own values
    std::vector<Value> values;
    // The style is not one of the library, so the values are also those that it sets itself: it may
    // be missing where the project is opened.
    bool holdsStyle = false;
    Publish publish;
    // Of what was saved in case the program ends early: the path of the project itself, empty when
    // it was never saved. Null in other projects.
    QString recoveryOf;
};
