#include "cli/BookPool.h"

#include "base/Stopwatch.h"
#include "console/ExitCode.h"
#include "console/Interrupt.h"
#include "system/Files.h"
#include "system/TemporaryFolders.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTimer>
#include <chrono>
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::chrono::milliseconds tickInterval{100};

// The same name as for page files, whose makers remove what a killed program leaves.
const QString workFolder = QStringLiteral("Lumivex");

// In the new process: it must end with this one, and Ctrl-C must not reach it twice.
void separate(pid_t parent) {
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != parent)
        ::raise(SIGTERM);
}

// Why a process without a report ended.
BookOutcome outcomeWithoutReport(const QProcess& process) {
    BookOutcome outcome;
    if (process.error() == QProcess::FailedToStart) {
        outcome.exitCode = int(ExitCode::tryAgain);
        outcome.reason =
            QStringLiteral("no process can be started (%1)").arg(process.errorString());
    } else if (process.exitStatus() == QProcess::CrashExit) {
        // Out of memory or by hand is no fault of the document, a crash is.
        const bool wasKilled = process.exitCode() == SIGKILL || process.exitCode() == SIGTERM;
        outcome.exitCode = int(wasKilled ? ExitCode::tryAgain : ExitCode::badDocument);
        outcome.reason = QStringLiteral("the process that made it was ended by signal %1")
                             .arg(process.exitCode());
    } else {
        outcome.exitCode = process.exitCode();
        outcome.reason = QStringLiteral("failed with code %1").arg(process.exitCode());
    }
    return outcome;
}

} // namespace

struct BookPool::Running {
    QString id;
    QString report; // path
    QProcess process;
    Stopwatch watch;
};

BookPool::BookPool(int size, BookSource& source)
    : iSize(size), iSource(source), iReports(TemporaryFolders::make(workFolder)) {}

BookPool::~BookPool() {
    TemporaryFolders::remove(iReports);
}

void BookPool::run() {
    QEventLoop loop;
    iLoop = &loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [this] {
        iSource.tick();
        for (const auto& book : iRunning) {
            if (!iSource.mayGoOn(book->id))
                book->process.kill();
        }
        if (Interrupt::wasRequested())
            cancel();
        fill();
        if (isDone())
            iLoop->quit();
    });
    timer.start(tickInterval);
    fill();
    if (!isDone())
        loop.exec();
    iLoop = nullptr;
}

bool BookPool::isDone() const {
    return iRunning.empty() && (iIsCancelled || iSource.isExhausted());
}

void BookPool::cancel() {
    if (std::exchange(iIsCancelled, true))
        return;
    for (const auto& book : iRunning)
        book->process.terminate();
}

void BookPool::fill() {
    while (!iIsCancelled && int(iRunning.size()) < iSize && !Interrupt::wasRequested()) {
        const auto job = iSource.nextJob();
        if (!job)
            return;
        start(*job);
    }
}

void BookPool::start(const BookJob& job) {
    auto& book = *iRunning.emplace_back(std::make_unique<Running>());
    book.id = job.id;
    book.report = Files::join(iReports, QStringLiteral("%1.json").arg(++iStarted));
    QStringList arguments{QStringLiteral("publish"), QStringLiteral("--quiet"),
                          QStringLiteral("--report=") + book.report,
                          QStringLiteral("--jobs=%1").arg(iSource.workersForNext())};
    arguments << job.arguments;
    book.process.setStandardInputFile(QProcess::nullDevice());
    book.process.setStandardOutputFile(QProcess::nullDevice());
    book.process.setStandardErrorFile(QProcess::nullDevice());
    book.process.setChildProcessModifier([parent = ::getpid()] { separate(parent); });
    QObject::connect(&book.process, &QProcess::finished, [this, &book] { finish(book); });
    QObject::connect(&book.process, &QProcess::errorOccurred,
                     [this, &book](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart)
                             finish(book);
                     });
    book.process.start(QCoreApplication::applicationFilePath(), arguments);
}

void BookPool::finish(Running& book) {
    BookOutcome outcome;
    outcome.report = QJsonDocument::fromJson(Files::contents(book.report)).object();
    if (outcome.report.isEmpty()) {
        outcome = outcomeWithoutReport(book.process);
    } else {
        outcome.exitCode = outcome.report[QStringLiteral("exitCode")].toInt();
        outcome.reason = outcome.report[QStringLiteral("reason")].toString();
    }
    outcome.seconds = book.watch.lap();
    QFile::remove(book.report);
    const bool wasCancelled =
        iIsCancelled && (outcome.exitCode == int(ExitCode::cancelled) || outcome.report.isEmpty());
    if (!wasCancelled)
        iSource.finished(book.id, outcome);
    // Not within its own signal.
    QTimer::singleShot(0, [this, &book] {
        iRunning.remove_if([&book](const auto& running) { return running.get() == &book; });
        fill();
        if (iLoop && isDone())
            iLoop->quit();
    });
}
