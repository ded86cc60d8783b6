#pragma once

#include <QAction>
#include <QObject>
#include <vector>

class QActionGroup;
class QMainWindow;
class QMenu;
class QUndoStack;

// The program's commands with their shortcuts, in the menus and the toolbar of its window.
class MainMenu : public QObject {
    Q_OBJECT

public:
    MainMenu(QMainWindow& window, QUndoStack& edits);

    QAction* newProject;
    QAction* openProject;
    QAction* saveProject;
    QAction* saveProjectAs;
    QAction* importPDF;
    QAction* arrangePages;
    QMenu* recentFiles;
    QAction* exportFlipBook;
    QAction* importSettings;
    QAction* exportSettings;
    QAction* saveStyle;
    QAction* quit;
    QAction* undo;
    QAction* redo;
    QAction* findSetting;
    // Of the selected setting, and of all.
    QAction* resetSetting;
    QAction* resetSettings;
    // Its data is the phase of its blinking.
    QAction* toolBarItemApplyChange;
    QAction* selectTemplate;
    QAction* reloadPreview;
    // Its actions' data are values of Appearance::Choice.
    QActionGroup* appearance;
    QAction* openHelp;
    QAction* about;

    // Shows this list of files; the actions' data are the paths.
    void showRecentFiles(const QStringList& files);
    // The icon of the button that applies changes: "apply" or one of its phases.
    void showApplyImage(const QString& name);
    // Redraws the icons in the window's colours.
    void updateColors();

Q_SIGNALS:
    void recentFileChosen(const QString& path);
    void recentFilesCleared();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* add(const QString& text, const QString& iconName, const QKeySequence& shortcut);
    void makeCommands(QUndoStack& edits);
    void makeProjectCommands();
    void makeEditCommands(QUndoStack& edits);
    void makeAppearanceGroup();
    void fillMenuBar();
    void fillToolBar();

    QMainWindow& iWindow;
    int iBarWidth = 0; // of the toolbar with captions
    QString iApplyImage = QStringLiteral("apply");
    std::vector<std::pair<QAction*, QString>> iIcons;
};
