#pragma once

#include <QString>

struct LibraryCatalogueOptions {
    QString folder;
    QString title; // null as all texts that are not given: as in the last run
    QString language;
    QString address;
    QString contact;
    QString gateway;
    bool force = false;
    bool quiet = false;
};

// Makes the pages, search and feeds over the books of a library. Throws CommandError.
void runLibraryCatalogue(const LibraryCatalogueOptions& options);
