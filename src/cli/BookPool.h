#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <list>
#include <memory>
#include <optional>

class QEventLoop;
class QProcess;

// A book to be made.
struct BookJob {
    QString id;
    QStringList arguments; // of "folvero publish", but for those of the run
};

// What came of it.
struct BookOutcome {
    int exitCode = 0;
    QString reason;     // of all codes but 0
    QJsonObject report; // of publish; empty when it could not write one
    double seconds = 0;
};

// Who has the books for a BookPool, and takes the outcomes.
class BookSource {
public:
    BookSource() = default;
    virtual ~BookSource() = default;
    BookSource(const BookSource&) = delete;
    BookSource& operator=(const BookSource&) = delete;

    // The next book; none when there is none at the moment.
    virtual std::optional<BookJob> nextJob() = 0;
    // Whether there will be none any more, once those that are being made are finished.
    virtual bool isExhausted() const = 0;
    // How many page workers a book begun now gets.
    virtual int workersForNext() const = 0;
    // Not called for books that were cancelled.
    virtual void finished(const QString& id, const BookOutcome& outcome) = 0;
    // Called several times a second.
    virtual void tick() = 0;
    // Whether a book may still be made; otherwise its process is killed.
    virtual bool mayGoOn(const QString& id) const = 0;
};

// Makes books side by side, each by a "folvero publish" of its own, so that a document that crashes
// one costs one book. They end with this process, however it ends. Ctrl-C cancels all.
class BookPool {
public:
    // How many books are made at the same time.
    BookPool(int size, BookSource& source);
    ~BookPool();
    BookPool(const BookPool&) = delete;
    BookPool& operator=(const BookPool&) = delete;

    // Returns when the source is exhausted, or everything was cancelled.
    void run();

private:
    struct Running;

    void fill();
    void start(const BookJob& job);
    void finish(Running& book);
    void cancel();
    bool isDone() const;

    int iSize;
    BookSource& iSource;
    QString iReports; // folder
    int iStarted = 0;
    bool iIsCancelled = false;
    std::list<std::unique_ptr<Running>> iRunning;
    QEventLoop* iLoop = nullptr;
};
