#pragma once

#include <QString>

// A page range as typed, against a document.
struct PageSelection {
    QString range;   // names existing pages only
    QString missing; // the numbers left out because the document lacks them; empty when none are
};

// Leaves out what the document lacks. Throws CommandError when no page is left.
PageSelection selectPages(const QString& expression, int pageCount);
