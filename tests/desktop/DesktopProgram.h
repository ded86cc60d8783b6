#pragma once

// With what tests of the program drive.
#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "app/desktop/PreviewView.h"
#include "support/BookReader.h"
#include "support/TemplateLibrary.h"
#include "system/Folders.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"
#include "ui/SelectTemplateWindow.h"
#include "ui/SelectTemplateWindowDelegate.h"

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

// An option of the test program: with a folder behind it, it runs as the desktop program.
inline constexpr char programOption[] = "--run-as-program";

// The desktop program, launched anew with folders and settings of its own for each test. The panels
// answer what the test has put into the members.
class DesktopProgram : public testing::Test {
protected:
    DesktopProgram();
    ~DesktopProgram() override;

    // One that has not been launched yet, with the panels of this test.
    std::unique_ptr<BrisleafAppDelegate> newProgram();
    void launch();
    MainWindow& window() const { return *program->window(); }

    // What a script in the preview's page comes to.
    QVariant evaluate(const QString& script) const;
    // Waits until the preview shows a book that is ready and for which the script is true.
    bool waitForPreview(const QString& condition = QStringLiteral("true")) const;
    // The configuration that was published for the preview.
    BookElement configuration() const;

    // Shows the row of the property with that key and returns the index of its value.
    QModelIndex valueOf(const QString& key) const;
    // Types a value into the row's own editor, or picks it from its list.
    void edit(const QString& key, const QString& value) const;
    // Presses the button of the row's value, or its check box.
    void press(const QString& key) const;
    QString value(const QString& key) const;

    // A PDF of that many pages, 300 by 400 points.
    QString pdf(int pages) const;
    QString path(const QString& name) const { return files.filePath(name); }
    // Waits until the import sheet's work is done.
    bool waitForImport() const;
    // Whether the condition comes true within 30 seconds.
    static bool waitUntil(const std::function<bool()>& condition);

    QTemporaryDir files;
    std::unique_ptr<BrisleafAppDelegate> program;
    std::optional<QString> fileToOpen;
    std::optional<QString> fileToSave; // asked for once
    bool replaces = false;
    QStringList losses; // what the user was asked to replace
    Panels::Unsaved unsaved = Panels::Unsaved::discard;
    QStringList unsavedAsked; // questions about changes
    bool recovers = false;
    QStringList recoveries; // questions about what an earlier run has left
    std::optional<QColor> color;
    bool usesColorPanel = false; // the program's own in place of color
    QStringList opened;
    int abouts = 0; // how often the window about the program was asked for
};
