#pragma once

#include "drawing/WebPageFiles.h"
#include "output/BookLayout.h"

// The files of the pages of a book that was published before. They are what drawing the pages once
// more would make, so an import can take them into its work folder.
class EarlierPages {
public:
    // All functions read the book when they are called; it need not exist.
    explicit EarlierPages(const QString& folder) : iLayout(folder) {}

    // As TakeEarlierPage. A page that lacks a file is made anew.
    PageFiles take(int page, PageFiles wanted, const WebPageFiles& files) const;

private:
    bool take(const QString& path, const QString& to) const;
    bool takeWebPage(int page, const WebPageFiles& files) const;
    bool takeVectors(int page, const QString& to) const;

    BookLayout iLayout;
};
