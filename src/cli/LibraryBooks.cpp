#include "cli/LibraryBooks.h"

#include "base/PlatformException.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "library/BookID.h"
#include "library/BookLease.h"
#include "library/LibraryLayout.h"
#include "library/LibraryRun.h"
#include "library/ListIndex.h"
#include "output/BookLayout.h"
#include "output/BookStamp.h"
#include "system/Files.h"
#include "system/NameAliases.h"

#include <QFileInfo>
#include <QJsonArray>
#include <algorithm>
#include <utility>

using std::chrono::steady_clock;

namespace {

using State = BookResult::State;

constexpr std::chrono::seconds lookInterval{1};

State stateOf(int exitCode) {
    switch (ExitCode(exitCode)) {
    case ExitCode::ok:
        return State::made;
    case ExitCode::incomplete:
        return State::incomplete;
    case ExitCode::tryAgain:
        return State::tryAgain;
    default:
        return State::failed;
    }
}

// Of a book that was made, but lacks something.
QString whatIsMissing(const QJsonObject& report) {
    QStringList parts;
    const auto add = [&](const QString& key, const QString& what) {
        const QJsonArray pages = report[key].toArray();
        if (pages.isEmpty())
            return;
        QString part = QStringLiteral("page %1 %2 (%3)")
                           .arg(QString::number(pages[0][QStringLiteral("page")].toInt()), what,
                                pages[0][QStringLiteral("reason")].toString());
        if (pages.size() > 1)
            part += QStringLiteral(" and %1 more").arg(pages.size() - 1);
        parts << part;
    };
    add(QStringLiteral("failedPages"), QStringLiteral("could not be drawn"));
    add(QStringLiteral("damagedPages"), QStringLiteral("could not be drawn completely"));
    return parts.join(QStringLiteral("; "));
}

// "--set" of "--set=x=1".
QString nameOf(const QString& option) {
    return option.section(u'=', 0, 0);
}

// The options of a line, whose files may have names of any bytes.
QStringList decoded(const QByteArrayList& options) {
    QStringList all;
    for (const QByteArray& option : options) {
        const qsizetype value = option.indexOf('=') + 1;
        const bool isPath = option.mid(value).startsWith('/');
        all << NameAliases::text(option.first(value)) +
                   (isPath ? NameAliases::decoded(option.mid(value))
                           : NameAliases::text(option.mid(value)));
    }
    return all;
}

// Those of all books but for what the line says otherwise: publish takes most of them once. A style
// is one of its template.
QStringList leftOf(const QStringList& ofAll, const QStringList& ofLine) {
    const QString set = QStringLiteral("--set");
    QStringList named;
    for (const QString& option : ofLine)
        named << nameOf(option);
    if (named.contains(QStringLiteral("--template")))
        named << QStringLiteral("--style");
    QStringList left;
    for (const QString& option : ofAll) {
        if (nameOf(option) == set || !named.contains(nameOf(option)))
            left << option;
    }
    return left;
}

BookResult::Made madeOf(const QJsonObject& report, const std::optional<BookResult>& earlier) {
    BookResult::Made made;
    made.pages = report[QStringLiteral("pages")].toInt();
    const QJsonObject files = report[QStringLiteral("files")].toObject();
    made.files = files[QStringLiteral("total")].toInt();
    made.bytes = files[QStringLiteral("bytes")].toInteger();
    made.cover = report[QStringLiteral("cover")].toString();
    made.documentFacts = BookFacts::fromJson(report[QStringLiteral("metadata")].toObject());
    made.changed = QDateTime::currentDateTimeUtc();
    made.added = earlier && earlier->made ? earlier->made->added : made.changed;
    return made;
}

} // namespace

LibraryBooks::LibraryBooks(const LibraryMakeOptions& options, const LibraryLayout& library,
                           BookList& list, const ListIndex& index, LibraryRun& run,
                           LibraryProgress& progress)
    : iOptions(options),
      iLibrary(library),
      iList(list),
      iIndex(index),
      iRun(run),
      iProgress(progress),
      iCurrent(options.password),
      iFolder(FileState::of(library.folder())) {}

LibraryBooks::~LibraryBooks() = default;

bool LibraryBooks::isExhausted() const {
    return iIsListRead && iWaiting.empty() && iMaking.empty();
}

int LibraryBooks::workersForNext() const {
    const qint64 left = iRun.books - iCounts.books();
    return int(std::max<qint64>(1, iOptions.jobs / std::clamp<qint64>(left, 1, iOptions.jobs)));
}

std::optional<BookJob> LibraryBooks::nextJob() {
    while (!Interrupt::wasRequested()) {
        checkFolder();
        auto book = nextListed();
        if (!book)
            book = nextWaiting();
        if (!book)
            return {};
        if (auto job = jobFor(*book))
            return job;
        iProgress.show(iCounts);
    }
    return {};
}

// The next one that is this shard's.
std::optional<ListedBook> LibraryBooks::nextListed() {
    try {
        for (ListedBook book; !iIsListRead;) {
            iIsListRead = !iList.next(book);
            if (!iIsListRead && isWanted(book))
                return book;
        }
    } catch (const PlatformException& failure) {
        stop(failure.message());
    }
    return {};
}

bool LibraryBooks::isWanted(const ListedBook& book) {
    // Lines without an ID belong to no shard.
    if (book.id.isEmpty() && iOptions.shard == 1) {
        const QString line = QStringLiteral("line %1: %2").arg(book.line).arg(book.problem);
        ++iRun.badLineCount;
        if (iRun.badLines.size() < LibraryRun::mostBadLines)
            iRun.badLines << line;
        iProgress.report(QStringLiteral("folvero: %1: %2").arg(iOptions.list, line));
    }
    return !book.id.isEmpty() &&
           BookID::shardOf(BookID::digest(book.id), iOptions.shards) == iOptions.shard - 1;
}

std::optional<ListedBook> LibraryBooks::nextWaiting() {
    const auto now = steady_clock::now();
    if (iWaiting.empty() || now < iNextLook)
        return {};
    iNextLook = now + lookInterval;
    auto book = std::move(iWaiting.front());
    iWaiting.pop_front();
    return book;
}

QString LibraryBooks::pageOf(const ListedBook& book) const {
    return Files::join(iLibrary.book(book.id), BookLayout::defaultPage);
}

QStringList LibraryBooks::argumentsFor(const ListedBook& book) const {
    const QStringList ofLine = decoded(book.options);
    QStringList arguments = leftOf(iOptions.bookOptions, ofLine) + ofLine;
    const QJsonObject facts = book.facts.asJson();
    for (auto fact = facts.begin(); fact != facts.end(); ++fact) {
        // Lists have "German" as well; catalogues show it.
        if (fact.key() != QStringLiteral("language") || BookFacts::isLanguage(book.facts.language))
            arguments << QStringLiteral("--%1=%2").arg(fact.key(), fact->toString());
    }
    arguments << QStringLiteral("--shared-player=") + iLibrary.at(LibraryLayout::players);
    if (const QString& library = iOptions.catalogue.address; !library.isEmpty())
        arguments << QStringLiteral("--iiif")
                  << QStringLiteral("--url=%1%2/").arg(library, LibraryLayout::bookPath(book.id));
    if (iOptions.force)
        arguments << QStringLiteral("--force");
    return arguments << QStringLiteral("--") << NameAliases::decoded(book.path)
                     << iLibrary.book(book.id);
}

// None when there is nothing to make.
std::optional<BookJob> LibraryBooks::jobFor(const ListedBook& book) {
    if (const qint64 first = iIndex.firstOfSeveral(book.id)) {
        // Counted once.
        if (first == book.line)
            fail(book, QStringLiteral("the ID stands on more than one line of the list"),
                 int(ExitCode::failed));
        return {};
    }
    if (!book.problem.isNull()) {
        fail(book, QStringLiteral("line %1: %2").arg(book.line).arg(book.problem),
             int(ExitCode::failed));
        return {};
    }
    const auto earlier = BookResult::read(iLibrary.result(book.id));
    if (iOptions.onlyFailed && earlier && earlier->isDone()) {
        ++iCounts.upToDate;
        return {};
    }
    try {
        const QStringList arguments = argumentsFor(book);
        const auto state = iCurrent.of(arguments);
        if (isCurrent(state, book, earlier)) {
            skip(book, *earlier);
            return {};
        }
        Message error;
        auto lease = BookLease::take(iLibrary.lease(book.id), &error);
        if (!error.isNull())
            fail(book, error.english(), int(ExitCode::tryAgain));
        else if (!lease)
            iWaiting.push_back(book);
        if (!lease)
            return {};
        // Another run may have made it since.
        const auto latest = BookResult::read(iLibrary.result(book.id));
        if (latest && (!earlier || latest->run != earlier->run)) {
            if (isCurrent(iCurrent.of(arguments), book, latest)) {
                skip(book, *latest);
                return {};
            }
        }
        // Publish would say of it only that it is there.
        if (state.isUpToDate && !(latest && latest->made))
            BookStamp::Removal(pageOf(book)).keep();
        iMaking[book.id] = {book, state.inputs, latest, std::move(lease), false};
        return BookJob{book.id, arguments};
    } catch (const std::exception& failure) {
        const auto error = CommandError::from(failure);
        fail(book, error.message(), int(error.code()));
        return {};
    }
}

// Books that are incomplete, or that can't be made, are not tried again unless something changes.
bool LibraryBooks::isCurrent(const CurrentBooks::State& state, const ListedBook& book,
                             const std::optional<BookResult>& earlier) const {
    if (iOptions.force || iOptions.onlyFailed || !earlier || state.inputs.isEmpty() ||
        earlier->inputs != state.inputs)
        return false;
    switch (earlier->state) {
    case State::made:
        return state.isUpToDate;
    case State::incomplete:
        return QFileInfo::exists(pageOf(book));
    case State::failed:
        return true;
    case State::tryAgain:
        return false;
    }
    return false;
}

void LibraryBooks::skip(const ListedBook& book, const BookResult& earlier) {
    if (earlier.facts != book.facts || earlier.pdf != book.pdf) {
        BookResult changed = earlier;
        changed.facts = book.facts;
        changed.pdf = book.pdf;
        if (!write(changed))
            return count(State::tryAgain);
    }
    if (earlier.isDone())
        ++iCounts.upToDate;
    else
        count(earlier.state);
}

void LibraryBooks::fail(const ListedBook& book, const QString& reason, int code) {
    conclude({book, {}, BookResult::read(iLibrary.result(book.id)), nullptr},
             {code, reason, {}, 0});
}

void LibraryBooks::finished(const QString& id, const BookOutcome& outcome) {
    const auto making = iMaking.extract(id);
    if (making.mapped().isLost)
        iWaiting.push_back(making.mapped().book);
    else
        conclude(making.mapped(), outcome);
    iProgress.show(iCounts);
}

void LibraryBooks::conclude(const Making& making, const BookOutcome& outcome) {
    const ListedBook& book = making.book;
    BookResult result;
    result.id = book.id;
    result.pdf = book.pdf;
    result.facts = book.facts;
    result.exitCode = outcome.exitCode;
    result.reason = outcome.reason;
    result.state = stateOf(outcome.exitCode);
    result.inputs = making.inputs;
    result.run = iRun.id;
    result.host = iRun.host;
    result.seconds = outcome.seconds;
    // Without the share everything is missing.
    if (result.state == State::failed && !QFileInfo::exists(iOptions.list))
        result.state = State::tryAgain;
    if (making.earlier)
        result.made = making.earlier->made;
    if (outcome.report[QStringLiteral("result")] == QStringLiteral("made")) {
        result.made = madeOf(outcome.report, making.earlier);
        result.reason = whatIsMissing(outcome.report);
        iCounts.pages += result.made->pages;
    }
    if (!result.reason.isEmpty())
        iProgress.report(QStringLiteral("folvero: %1: %2").arg(book.id, result.reason));
    count(write(result) ? result.state : State::tryAgain);
}

// False when nobody will know of the result: the next run has to try again.
bool LibraryBooks::write(const BookResult& result) {
    checkFolder();
    if (!iBroken.isNull())
        return false;
    const Message error = result.write(iLibrary);
    if (!error.isNull())
        iProgress.report(QStringLiteral("folvero: %1").arg(error.english()));
    return error.isNull();
}

void LibraryBooks::count(State state) {
    ++(state == State::made         ? iCounts.made
       : state == State::incomplete ? iCounts.incomplete
       : state == State::failed     ? iCounts.failed
                                    : iCounts.tryAgain);
}

void LibraryBooks::tick() {
    const auto now = steady_clock::now();
    if (now >= iNextRenewal) {
        iNextRenewal = now + BookLease::renewal;
        for (auto& [id, making] : iMaking)
            making.isLost = !making.lease->renew();
    }
    iProgress.show(iCounts);
}

bool LibraryBooks::mayGoOn(const QString& id) const {
    const auto making = iMaking.find(id);
    return making == iMaking.end() || !making->second.isLost;
}

// Below a mount point whose disk is gone lies another disk, which must not be filled with books.
void LibraryBooks::checkFolder() {
    const FileState now = FileState::of(iLibrary.folder());
    if (!now.isThere || now.device != iFolder.device || now.number != iFolder.number)
        stop(Message(QStringLiteral("%1: is gone; its disk or share may have been disconnected")
                         .arg(iLibrary.folder()))
                 .temporary());
}

void LibraryBooks::stop(const Message& reason) {
    if (iBroken.isNull())
        iBroken = reason;
    iIsListRead = true;
    iWaiting.clear();
}

void LibraryBooks::throwIfBroken() const {
    if (!iBroken.isNull())
        throw CommandError(Messages{iBroken});
}
