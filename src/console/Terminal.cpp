#include "console/Terminal.h"

#include "console/CommandError.h"
#include "system/NameAliases.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr int barWidth = 30;
constexpr std::chrono::milliseconds redrawInterval{50};

// Whether it starts an escape sequence or changes the direction of the letters after it.
bool isControl(QChar letter) {
    return (letter.category() == QChar::Other_Control && letter != u'\n' && letter != u'\t') ||
           (letter >= QChar(0x202A) && letter <= QChar(0x202E)) ||
           (letter >= QChar(0x2066) && letter <= QChar(0x2069));
}

// Texts from documents and file names must not pretend to be others on a terminal; pipes get them
// unchanged.
QString withoutControls(QString text) {
    std::replace_if(text.begin(), text.end(), isControl, QChar(QChar::ReplacementCharacter));
    return text;
}

void write(std::FILE* file, const QByteArray& bytes) {
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), file);
    std::fflush(file);
}

} // namespace

void Terminal::print(const QString& line) {
    // What reads from a pipe opens files by the names that it gets.
    write(stdout, (::isatty(STDOUT_FILENO) != 0 ? withoutControls(NameAliases::shown(line)).toUtf8()
                                                : NameAliases::unchanged(line)) +
                      '\n');
}

void Terminal::checkOutput() {
    if (std::ferror(stdout))
        throw CommandError(QStringLiteral("standard output can't be written"), ExitCode::tryAgain);
}

void Terminal::report(const QString& line) {
    const QString shown = NameAliases::shown(line);
    write(stderr, (::isatty(STDERR_FILENO) != 0 ? withoutControls(shown) : shown).toUtf8() + '\n');
}

ProgressDisplay::ProgressDisplay(QString title, bool quiet)
    : iTitle(std::move(title)), iQuiet(quiet), iTerminal(::isatty(STDERR_FILENO) != 0) {}

ProgressDisplay::~ProgressDisplay() {
    if (iBarShown)
        write(stderr, "\r\033[K");
}

void ProgressDisplay::show(int done, int total) {
    if (iQuiet || total <= 0)
        return;
    if (iTerminal) {
        drawBar(done, total);
        return;
    }
    const int tenth = int(10LL * done / total);
    if (tenth > iLastTenth) {
        iLastTenth = tenth;
        Terminal::report(QStringLiteral("%1: %2 of %3").arg(iTitle).arg(done).arg(total));
    }
}

void ProgressDisplay::drawBar(int done, int total) {
    const auto now = std::chrono::steady_clock::now();
    if (now < iNextDraw && done < total)
        return;
    iNextDraw = now + redrawInterval;
    const int filled = int(qint64(barWidth) * done / total);
    const QString bar = QString(filled, u'#') + QString(barWidth - filled, u'.');
    const QString line =
        QStringLiteral("\r%1 [%2] %3/%4\033[K").arg(iTitle, bar).arg(done).arg(total);
    write(stderr, line.toUtf8());
    iBarShown = true;
}
