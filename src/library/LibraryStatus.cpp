#include "library/LibraryStatus.h"

#include "library/BookResult.h"
#include "library/LibraryLayout.h"
#include "library/ListedIDs.h"

#include <QJsonArray>
#include <QSet>
#include <algorithm>

namespace {

using State = BookResult::State;
using Troubles = std::vector<LibraryStatus::Trouble>;

QStringList openShardsOf(const std::vector<LibraryRun>& runs) {
    QStringList open;
    const int count = runs.empty() ? 0 : runs.front().shards;
    auto run = runs.begin();
    for (int shard = 1; shard <= count; ++shard) {
        const bool isThere = run != runs.end() && run->shard == shard;
        if (!isThere)
            open << QStringLiteral("shard %1 of %2 has not begun").arg(shard).arg(count);
        else if (!run->hasEnded())
            open << QStringLiteral("shard %1 of %2 has not ended; it began on %3")
                        .arg(shard)
                        .arg(count)
                        .arg(run->host);
        run += isThere ? 1 : 0;
    }
    return open;
}

QJsonArray asJson(const Troubles& troubles) {
    QJsonArray list;
    for (const auto& [id, pdf, reason] : troubles)
        list.append(QJsonObject{{QStringLiteral("id"), id},
                                {QStringLiteral("pdf"), pdf},
                                {QStringLiteral("reason"), reason}});
    return list;
}

} // namespace

LibraryStatus LibraryStatus::of(const LibraryLayout& library) {
    LibraryStatus status;
    status.runs = LibraryRun::allOf(library);
    status.openShards = openShardsOf(status.runs);
    QSet<QString> lastRuns;
    for (const LibraryRun& run : status.runs) {
        lastRuns << run.id;
        status.hasChangedList |= run.list != status.runs.front().list;
    }
    QSet<QString> seen;
    ListedIDs::forEach(library, [&](const QString& id) {
        if (seen.contains(id.toLower()))
            return;
        seen << id.toLower();
        ++status.listed;
        const auto result = BookResult::read(library.result(id));
        if (!result) {
            status.missing << id;
            return;
        }
        const Trouble trouble{id, result->pdf, result->reason};
        switch (result->state) {
        case State::made:
            ++(lastRuns.contains(result->run) ? status.made : status.upToDate);
            break;
        case State::incomplete:
            status.incomplete.push_back(trouble);
            break;
        case State::failed:
            status.failed.push_back(trouble);
            break;
        case State::tryAgain:
            status.tryAgain.push_back(trouble);
            break;
        }
    });
    for (const QString& id : BookResult::ids(library)) {
        if (!seen.contains(id.toLower()))
            status.unlisted << id;
    }
    return status;
}

qint64 LibraryStatus::badLineCount() const {
    qint64 count = 0;
    for (const LibraryRun& run : runs)
        count += run.badLineCount;
    return count;
}

bool LibraryStatus::isDone() const {
    return made + upToDate == listed && badLineCount() == 0 && openShards.isEmpty() &&
           !hasChangedList && !runs.empty();
}

QStringList LibraryStatus::lines() const {
    QStringList lines;
    const auto list = [&lines](const Troubles& troubles, const QString& what) {
        for (const auto& [id, pdf, reason] : troubles)
            lines << QStringLiteral("%1: %2 (%3): %4").arg(what, id, pdf, reason);
    };
    list(incomplete, QStringLiteral("incomplete"));
    list(failed, QStringLiteral("failed"));
    list(tryAgain, QStringLiteral("try again"));
    for (const QString& id : missing)
        lines << QStringLiteral("not made yet: %1").arg(id);
    for (const QString& id : unlisted)
        lines << QStringLiteral("not in the list any more: %1").arg(id);
    for (const LibraryRun& run : runs) {
        for (const QString& line : run.badLines)
            lines << QStringLiteral("bad line: %1").arg(line);
        if (run.badLineCount > run.badLines.size())
            lines
                << QStringLiteral("bad lines: %1 more").arg(run.badLineCount - run.badLines.size());
    }
    if (hasChangedList)
        lines << QStringLiteral("the list was changed while the shards ran");
    return lines + openShards;
}

QString LibraryStatus::summary() const {
    QStringList parts{QStringLiteral("%1 made").arg(made),
                      QStringLiteral("%1 up to date").arg(upToDate)};
    const auto add = [&parts](qint64 count, const QString& what) {
        if (count > 0)
            parts << QStringLiteral("%1 %2").arg(QString::number(count), what);
    };
    add(qint64(incomplete.size()), QStringLiteral("incomplete"));
    add(qint64(failed.size()), QStringLiteral("failed"));
    add(qint64(tryAgain.size()), QStringLiteral("to be tried again"));
    add(missing.size(), QStringLiteral("not made yet"));
    add(badLineCount(), QStringLiteral("bad lines"));
    return QStringLiteral("%1 books: %2")
        .arg(QString::number(listed), parts.join(QStringLiteral(", ")));
}

QJsonObject LibraryStatus::asJson() const {
    QJsonArray lines;
    for (const LibraryRun& run : runs) {
        for (const QString& line : run.badLines)
            lines.append(line);
    }
    return {{QStringLiteral("done"), isDone()},
            {QStringLiteral("listed"), listed},
            {QStringLiteral("made"), made},
            {QStringLiteral("upToDate"), upToDate},
            {QStringLiteral("incomplete"), ::asJson(incomplete)},
            {QStringLiteral("failed"), ::asJson(failed)},
            {QStringLiteral("tryAgain"), ::asJson(tryAgain)},
            {QStringLiteral("notMadeYet"), QJsonArray::fromStringList(missing)},
            {QStringLiteral("unlisted"), QJsonArray::fromStringList(unlisted)},
            {QStringLiteral("badLineCount"), badLineCount()},
            {QStringLiteral("badLines"), lines},
            {QStringLiteral("openShards"), QJsonArray::fromStringList(openShards)},
            {QStringLiteral("listChanged"), hasChangedList}};
}
