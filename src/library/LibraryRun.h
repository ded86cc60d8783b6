#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <vector>

class LibraryLayout;

// What one shard of a run over a library does, or the whole run, which is shard 1 of 1.
struct LibraryRun {
    static constexpr qsizetype mostBadLines = 1000;

    QString id; // unique
    int shard = 1;
    int shards = 1;
    QString host;
    QDateTime started; // UTC
    QDateTime ended;   // invalid while it runs, and after it was killed
    QByteArray list;   // digest
    qint64 books = 0;  // listed for this shard
    qint64 badLineCount = 0;
    QStringList badLines; // those that name no book, with their reasons; not more than mostBadLines

    bool hasEnded() const { return ended.isValid(); }

    static LibraryRun begin(int shard, int shards);
    // Replaces what the same shard did before. Why that failed, or a null message.
    Message write(const LibraryLayout& to) const;

    // The last ones of all shards, by their numbers, of the run that wrote last.
    static std::vector<LibraryRun> allOf(const LibraryLayout& library);
};
