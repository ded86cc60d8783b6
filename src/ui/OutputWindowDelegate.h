#pragma once

#include "base/Operation.h"
#include "output/FolveroOutput.h"
#include "ui/JobProgress.h"
#include "ui/PublishResult.h"

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <optional>

class OutputWindow;
class PageFilesOperation;
class PublishProgress;

// Controls the publish sheet: reads the user's choices, publishes while the sheet is open, and
// offers to open the result. Set its book before it is shown; the page size is that of the
// settings. The sheet ends with 1 after a publish, successful or not, and 0 without one. It stays
// open when a publish was cancelled.
class OutputWindowDelegate : public QObject, public HasBook {
    Q_OBJECT

public:
    explicit OutputWindowDelegate(QWidget* parent = nullptr);
    ~OutputWindowDelegate() override;

    OutputWindow& window() const { return *iWindow; }
    const JobProgress& job() const { return iJob; }
    void beginSheet();

    std::shared_ptr<FlashTemplate> flashTmpl() const { return iFlashTmpl; }
    void setFlashTmpl(std::shared_ptr<FlashTemplate> value) { iFlashTmpl = std::move(value); }

    // The document of the book: its path, empty for the demo book, and its name. Folder and title
    // default to those of its last publish, or are derived from the name.
    void setDocument(const QString& path, const QString& name);

    // How the user is asked for a folder (none when cancelled), whether to replace what would be
    // lost and whether to open the result (true for yes); how a file or folder is opened; how an
    // error is shown; and whether to include text that the document forbids copying (none when
    // cancelled).
    struct Questions {
        std::function<std::optional<QString>(const QString& prompt)> folder;
        std::function<bool(const QString& message, const QString& information)> replace;
        std::function<bool(const QString& message, const QString& information)> openResult;
        std::function<void(const QString& path)> open;
        std::function<void(const QString& message, const QString& information)> showMessage;
        std::function<std::optional<bool>(const QString& message, const QString& information)>
            includeText =
                [](const QString& /*message*/, const QString& /*information*/) { return false; };
    };
    void setQuestions(Questions questions) { iQuestions = std::move(questions); }

    void onPublish();
    void onCancel();
    void onSelectFolder();
    void onOpenFolder();
    void onCopyEmbed();
    void openPanelDidEnd(const std::optional<QString>& panelFile);

Q_SIGNALS:
    // After the sheet has ended. It shows no message about an unexpected failure itself.
    void publishFailed(const QString& cause);
    void bookPublished(const PublishResult& result);

private:
    void awakeFromNib();
    void showState();
    QString pageName() const;
    QString pageAddress() const;
    bool areWebFieldsValid() const;
    static bool isWeb();
    void saveChoices() const;
    std::unique_ptr<FolveroOutput> makeOutput();
    // A text about files or a book that a publish would replace and somebody may want to keep;
    // empty for none.
    QString overwriteWarning(const FolveroOutput& output) const;
    // What a publish replaces as a whole.
    static QString place(const FolveroOutput& output);
    bool askForText(FolveroOutput& output) const;
    void publish(FolveroOutput& output);
    void write(FolveroOutput& output);
    void publishAndEnd();
    void makePageFiles(PageFiles kind);
    void pageFilesAreMade(const std::shared_ptr<PageFilesOperation>& operation);
    void goBackToSheet();
    void endSheet(int returnCode);

    OutputWindow* iWindow;
    std::shared_ptr<FlashTemplate> iFlashTmpl;
    QString iDocument;
    QString iDocumentName;
    // Whether the fields still contain what was typed for another document.
    bool iIsOtherDocument = false;
    Questions iQuestions;
    // Of the current run.
    std::unique_ptr<FolveroOutput> iOutput;
    std::optional<PublishResult> iResult; // of a success
    QString iFolderFailure;               // why its folder could not be made
    QString iNewFolder;                   // which was made for it; empty for none
    QPointer<PublishProgress> iProgress;  // while it takes time
    JobProgress iJob;
    // Last, so that it is destroyed first: its thread must end before anything that it may use.
    OperationQueue iQueue;
};
