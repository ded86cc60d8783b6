#pragma once

#include <QString>
#include <chrono>

// Standard output and standard error as people and scripts read them.
namespace Terminal {

// A line on standard output: what was asked for.
void print(const QString& line);

// Throws CommandError when some line did not reach standard output.
void checkOutput();

// A line on standard error: everything else.
void report(const QString& line);

} // namespace Terminal

// Shows how far a long job has come, on standard error: one bar that is drawn over and over on a
// terminal, otherwise a plain line for every tenth of the way. Shows nothing when quiet.
class ProgressDisplay {
public:
    ProgressDisplay(QString title, bool quiet);
    ~ProgressDisplay();
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;

    void show(int done, int total);

private:
    void drawBar(int done, int total);

    QString iTitle;
    bool iQuiet;
    bool iTerminal;
    bool iBarShown = false;
    int iLastTenth = 0;
    std::chrono::steady_clock::time_point iNextDraw;
};
