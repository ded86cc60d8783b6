#pragma once

#include <QString>
#include <QStringList>

// A page range as typed, checked against a document.
struct PageSelection {
    QString range;       // existing pages only
    QStringList remarks; // what was left out, for the user
};

// Leaves out pages that the document lacks. Throws CommandError when no page is left.
PageSelection selectPages(const QString& expression, int pageCount);
