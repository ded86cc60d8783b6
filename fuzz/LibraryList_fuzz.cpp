#include "Fuzz.h"
#include "base/PlatformException.h"
#include "library/BookID.h"
#include "library/ListIndex.h"
#include "library/OpenList.h"

#include <QHash>
#include <QJsonObject>

namespace {

void check(const ListedBook& book, qint64 lineBefore) {
    Fuzz::require(book.line > lineBefore, "lines come in their order");
    Fuzz::require(!book.id.isEmpty() || !book.problem.isNull(), "what has no ID has a problem");
    Fuzz::require(book.id.isEmpty() || BookID::problemWith(book.id).isNull(),
                  "IDs are names of folders");
    if (!book.problem.isNull())
        return;
    Fuzz::require(book.path.startsWith('/'), "documents have full paths");
    for (const QByteArray& option : book.options)
        Fuzz::require(option.startsWith("--") && !option.contains('\0'), "options are arguments");
    for (const QJsonValue& fact : book.facts.asJson())
        Fuzz::require(!fact.toString().isEmpty(), "facts that are there have a text");
}

QStringList idsOf(BookList& list) {
    QStringList ids;
    qint64 line = 0;
    list.rewind();
    for (ListedBook book; list.next(book); line = book.line) {
        check(book, line);
        ids << book.id;
    }
    return ids;
}

} // namespace

// A list from which a library is made, as CSV or JSON lines.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString file = Fuzz::fileWith(Fuzz::Input(data, size).rest());
    try {
        const auto list = openList(file, QStringLiteral("/nowhere"));
        const ListIndex index(*list);
        const QStringList ids = idsOf(*list);
        Fuzz::require(ids == idsOf(*list), "a list is read the same twice");
        Fuzz::require(index.hasUnknownIDs() == ids.contains(QString()), "lines without IDs count");
        QHash<QString, int> counts;
        for (const QString& id : ids)
            ++counts[id.toLower()];
        counts.remove({});
        for (auto id = counts.begin(); id != counts.end(); ++id) {
            Fuzz::require(index.contains(id.key()), "the index has all IDs");
            Fuzz::require((index.firstOfSeveral(id.key()) != 0) == (*id > 1),
                          "IDs on several lines are known");
        }
        Fuzz::require(index.size() == std::size_t(counts.size()), "IDs count once");
        Fuzz::require(index.sizeOfShard(0, 3) + index.sizeOfShard(1, 3) + index.sizeOfShard(2, 3) ==
                          index.size(),
                      "each ID is in one shard");
    } catch (const PlatformException&) {
        // A file that is no list.
    }
    return 0;
}
