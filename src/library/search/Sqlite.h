#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <chrono>
#include <cstdint>
#include <memory>
#include <sqlite3.h>

// An open SQLite database. Errors are PlatformExceptions that name the file; a damaged database is
// reported as such.
class Sqlite {
public:
    enum class Mode {
        read,  // a file that nobody changes in place, only replaces
        write, // a file of this process alone, which a failure leaves worthless; created if missing
    };

    Sqlite(const QString& file, Mode mode);

    // Statements without results.
    void run(const char* statements);
    sqlite3* handle() const { return iHandle.get(); }
    // Throws for the result code.
    [[noreturn]] void fail(int code) const;

private:
    struct Close {
        void operator()(sqlite3* handle) const { ::sqlite3_close_v2(handle); }
    };

    QString iFile;
    std::unique_ptr<sqlite3, Close> iHandle;
};

// As long as it exists, statements of the database end as interrupted from the deadline on.
class SqliteDeadline {
public:
    using Time = std::chrono::steady_clock::time_point;

    SqliteDeadline(const Sqlite& database, Time time);
    ~SqliteDeadline();
    SqliteDeadline(const SqliteDeadline&) = delete;
    SqliteDeadline& operator=(const SqliteDeadline&) = delete;

private:
    const Sqlite& iDatabase;
    Time iTime;
};

// A statement of a database, which must outlive it. Parameters and columns count from 0.
class SqliteStatement {
public:
    SqliteStatement(const Sqlite& database, const char* sql);

    void bind(int parameter, std::int64_t value);
    // In UTF-8. The bytes are copied.
    void bind(int parameter, const QByteArray& text);
    // Whether there is a row; afterwards the statement can be bound anew.
    bool step();
    // The same, but also false when the time limit has passed, which *isInterrupted says.
    bool step(bool* isInterrupted);
    void reset() { ::sqlite3_reset(iHandle.get()); }

    std::int64_t number(int column) const { return ::sqlite3_column_int64(iHandle.get(), column); }
    double real(int column) const { return ::sqlite3_column_double(iHandle.get(), column); }
    QByteArray text(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* handle) const { ::sqlite3_finalize(handle); }
    };

    const Sqlite& iDatabase;
    std::unique_ptr<sqlite3_stmt, Finalize> iHandle;
};
