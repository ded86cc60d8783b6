#include "cli/LibraryProgress.h"

#include "console/Terminal.h"

#include <QStringList>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds redrawInterval{200};

QString duration(double seconds) {
    constexpr double minute = 60;
    constexpr double hour = 60 * minute;
    if (seconds < minute)
        return QStringLiteral("%1 s").arg(seconds, 0, 'f', 0);
    if (seconds < hour)
        return QStringLiteral("%1 min").arg(seconds / minute, 0, 'f', 0);
    return QStringLiteral("%1 h").arg(seconds / hour, 0, 'f', 1);
}

} // namespace

QString LibraryCounts::text() const {
    QStringList parts{QStringLiteral("%1 made").arg(made)};
    const auto add = [&parts](qint64 count, const QString& what) {
        if (count > 0)
            parts << QString::number(count) + u' ' + what;
    };
    add(upToDate, QStringLiteral("up to date"));
    add(incomplete, QStringLiteral("incomplete"));
    add(failed, QStringLiteral("failed"));
    add(tryAgain, QStringLiteral("to be tried again"));
    return parts.join(QStringLiteral(", "));
}

LibraryProgress::LibraryProgress(qint64 total, bool isQuiet)
    : iTotal(total), iQuiet(isQuiet), iIsTerminal(::isatty(STDERR_FILENO) != 0) {}

LibraryProgress::~LibraryProgress() {
    clear();
}

void LibraryProgress::clear() {
    if (iIsShown)
        std::fputs("\r\033[K", stderr);
    iIsShown = false;
}

// Books that are up to date take no time, so they say nothing about what is left.
QString LibraryProgress::rate(const LibraryCounts& counts) const {
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - iStart;
    const qint64 drawn = counts.books() - counts.upToDate;
    if (drawn == 0 || elapsed.count() < 1)
        return {};
    const double perSecond = double(drawn) / elapsed.count();
    return QStringLiteral(", %1 books/s, %2 pages/s, %3 left")
        .arg(perSecond, 0, 'f', 1)
        .arg(double(counts.pages) / elapsed.count(), 0, 'f', 1)
        .arg(duration(double(iTotal - counts.books()) / perSecond));
}

void LibraryProgress::show(const LibraryCounts& counts) {
    if (iQuiet || iTotal <= 0)
        return;
    const auto now = std::chrono::steady_clock::now();
    const QString line = QStringLiteral("Books: %1 of %2 (%3)%4")
                             .arg(QString::number(counts.books()), QString::number(iTotal),
                                  counts.text(), rate(counts));
    if (iIsTerminal && now >= iNextDraw) {
        iNextDraw = now + redrawInterval;
        std::fputs(("\r" + line + "\033[K").toUtf8().constData(), stderr);
        iIsShown = true;
    }
    const qint64 tenth = 10 * counts.books() / iTotal;
    if (!iIsTerminal && tenth > iLastTenth) {
        iLastTenth = tenth;
        Terminal::report(line);
    }
}

void LibraryProgress::report(const QString& line) {
    clear();
    Terminal::report(line);
}
