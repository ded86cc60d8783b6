#pragma once

#include "drawing/WebPageFiles.h"
#include "pdf/PageCut.h"

#include <QByteArray>

// What a page worker is asked for.
struct PageOrder {
    int page; // one-based number in the book, which names the files
    PageCut cut;
    PageFiles wanted = PageFiles::classic;

    // The line of the protocol, without its end.
    QByteArray line() const;
    static PageOrder fromLine(const QByteArray& line);
};
