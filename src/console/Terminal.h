#pragma once

#include <QString>
#include <chrono>

// Standard output and standard error.
namespace Terminal {

// Prints a line of the command's result on standard output.
void print(const QString& line);

// Throws CommandError when writing to standard output has failed.
void checkOutput();

// Prints any other line on standard error.
void report(const QString& line);

} // namespace Terminal

// Shows the progress of a long job on standard error: a bar that is redrawn on a terminal,
// otherwise a line for every tenth. Shows nothing when quiet.
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
