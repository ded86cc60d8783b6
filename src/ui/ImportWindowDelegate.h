#pragma once

#include "base/NotificationCenter.h"
#include "base/Operation.h"
#include "pages/ImportPDFOperation.h"
#include "ui/DocumentMerge.h"
#include "ui/JobProgress.h"
#include "ui/Panels.h"

#include <QHash>
#include <QObject>
#include <functional>
#include <memory>
#include <optional>

class ImportWindow;
class PasswordWindow;

// Controls the import sheet: reads the user's choices, imports in the background, shows progress,
// and keeps the result as its book, without pages before an import and after a failed one. The
// sheet ends with 1 after an import and 0 without one.
class ImportWindowDelegate : public QObject, public HasBook {
    Q_OBJECT

public:
    explicit ImportWindowDelegate(QWidget* parent = nullptr);
    ~ImportWindowDelegate() override;

    ImportWindow& window() const { return *iWindow; }
    PasswordWindow& passwordWindow() const { return *iPasswordWindow; }
    const JobProgress& job() const { return iJob; }
    // Shows the sheet on its parent; onEnd gets the return code.
    void beginSheet(std::function<void(int)> onEnd);
    // Imports all pages of these files as one document. Of several, those that can't be read are
    // left out.
    void importFiles(const QStringList& paths);
    // With the choices that the sheet shows. The sources count until the sheet ends or another path
    // is typed.
    void importSources(ImportSources sources);

    // The reading direction that the user has chosen for the book; none for the document's.
    void setRightToLeft(std::optional<bool> value) { iIsRightToLeft = value; }

    // What the last import has used, and the document that was made of it; null for a PDF that was
    // imported as it is. Its file exists as long as one of its owners.
    const ImportSources& sources() const { return iUsed; }
    const std::shared_ptr<MergedDocument>& merged() const { return iMerged; }
    // The password that a document was opened with, in UTF-8; empty when none is known.
    QByteArray passwordOf(const QString& path) const { return iPasswords.value(path); }

    // What the last import left out and why: one text per failed part or page; many failed pages
    // share one.
    const QStringList& failures() const { return iFailures; }
    // Points; 0 until an import succeeds.
    int pageWidth() const { return iBook.pageSize.width(); }
    void setPageWidth(int width) { iBook.pageSize.setWidth(width); }
    int pageHeight() const { return iBook.pageSize.height(); }
    void setPageHeight(int height) { iBook.pageSize.setHeight(height); }
    bool isImporting() const { return iIsImporting; }

    // How the user is asked for a file, and how one is opened.
    void setFilePanel(Panels::FilePanel panel) { iFilePanel = std::move(panel); }
    void setFileOpener(std::function<void(const QString&)> opener) {
        iOpenFile = std::move(opener);
    }

    void onImportAction();
    void onCancelAction();
    void onBrowseFileAction();
    void onOpenTheFileAction();
    void onPageRangeTypeChangeAction();
    // Imports again with the password that was typed, and gives up.
    void onPasswordAction();
    void onNoPasswordAction();
    void openPanelDidEnd(const std::optional<QString>& panelFile);

    // Enables the controls for the idle or the busy state.
    void enableButtons(bool idle);

    // The quality for a choice in the sheet.
    static int qualityForLevel(int importQualityLevel);

private:
    void awakeFromNib();
    void wire();
    void saveChoices() const;
    void startImport();
    void prepareSources();
    void anyThread_handleMSG(const Notification& message);
    void mainThread_handleMSG(const QVariantMap& userInfo);
    void importDidFinish(const std::shared_ptr<ImportPDFOperation>& operation);
    bool areOthersThanTyped() const;
    void showOthers();
    bool needsOffice() const;
    QString endNotice(bool isImported) const;
    QString nextStep(const ImportPDFOperation& operation);
    QString lockedDocument(const ImportPDFOperation& operation) const;
    void takeMerged();
    void reportFailedPages();
    void storePageSize() const;
    static Book emptyBook();
    void showFailure(const QStringList& failures);
    void endSheet(int returnCode);

    ImportWindow* iWindow;
    PasswordWindow* iPasswordWindow;
    QHash<QString, QByteArray> iPasswords; // in UTF-8, by path; kept until the program ends
    QString iAskedFor;                     // whose password was typed for the import that runs
    std::optional<ImportSources> iSources; // other than what the sheet shows
    std::shared_ptr<DocumentMerge> iMerge; // of the import that runs; null where nothing is merged
    ImportSources iUsed;
    std::shared_ptr<MergedDocument> iMerged;
    bool iIsImporting = false;
    std::optional<bool> iIsRightToLeft;
    QStringList iFailures;
    std::shared_ptr<ImportPDFOperation> iImportPDF;
    NotificationCenter::Subscription iProgress;
    JobProgress iJob;
    Panels::FilePanel iFilePanel;
    std::function<void(const QString&)> iOpenFile;
    std::function<void(int)> iOnEnd;
    // Last, so that it is destroyed first: its thread must end before anything that it may use.
    OperationQueue iQueue;
};
