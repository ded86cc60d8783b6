#pragma once

#include <QString>
#include <QStringList>
#include <functional>

// Which files are made of a page: its page file, or all that a web book has of it.
enum class PageFiles { classic, web };

// Which files each page gets, by its one-based number.
using FilesOfPages = std::function<PageFiles(int page)>;
inline PageFiles classicFiles(int /*page*/) {
    return PageFiles::classic;
}
inline PageFiles webFiles(int /*page*/) {
    return PageFiles::web;
}

// The files made of one page for a web book, beside its page file "N.jpg" in the work folder of an
// import. Each may be missing.
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

    // All files that are made for a web book.
    QStringList all() const { return {picture, thumbnail, largeVector, largePicture, text}; }

    QString pageFile;
    QString picture;   // same size and sharpness in fewer bytes; missing when that does not pay off
    QString thumbnail; // fits into WebPageMaker's thumbnail box
    QString largeVector;  // shown when the page is enlarged: at most
    QString largePicture; // one of the two exists
    QString text;         // as packed by PDFSerialization; the last one to be written
};
