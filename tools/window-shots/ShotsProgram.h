#pragma once

#include "app/desktop/BrisleafAppDelegate.h"

#include <QImage>
#include <QString>

// Runs the desktop program to take screenshots of it.
class ShotsProgram {
public:
    // The window's size in points, without a frame.
    explicit ShotsProgram(const QSize& windowSize);

    BrisleafAppDelegate& program() { return iProgram; }
    MainWindow& window() { return *iProgram.window(); }

    void setDark(bool isDark);
    // Imports the document, and waits until its book is shown.
    void importBook(const QString& pdf);
    // Opens the book at a page, one-based, and waits until the turn is over.
    void showPage(int page);
    // Waits until the preview shows a book that is ready.
    void waitForBook();
    // Selects the row of that property and scrolls to it.
    void select(const QString& key);

    // The window with whatever sheet, menu or box is open before it.
    QImage picture();
    // The sheet or box that is open, alone.
    QImage pictureOfSheet();
    // A part of the window.
    QImage pictureOf(QWidget& part);

private:
    // Waits until the script is true in the preview, and its animations have ended.
    void waitFor(const QString& script, const char* what);

    BrisleafAppDelegate iProgram;
};

// Waits until that is true; ends the program with an error after half a minute.
void waitUntil(const std::function<bool()>& condition, const char* what);
// Lets the program draw and animate for a while.
void rest(int milliseconds);
