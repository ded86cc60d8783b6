#pragma once

#include <QString>
#include <QStringList>
#include <functional>

// Which files are made of a page: its page file, all that a web book has of it, only the text of
// that, or nothing.
enum class PageFiles { classic, web, text, none };

// Which files each page gets, by its one-based number.
using FilesOfPages = std::function<PageFiles(int page)>;
inline PageFiles classicFiles(int /*page*/) {
    return PageFiles::classic;
}
inline PageFiles webFiles(int /*page*/) {
    return PageFiles::web;
}

// The files made of one page for a web book in the work folder of an import. Each may be missing.
// The page's picture is one of two: a page of few colours has no page file unless it was drawn for
// another kind of book as well.
struct WebPageFiles {
    WebPageFiles(const QString& workFolder, int page) {
        const QString start = workFolder + u'/' + QString::number(page);
        pageFile = start + QStringLiteral(".jpg");
        picture = start + QStringLiteral(".png");
        thumbnail = start + QStringLiteral(".thumb.jpg");
        largeVector = start + QStringLiteral(".large.vectors");
        largePicture = start + QStringLiteral(".large.png");
        largePhotograph = start + QStringLiteral(".large.jpg");
        text = start + QStringLiteral(".text");
    }

    // All files but the page's picture.
    QStringList others() const {
        return {thumbnail, largeVector, largePicture, largePhotograph, text};
    }

    // Whether that file is the page's picture in a book of some kind.
    bool isPictureOfPage(const QString& path) const { return path == pageFile || path == picture; }

    QString pageFile;        // "N.jpg", the page of every kind of book
    QString picture;         // of a page of few colours: as sharp, in a third of the bytes
    QString thumbnail;       // fits into WebPageMaker's thumbnail box
    QString largeVector;     // as VectorEncoder packs them. Shown when the page is enlarged:
    QString largePicture;    // at most
    QString largePhotograph; // one of the three exists
    QString text;            // as packed by PDFSerialization; the last one to be written
};

// Puts files of a page that were made before to where they are wanted, and returns which ones must
// still be made. Hard links are fine: no worker writes there.
using TakeEarlierPage =
    std::function<PageFiles(int page, PageFiles wanted, const WebPageFiles& files)>;
