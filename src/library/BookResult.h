#pragma once

#include "base/Message.h"
#include "webbook/BookFacts.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>

class LibraryLayout;

// What came of the last attempt to make a book of a library, and the book that is there. Kept in
// one file a book, so that machines that share nothing but the folder do not get in each other's
// way.
struct BookResult {
    enum class State {
        made,
        incomplete, // made, but pages are missing or incomplete
        failed,     // trying again does not help, unless the document or the list changes
        tryAgain,
    };

    // A book that is in its folder; after a failure the earlier one.
    struct Made {
        int pages = 0;
        qint64 bytes = 0;
        int files = 0;
        QString cover;   // path in the book of the first page's thumbnail
        QDateTime added; // UTC; the first time
        QDateTime changed;
        BookFacts documentFacts; // those that the document has of itself
    };

    QString id;
    QString pdf;     // as in the list
    BookFacts facts; // those of the list
    State state = State::failed;
    QString reason; // of all states but made
    int exitCode = 0;
    QByteArray inputs; // digest of what the attempt depended on
    QString run;       // ID of the run that attempted it
    QString host;
    double seconds = 0;
    std::optional<Made> made;

    bool isDone() const { return state == State::made; }
    // Those of the list before those of the document; the title is never empty.
    BookFacts allFacts() const;

    // None when there is no valid one.
    static std::optional<BookResult> read(const QString& file);
    // Why that failed, or a null message.
    Message write(const LibraryLayout& to) const;

    // The IDs of all results, sorted.
    static QStringList ids(const LibraryLayout& library);
    // Calls visit with all results, in order of the IDs.
    static void forEach(const LibraryLayout& library,
                        const std::function<void(const BookResult&)>& visit);
    // The same with those in one folder: of a group, see LibraryLayout.
    static void forEachIn(const QString& folder,
                          const std::function<void(const BookResult&)>& visit);
};
