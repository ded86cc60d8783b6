#pragma once

#include "output/FolveroOutput.h"

#include <QObject>
#include <functional>
#include <memory>
#include <optional>

class OutputWindow;
class QProgressDialog;

// Runs the publish sheet: takes the user's choices, publishes while the sheet is up, and offers to
// open the result. The sheet ends with 1 after a publish, whatever came of it, and 0 without one.
class OutputWindowDelegate : public QObject {
    Q_OBJECT

public:
    explicit OutputWindowDelegate(QWidget* parent = nullptr);
    ~OutputWindowDelegate() override;

    OutputWindow& window() const { return *iWindow; }
    void beginSheet();

    // What is published; set before the sheet is shown.
    std::shared_ptr<FlashPageSource> flashPageSource() const { return iFlashPageSource; }
    void setFlashPageSource(std::shared_ptr<FlashPageSource> value) {
        iFlashPageSource = std::move(value);
    }
    std::shared_ptr<FlashTemplate> flashTmpl() const { return iFlashTmpl; }
    void setFlashTmpl(std::shared_ptr<FlashTemplate> value) { iFlashTmpl = std::move(value); }
    std::shared_ptr<FlashOutline> flashOutline() const { return iFlashOutline; }
    void setFlashOutline(std::shared_ptr<FlashOutline> value) { iFlashOutline = std::move(value); }
    std::shared_ptr<FlashPagesAnnotations> flashPagesAnnotations() const {
        return iFlashPagesAnnotations;
    }
    void setFlashPagesAnnotations(std::shared_ptr<FlashPagesAnnotations> value) {
        iFlashPagesAnnotations = std::move(value);
    }

    // Whose book it is: the path of the document's file, empty for the demo book. Folder and title
    // are those that it was published with last, or are proposed after its name.
    void setDocument(const QString& path, const QString& name);

    // How the user is asked: for a folder (none when cancelled), whether to replace what would be
    // lost and whether to open the result (true for yes), and how a file or folder is opened and a
    // failure told.
    struct Questions {
        std::function<std::optional<QString>(const QString& prompt)> folder;
        std::function<bool(const QString& message, const QString& information)> replace;
        std::function<bool(const QString& message, const QString& information)> openResult;
        std::function<void(const QString& path)> open;
        std::function<void(const QString& message, const QString& information)> showMessage;
    };
    void setQuestions(Questions questions) { iQuestions = std::move(questions); }

    void onPublish();
    void onCancel();
    void onSelectFolder();
    void onOpenFolder();
    void onCopyEmbed();
    void openPanelDidEnd(const std::optional<QString>& panelFile);

private:
    void awakeFromNib();
    void proposeTexts();
    void showState();
    QString pageName() const;
    void saveChoices() const;
    std::unique_ptr<FolveroOutput> makeOutput();
    std::unique_ptr<FolveroOutput> makeWebOutput(const QString& folder, const QString& name);
    // What a publish would replace and somebody may want to keep; empty for nothing.
    QString overwriteWarning(const FolveroOutput& output) const;
    // What a publish replaces as a whole.
    static QString place(const FolveroOutput& output);
    void rememberBook(const FolveroOutput& output) const;
    void publish(FolveroOutput& output);
    void run(FolveroOutput& output);
    void endSheet(int returnCode);

    OutputWindow* iWindow;
    std::shared_ptr<FlashPageSource> iFlashPageSource;
    std::shared_ptr<FlashTemplate> iFlashTmpl;
    std::shared_ptr<FlashOutline> iFlashOutline;
    std::shared_ptr<FlashPagesAnnotations> iFlashPagesAnnotations;
    QString iDocument;
    QString iDocumentName;
    // The fields still hold what was typed for another document.
    bool iIsOtherDocument = false;
    Questions iQuestions;
    // Of the run under way.
    std::unique_ptr<QProgressDialog> iProgress;
};
