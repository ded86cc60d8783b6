#pragma once

#include <QString>
#include <QStringList>

// The files that are made of one page for a web book, beside its page file "N.jpg" in the work
// folder of an import. Each may be missing.
struct WebPageFiles {
    WebPageFiles(const QString& workFolder, int page) {
        const QString start = workFolder + u'/' + QString::number(page);
        pageFile = start + QStringLiteral(".jpg");
        picture = start + QStringLiteral(".webp");
        thumbnail = start + QStringLiteral(".thumb.webp");
        largeVector = start + QStringLiteral(".large.svg");
        largePicture = start + QStringLiteral(".large.webp");
        text = start + QStringLiteral(".text");
    }

    // All that are made for a web book.
    QStringList all() const { return {picture, thumbnail, largeVector, largePicture, text}; }

    QString pageFile;
    QString picture;      // the same size and sharpness in fewer bytes; none when that does not pay
    QString thumbnail;    // fits into WebPageMaker's thumbnail box
    QString largeVector;  // what is shown when the page is enlarged: one of
    QString largePicture; // the two, or none
    QString text;         // as PDFSerialization packs it
};
