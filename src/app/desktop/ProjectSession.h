#pragma once

#include "app/desktop/FileToSave.h"
#include "app/desktop/ProjectRecovery.h"
#include "project/ConvertedDocument.h"
#include "project/Project.h"
#include "system/FileState.h"

#include <QHash>
#include <QObject>
#include <functional>
#include <memory>

class ImportWindowDelegate;
class MainWindow;
class MergedDocument;
class OutputWindow;
class PagesWindowDelegate;
class QTimer;
class QUndoStack;
struct Book;
struct ImportSources;

// The project that the window shows: its file, whether it has changes that are not saved, and the
// commands that open and save projects. Keeps what is not saved for recovery.
class ProjectSession : public QObject {
    Q_OBJECT

public:
    // What a session drives. All of it must live longer.
    struct Program {
        MainWindow& window;
        ImportWindowDelegate& import;
        OutputWindow& output;
        PagesWindowDelegate& pages;
        QUndoStack& edits;
        // Template, style and values that are shown.
        std::function<Project()> look;
        // Shows those of a project, with the demo pages in place of its documents.
        std::function<void(const Project&)> showLook;
        // Brings the preview up to date with them.
        std::function<void()> showBook;
        std::function<void()> showImportSheet;
        std::function<const Book&()> book;
    };
    struct Questions {
        Panels::FilePanel fileToOpen;
        FileToSave fileToSave;
        std::function<Panels::Unsaved(const QString& message, const QString& information)> unsaved;
        std::function<bool(const QString& message, const QString& information)> recover;
    };

    ProjectSession(Program program, Questions questions);
    ~ProjectSession() override;

    // Offers to recover what an earlier run has left. True when there is something that is shown.
    bool offerRecovery();
    // What is not saved is kept for the next start; for an end without questions.
    void keepForRecovery();

    // Each asks first when there are changes.
    void onNew();
    void onOpen();
    void open(const QString& path);
    // False when the project was not saved.
    bool onSave();
    bool onSaveAs();
    // Shows the sheet in which the pages are arranged, and makes the book anew of those. False when
    // they can't be read; a message says why.
    bool arrangePages();
    // The same, with the pages of files after them. notUsed: why others are left out, to be shown.
    void addPages(const QStringList& files, const QStringList& notUsed);

    // Asks when an import would replace pages that were arranged, or a book of several documents,
    // and that are not saved. False when the user wants to keep them.
    bool mayReplacePages();

    bool isModified() const;
    void setModified();
    // Empty for a project that was never saved.
    const QString& path() const { return iPath; }

    // Call when the import sheet has ended with a document; returns its path.
    QString takeImport();
    // Call when it has ended without one.
    void importWasCancelled();
    // Proposes in the publish sheet what the project has chosen, if anything.
    void proposePublish() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectCommands();
    bool mayLeave();
    bool mayLose(const QString& question, const QString& information);
    void load(const QString& path);
    void show(const Project& project, const QString& path);
    void importDocuments(const ConvertedDocuments& converted);
    bool isOpened(const ImportSources& imported) const;
    void showWarnings();
    void takePages();
    void restorePages();
    void takePublish();
    void autosave();
    Project current();
    Project::File described(const QString& path);
    bool saveTo(const QString& path);
    void setSaved();
    void updateTitle();
    // As the most recent file; see RecentFiles.
    void remember(const QString& path, const QByteArray& cover = {}) const;
    void showError(const QString& what, const QString& cause) const;

    Program iProgram;
    Questions iQuestions;
    QString iPath = QStringLiteral("");
    // Beside template, style and values, which the window has.
    QStringList iDocuments;
    std::vector<MergePlan::Page> iPages;
    Project::Import iImport;
    Project::Publish iPublish;
    bool iIsChanged = false; // beside the edits that can be undone
    // While the documents of a project that is opened, or pages that were arranged, are imported.
    bool iIsOpening = false;
    bool iIsRecovering = false;
    bool iArePagesSaved = true;              // as they are arranged
    QStringList iWarnings;                   // of the project that is opened
    std::shared_ptr<MergedDocument> iMerged; // that the shown book consists of
    // While pages that were arranged are imported: what the shown book is made of.
    struct Sources {
        QStringList documents;
        std::vector<MergePlan::Page> pages;
        Project::Import import;
    };
    std::optional<Sources> iEarlier;
    QHash<QString, std::pair<FileState, Project::File>> iDescribed;
    ProjectRecovery iRecovery;
    std::unique_ptr<QTimer> iAutosave;
};
