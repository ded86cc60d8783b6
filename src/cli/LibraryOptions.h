#pragma once

#include "cli/PasswordOptions.h"
#include "drawing/SpareWorkers.h"

#include <QString>
#include <QStringList>

// The options of "folvero library make".
struct LibraryMakeOptions {
    QString list;
    QString folder;
    QStringList bookOptions; // of "folvero publish", for all books
    QString url;             // where the library will be, with a slash at its end; empty: unknown
    PasswordOptions password;
    int jobs = usualWorkerCount(); // page workers of all books together
    int shard = 1;
    int shards = 1;
    bool onlyFailed = false;
    bool prune = false;
    bool force = false;
    bool quiet = false;
};

// The options of "folvero library sbatch".
struct LibraryBatchOptions {
    QString list;
    QString folder;
    int shards = 1;
    QStringList makeOptions; // of "folvero library make", for all shards
};
