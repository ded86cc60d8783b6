#pragma once

#include <QString>
#include <QStringList>

// A page range as typed, against a document.
struct PageSelection {
    QString range;       // names existing pages only
    QStringList remarks; // what was left out, in words for the user
};

// Leaves out what the document lacks. Throws CommandError when no page is left.
PageSelection selectPages(const QString& expression, int pageCount);
