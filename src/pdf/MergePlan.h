#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

// What a document is merged from: pages of PDFs, pictures and blank pages, in this order.
struct MergePlan {
    // A PDF, or a picture in a format that Qt reads.
    struct Source {
        QString path;
        QByteArray password; // of a PDF, in UTF-8; empty for none
    };
    struct Page {
        int source = -1;  // zero-based; -1 for a blank page
        int index = -1;   // zero-based page of the source; -1 for all of them
        int rotation = 0; // degrees clockwise beside the page's own, a multiple of 90
    };

    std::vector<Source> sources;
    std::vector<Page> pages;
};
