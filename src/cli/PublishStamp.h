#pragma once

#include "drawing/WebPageFiles.h"
#include "output/BookStamp.h"
#include "system/FileState.h"

#include <QString>

class FlashTemplate;
struct PublishOptions;

// Tells what of a book has to be made, by what an earlier publish left.
class PublishStamp {
public:
    // The template has what the options set. page is the path of the page or the application;
    // resources is a digestOfResources(), which takes longer than all the rest.
    PublishStamp(const PublishOptions& options, const FlashTemplate& tmpl, QString page,
                 const QByteArray& resources = digestOfResources());
    static QByteArray digestOfResources();

    // The document when it was read for this.
    const FileState& documentState() const { return iDocumentState; }
    const QByteArray& documentDigest() const { return iWanted.document.digest; }

    // Of what anything in the book depends on; empty when the document can't be read.
    const QByteArray& digest() const { return iWanted.book; }

    // The book is there, and was made of the same document with the same options.
    bool isUpToDate() const;
    // Null when the pages of the earlier book are not those that would be made.
    TakeEarlierPage takeEarlierPage() const;

    BookStamp::Removal removed() const { return BookStamp::Removal(iPage); }
    void write() const;

private:
    QString iPage;
    FileState iDocumentState;
    QString iFolder; // null for books whose pages have no files of their own
    BookStamp iEarlier;
    BookStamp iWanted; // without digests when the document can't be read
};
