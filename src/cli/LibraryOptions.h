#pragma once

#include "cli/PasswordOptions.h"
#include "drawing/SpareWorkers.h"

#include <QString>
#include <QStringList>

// The options of "folvero library catalogue".
struct LibraryCatalogueOptions {
    QString folder;
    QString title; // null as all texts that are not given: as in the last run
    QString language;
    QString address; // of the library on the web
    QString contact;
    QString gateway;
    bool force = false;
    bool quiet = false;
};

// The options of "folvero library make".
struct LibraryMakeOptions {
    QString list;
    QString folder;
    QStringList bookOptions; // of "folvero publish", for all books
    PasswordOptions password;
    int jobs = usualWorkerCount(); // page workers of all books together
    int shard = 1;
    int shards = 1;
    bool onlyFailed = false;
    bool prune = false;
    bool force = false;
    bool quiet = false;
    bool makesCatalogue = true;        // after all books, unless there are several shards
    LibraryCatalogueOptions catalogue; // but folder, force and quiet
};

// The options of "folvero library sbatch".
struct LibraryBatchOptions {
    QString list;
    QString folder;
    int shards = 1;
    QStringList makeOptions; // of "folvero publish", for all books
    QString address;         // of the library on the web; null: as in the last run
};
