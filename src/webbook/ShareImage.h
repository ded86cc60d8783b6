#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

// The picture that other pages and messages show with a link to a book: a JPEG file of at least
// 1,200 pixels on its longer side, as these ask for. Empty when there is none.
struct ShareImage {
    QByteArray jpeg;
    QSize size;

    // Of the picture of a page; empty when it can't be read. As large as fits into the box.
    static ShareImage of(const QString& picture, QSize box = QSize(1200, 1200));
};
