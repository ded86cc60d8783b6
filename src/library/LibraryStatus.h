#pragma once

#include "library/LibraryRun.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <vector>

class LibraryLayout;

// What the result files of a library say together.
struct LibraryStatus {
    // A book that is not done.
    struct Trouble {
        QString id;
        QString pdf;
        QString reason;
    };

    qint64 listed = 0;
    qint64 made = 0;     // by the last run
    qint64 upToDate = 0; // by an earlier one
    std::vector<Trouble> incomplete;
    std::vector<Trouble> failed; // for good
    std::vector<Trouble> tryAgain;
    QStringList missing;  // nobody has tried them
    QStringList unlisted; // made once, not in the list any more
    std::vector<LibraryRun> runs;
    QStringList openShards;      // those that have not ended, in English
    bool hasChangedList = false; // the shards had different lists

    static LibraryStatus of(const LibraryLayout& library);

    qint64 badLineCount() const;
    bool isDone() const;
    // One for each thing that is not done, in English.
    QStringList lines() const;
    QString summary() const;
    QJsonObject asJson() const;
};
