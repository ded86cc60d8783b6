#include "library/search/SegmentWriter.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "library/BookResult.h"
#include "library/search/BookTexts.h"
#include "library/search/SearchSegments.h"
#include "library/search/SearchWords.h"
#include "library/search/Sqlite.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr Log writerLog("SegmentWriter");

// Dead rows cost space and time: with more of them than a quarter, a segment is made anew.
constexpr qint64 mostDead = 4;

// FTS5 collects that many bytes before it writes; by default 1 MiB, which it merges many times.
constexpr auto collectMany = "INSERT INTO pages(pages, rank) VALUES('hashsize', 33554432)";

[[noreturn]] void failAt(const QString& file) {
    throw PlatformException(ErrorKind::searchIndex,
                            Message::about(file, Message::ofLastSystemError()));
}

QByteArray stampOf(const BookResult& result) {
    const BookResult::Made& made = *result.made;
    return result.inputs + ' ' + made.changed.toString(Qt::ISODate).toLatin1() + ' ' +
           QByteArray::number(made.bytes) + ' ' + QByteArray::number(made.files);
}

} // namespace

SegmentWriter::SegmentWriter(const LibraryLayout& library, int segment, CheckCancelled check)
    : iLibrary(library),
      iSegment(segment),
      iFile(SearchSegments::file(library, segment)),
      iCheck(std::move(check)) {}

SegmentWriter::Report SegmentWriter::update() {
    const Books wanted = wantedBooks();
    readOld();
    QStringList gone;
    for (auto book = iOld.begin(); book != iOld.end(); ++book) {
        if (!isUpToDate(book.key(), wanted))
            gone << book.key();
        iReport.removed += int(!wanted.contains(book.key()));
    }
    std::map<QString, Book> fresh; // in order, so that the same books make the same file
    const bool isAddition = isWorthKeeping(gone);
    for (auto book = wanted.begin(); book != wanted.end(); ++book) {
        const bool isNew = !iOld.contains(book.key()) || !isUpToDate(book.key(), wanted);
        iReport.added += int(isNew);
        if (isNew || !isAddition)
            fresh.emplace(book.key(), *book);
        iReport.pages += book->pages;
    }
    if (!isAddition)
        iNext = 0;
    if (!gone.isEmpty() || !fresh.empty() || (!isAddition && QFileInfo::exists(iFile)))
        write(gone, fresh);
    iReport.books = wanted.size() - iReport.unreadable.size();
    return std::move(iReport);
}

SegmentWriter::Books SegmentWriter::wantedBooks() const {
    Books books;
    for (int i = 0; i < SearchSegments::groups; ++i) {
        const int group = iSegment * SearchSegments::groups + i;
        BookResult::forEachIn(iLibrary.resultGroup(group), [&](const BookResult& result) {
            // Others were put there by hand: they would be in two segments.
            if (result.made && LibraryLayout::resultGroupOf(result.id) == group)
                books[result.id] = {0, result.made->pages, stampOf(result)};
        });
        iCheck();
    }
    return books;
}

// A segment that can't be read is made anew.
void SegmentWriter::readOld() {
    if (!QFileInfo::exists(iFile))
        return;
    try {
        const Sqlite database(iFile, Sqlite::Mode::read);
        SqliteStatement version(database, "PRAGMA user_version");
        if (!version.step() || version.number(0) != SearchSegments::version)
            return;
        SqliteStatement books(database, "SELECT id, first, pages, stamp FROM books");
        while (books.step())
            iOld[QString::fromUtf8(books.text(0))] = {books.number(1), int(books.number(2)),
                                                      books.text(3)};
        SqliteStatement state(database, "SELECT next FROM state");
        iNext = state.step() ? state.number(0) : 0;
    } catch (const PlatformException& failure) {
        writerLog.warn(failure.reason());
        iOld.clear();
        iNext = 0;
    }
}

bool SegmentWriter::isUpToDate(const QString& id, const Books& wanted) const {
    const auto now = wanted.find(id);
    const Book old = iOld.value(id);
    return now != wanted.end() && now->stamp == old.stamp && now->pages == old.pages;
}

bool SegmentWriter::isWorthKeeping(const QStringList& gone) const {
    qint64 dead = iNext - 1;
    for (const Book& book : iOld)
        dead -= book.pages;
    for (const QString& id : gone)
        dead += iOld[id].pages;
    return iNext > 0 && dead * mostDead <= iNext - 1;
}

void SegmentWriter::write(const QStringList& gone, const std::map<QString, Book>& fresh) {
    const QString part = Files::temporaryPath(iFile);
    QFile::remove(part); // left by a run that was killed
    Message cause;
    const bool isAddition = iNext > 0;
    if (isAddition && !Files::copy(iFile, part, &cause))
        throw PlatformException(ErrorKind::searchIndex, Message::about(part, cause));
    try {
        Sqlite database(part, Sqlite::Mode::write);
        database.run("BEGIN");
        if (!isAddition)
            database.run(SearchSegments::schema);
        SqliteStatement remove(database, "DELETE FROM books WHERE id = ?");
        for (const QString& id : isAddition ? gone : QStringList()) {
            remove.bind(0, id.toUtf8());
            remove.step();
        }
        addBooks(database, fresh);
        // A later run only adds little, which is not worth rewriting all.
        if (!isAddition)
            database.run("INSERT INTO pages(pages) VALUES('optimize')");
        const QByteArray version = QByteArray::number(SearchSegments::version);
        database.run("PRAGMA user_version = " + version);
        database.run("COMMIT");
    } catch (...) {
        QFile::remove(part);
        throw;
    }
    replaceOld(part);
}

void SegmentWriter::addBooks(const Sqlite& database, const std::map<QString, Book>& fresh) {
    SqliteStatement collect(database, collectMany);
    collect.step();
    SqliteStatement addPage(database, "INSERT INTO pages(rowid, words, parts) VALUES(?, ?, ?)");
    SqliteStatement addBook(database,
                            "INSERT INTO books(first, pages, id, stamp) VALUES(?, ?, ?, ?)");
    qint64 next = std::max<qint64>(iNext, 1);
    for (const auto& [id, book] : fresh) {
        iCheck();
        const BookTexts texts(iLibrary.book(id));
        const auto add = [&, first = next](int position, const QString& text) {
            const SearchWords::Words words = SearchWords::in(text);
            addPage.bind(0, first + position - 1);
            addPage.bind(1, SearchWords::joined(words.all).toUtf8());
            addPage.bind(2, SearchWords::joined(words.parts).toUtf8());
            addPage.step();
        };
        if (texts.isThere() && texts.forEachPage(book.pages, add)) {
            addBook.bind(0, next);
            addBook.bind(1, std::int64_t(book.pages));
            addBook.bind(2, id.toUtf8());
            addBook.bind(3, book.stamp);
            addBook.step();
        } else {
            iReport.unreadable << id;
        }
        next += std::max(book.pages, 1);
    }
    SqliteStatement state(database, "UPDATE state SET next = ?");
    state.bind(0, next);
    state.step();
}

void SegmentWriter::replaceOld(const QString& part) const {
    const QByteArray name = QFile::encodeName(part);
    FileDescriptor file(::open(name.constData(), O_RDONLY | O_CLOEXEC));
    const bool isWritten = file.isOpen() && ::fsync(file.number()) == 0 && file.close() &&
                           ::rename(name.constData(), QFile::encodeName(iFile).constData()) == 0;
    if (isWritten)
        return;
    const int cause = errno;
    QFile::remove(part);
    errno = cause;
    failAt(iFile);
}
