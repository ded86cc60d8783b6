#include "library/LibraryRun.h"

#include "library/LibraryLayout.h"
#include "system/Files.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>
#include <QUuid>
#include <algorithm>

namespace {

const QString idKey = QStringLiteral("id");
const QString shardKey = QStringLiteral("shard");
const QString shardsKey = QStringLiteral("shards");
const QString hostKey = QStringLiteral("host");
const QString startedKey = QStringLiteral("started");
const QString endedKey = QStringLiteral("ended");
const QString listKey = QStringLiteral("list");
const QString booksKey = QStringLiteral("books");
const QString badLineCountKey = QStringLiteral("badLineCount");
const QString badLinesKey = QStringLiteral("badLines");

QString timeText(const QDateTime& time) {
    return time.toUTC().toString(Qt::ISODate);
}

std::optional<LibraryRun> read(const QString& file) {
    const QJsonObject object = QJsonDocument::fromJson(Files::contents(file)).object();
    LibraryRun run;
    run.id = object[idKey].toString();
    run.shard = object[shardKey].toInt();
    run.shards = object[shardsKey].toInt();
    run.host = object[hostKey].toString();
    run.started = QDateTime::fromString(object[startedKey].toString(), Qt::ISODate);
    run.ended = QDateTime::fromString(object[endedKey].toString(), Qt::ISODate);
    run.list = object[listKey].toString().toLatin1();
    run.books = object[booksKey].toInteger();
    run.badLineCount = object[badLineCountKey].toInteger();
    for (const auto& line : object[badLinesKey].toArray())
        run.badLines << line.toString();
    if (run.id.isEmpty() || run.shard < 1 || run.shard > run.shards)
        return {};
    return run;
}

} // namespace

LibraryRun LibraryRun::begin(int shard, int shards) {
    LibraryRun run;
    run.id = QUuid::createUuid().toString(QUuid::Id128);
    run.shard = shard;
    run.shards = shards;
    run.host = QSysInfo::machineHostName();
    run.started = QDateTime::currentDateTimeUtc();
    return run;
}

Message LibraryRun::write(const LibraryLayout& to) const {
    const QJsonObject object{{idKey, id},
                             {shardKey, shard},
                             {shardsKey, shards},
                             {hostKey, host},
                             {startedKey, timeText(started)},
                             {endedKey, timeText(ended)},
                             {listKey, QString::fromLatin1(list)},
                             {booksKey, books},
                             {badLineCountKey, badLineCount},
                             {badLinesKey, QJsonArray::fromStringList(badLines)}};
    QDir().mkpath(to.runs());
    const QString file =
        Files::join(to.runs(), QStringLiteral("%1-of-%2.json").arg(shard).arg(shards));
    Message cause;
    return Files::writeAtomically(file, QJsonDocument(object).toJson(), &cause)
               ? Message()
               : Message::about(file, cause);
}

std::vector<LibraryRun> LibraryRun::allOf(const LibraryLayout& library) {
    std::vector<LibraryRun> runs;
    const QDir folder(library.runs());
    // The latest first, by the times of the disk or file server: clocks of machines may differ.
    for (const QString& name :
         folder.entryList({QStringLiteral("*-of-*.json")}, QDir::Files, QDir::Time)) {
        if (const auto run = read(folder.filePath(name)))
            runs.push_back(*run);
    }
    const int shards = runs.empty() ? 0 : runs.front().shards;
    std::erase_if(runs, [shards](const LibraryRun& run) { return run.shards != shards; });
    std::sort(runs.begin(), runs.end(),
              [](const auto& a, const auto& b) { return a.shard < b.shard; });
    return runs;
}
