#include "library/search/Sqlite.h"

#include "base/PlatformException.h"

#include <QUrl>

namespace {

// Steps of SQLite's virtual machine from one look at the clock to the next.
constexpr int stepsBetweenLooks = 200;

// Whether trying again may help.
bool isTemporary(int code) {
    switch (code & 0xff) {
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_BUSY:
    case SQLITE_NOMEM:
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
        return true;
    default:
        return false;
    }
}

// Nobody else changes the file: no locks, and no other files beside it.
QByteArray addressOf(const QString& file) {
    return "file:" + QUrl::toPercentEncoding(file, "/") + "?immutable=1";
}

} // namespace

Sqlite::Sqlite(const QString& file, Mode mode) : iFile(file) {
    const int flags =
        mode == Mode::read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    const QByteArray name = mode == Mode::read ? addressOf(file) : file.toUtf8();
    sqlite3* handle = nullptr;
    const int code = ::sqlite3_open_v2(name.constData(), &handle,
                                       flags | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    iHandle.reset(handle);
    if (code != SQLITE_OK)
        fail(code);
    ::sqlite3_extended_result_codes(handle, 1);
    if (mode == Mode::write)
        run("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA locking_mode=EXCLUSIVE;"
            "PRAGMA temp_store=MEMORY;");
}

void Sqlite::run(const char* statements) {
    const int code = ::sqlite3_exec(iHandle.get(), statements, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        fail(code);
}

void Sqlite::fail(int code) const {
    const char* words = iHandle ? ::sqlite3_errmsg(iHandle.get()) : ::sqlite3_errstr(code);
    const Message cause = Message(QString::fromUtf8(words));
    const Message about = Message::about(iFile, cause);
    throw PlatformException(ErrorKind::searchIndex, isTemporary(code) ? about.temporary() : about);
}

SqliteDeadline::SqliteDeadline(const Sqlite& database, Time time)
    : iDatabase(database), iTime(time) {
    const auto isOver = [](void* known) {
        return int(std::chrono::steady_clock::now() > *static_cast<const Time*>(known));
    };
    ::sqlite3_progress_handler(database.handle(), stepsBetweenLooks, isOver, &iTime);
}

SqliteDeadline::~SqliteDeadline() {
    ::sqlite3_progress_handler(iDatabase.handle(), 0, nullptr, nullptr);
}

SqliteStatement::SqliteStatement(const Sqlite& database, const char* sql) : iDatabase(database) {
    sqlite3_stmt* handle = nullptr;
    const int code = ::sqlite3_prepare_v3(database.handle(), sql, -1, SQLITE_PREPARE_PERSISTENT,
                                          &handle, nullptr);
    iHandle.reset(handle);
    if (code != SQLITE_OK)
        database.fail(code);
}

void SqliteStatement::bind(int parameter, std::int64_t value) {
    const int code = ::sqlite3_bind_int64(iHandle.get(), parameter + 1, value);
    if (code != SQLITE_OK)
        iDatabase.fail(code);
}

void SqliteStatement::bind(int parameter, const QByteArray& text) {
    const int code = ::sqlite3_bind_text(iHandle.get(), parameter + 1, text.constData(),
                                         int(text.size()), SQLITE_TRANSIENT);
    if (code != SQLITE_OK)
        iDatabase.fail(code);
}

bool SqliteStatement::step() {
    bool isInterrupted = false;
    if (step(&isInterrupted))
        return true;
    if (isInterrupted)
        iDatabase.fail(SQLITE_INTERRUPT);
    return false;
}

bool SqliteStatement::step(bool* isInterrupted) {
    const int code = ::sqlite3_step(iHandle.get());
    if (code == SQLITE_ROW)
        return true;
    const int failure = code == SQLITE_DONE ? SQLITE_OK : code;
    *isInterrupted = (failure & 0xff) == SQLITE_INTERRUPT;
    reset();
    if (failure != SQLITE_OK && !*isInterrupted)
        iDatabase.fail(failure);
    return false;
}

QByteArray SqliteStatement::text(int column) const {
    const auto* bytes = ::sqlite3_column_text(iHandle.get(), column);
    return {reinterpret_cast<const char*>(bytes), ::sqlite3_column_bytes(iHandle.get(), column)};
}
