#include "ui/ImportWindowDelegate.h"

#include "app/AppSettings.h"
#include "base/Log.h"
#include "base/PlatformException.h"
#include "pdf/OfficeDocument.h"
#include "project/MergedDocument.h"
#include "system/Files.h"
#include "ui/ImportWindow.h"
#include "ui/OutputWindow.h"
#include "ui/PasswordWindow.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>
#include <span>
#include <utility>

namespace {

constexpr int importDPI = 144;
constexpr std::size_t maxPagesShown = 5;

constexpr Log importLog("ImportWindowDelegate");

} // namespace

ImportWindowDelegate::ImportWindowDelegate(QWidget* parent)
    : iWindow(new ImportWindow(parent)),
      iPasswordWindow(new PasswordWindow(iWindow)),
      iFilePanel(Panels::chooseFile),
      iOpenFile(Panels::open) {
    if (!parent)
        connect(this, &QObject::destroyed, iWindow, &QObject::deleteLater);
    awakeFromNib();
    wire();
}

ImportWindowDelegate::~ImportWindowDelegate() {
    iQueue.cancelAllOperations();
}

void ImportWindowDelegate::awakeFromNib() {
    iBook = emptyBook();
    const auto& settings = AppSettings::shareInstance();
    iWindow->txtImportFile->setText(settings.lastImportedFile());
    auto* chosen = iWindow->pageRangeType->button(settings.importPageRangeType());
    (chosen ? chosen : iWindow->pageRangeType->button(ImportWindow::allPages))->setChecked(true);
    iWindow->txtPageRange->setText(settings.importPageRange());
    iWindow->importQuality->setCurrentIndex(settings.importQualityLevel());
    iWindow->btnImportLinks->setChecked(settings.importLinks() != 0);
    iWindow->btnImportBookMark->setChecked(settings.importBookmark() != 0);
    iProgress = NotificationCenter::defaultCenter().addObserver(
        QString::fromUtf16(ImportProgressInfoMSG), nullptr,
        [this](const Notification& message) { anyThread_handleMSG(message); });
    enableButtons(true);
}

void ImportWindowDelegate::wire() {
    connect(iWindow->btnOK, &QPushButton::clicked, this, &ImportWindowDelegate::onImportAction);
    connect(iWindow->btnCancel, &QPushButton::clicked, this, &ImportWindowDelegate::onCancelAction);
    connect(iWindow, &ImportWindow::closeRequested, this, &ImportWindowDelegate::onCancelAction);
    connect(iWindow->btnBrowseFile, &QPushButton::clicked, this,
            &ImportWindowDelegate::onBrowseFileAction);
    connect(iWindow->btnOpenFile, &QPushButton::clicked, this,
            &ImportWindowDelegate::onOpenTheFileAction);
    connect(iWindow->txtImportFile, &QLineEdit::textChanged, this,
            &ImportWindowDelegate::showOthers);
    connect(iWindow->pageRangeType, &QButtonGroup::idClicked, this,
            &ImportWindowDelegate::onPageRangeTypeChangeAction);
    connect(iPasswordWindow->btnOK, &QPushButton::clicked, this,
            &ImportWindowDelegate::onPasswordAction);
    connect(iPasswordWindow->btnCancel, &QPushButton::clicked, this,
            &ImportWindowDelegate::onNoPasswordAction);
    connect(iPasswordWindow, &Sheet::closeRequested, this,
            &ImportWindowDelegate::onNoPasswordAction);
}

void ImportWindowDelegate::beginSheet(std::function<void(int)> onEnd) {
    iOnEnd = std::move(onEnd);
    showFailure({});
    iWindow->open();
}

void ImportWindowDelegate::importFiles(const QStringList& paths) {
    if (iIsImporting)
        return;
    iWindow->pageRangeType->button(ImportWindow::allPages)->setChecked(true);
    importSources({paths, {}, paths.size() > 1});
}

void ImportWindowDelegate::importSources(ImportSources sources) {
    if (iIsImporting)
        return;
    iWindow->txtImportFile->setText(sources.documents.front());
    iSources = std::move(sources);
    showOthers();
    onImportAction();
}

// What the field names counts alone once something else is typed there.
bool ImportWindowDelegate::areOthersThanTyped() const {
    return iSources && iSources->documents.front() == iWindow->txtImportFile->text();
}

void ImportWindowDelegate::showOthers() {
    iWindow->showOthers(areOthersThanTyped() ? iSources->documents.mid(1) : QStringList());
}

void ImportWindowDelegate::endSheet(int returnCode) {
    iSources.reset();
    showOthers();
    iWindow->done(returnCode);
    if (iOnEnd)
        iOnEnd(returnCode);
}

void ImportWindowDelegate::enableButtons(bool idle) {
    iWindow->btnOK->setEnabled(idle);
    iWindow->txtImportFile->setEnabled(idle);
    const bool typed = iWindow->pageRangeType->checkedId() == ImportWindow::typedPages;
    iWindow->txtPageRange->setEnabled(idle && typed);
    iWindow->spreads->setEnabled(idle);
    iWindow->importQuality->setEnabled(idle);
    iWindow->lblInfo->setVisible(!idle);
    iWindow->lblTimeLeft->setVisible(!idle);
    iWindow->prgBar->setVisible(!idle);
    // Without a range the bar shows a busy animation.
    iWindow->prgBar->setRange(0, idle ? 1 : 0);
}

void ImportWindowDelegate::onPageRangeTypeChangeAction() {
    enableButtons(true);
}

void ImportWindowDelegate::onImportAction() {
    iIsImporting = true;
    iAskedFor.clear();
    saveChoices();
    enableButtons(false);
    AppSettings::shareInstance().saveSettings();
    iBook = emptyBook();
    iWindow->lblInfo->clear();
    iWindow->lblTimeLeft->clear();
    showFailure({});
    importLog.debug(QStringLiteral("start to import pdf now..."));
    startImport();
}

void ImportWindowDelegate::saveChoices() const {
    auto& settings = AppSettings::shareInstance();
    settings.setLastImportedFile(iWindow->txtImportFile->text());
    settings.setImportPageRangeType(iWindow->pageRangeType->checkedId());
    settings.setImportQualityLevel(iWindow->importQuality->currentIndex());
    settings.setImportPageRange(iWindow->txtPageRange->text());
    settings.setImportBookmark(iWindow->btnImportBookMark->isChecked() ? 1 : 0);
    settings.setImportLinks(iWindow->btnImportLinks->isChecked() ? 1 : 0);
}

int ImportWindowDelegate::qualityForLevel(int importQualityLevel) {
    switch (importQualityLevel) {
    case 1:
        return 85;
    case 2:
        return 65;
    case 3:
        return 45;
    case 4:
        return 25;
    default:
        return 100;
    }
}

void ImportWindowDelegate::startImport() {
    iQueue.cancelAllOperations();
    iJob.begin();
    const bool typed = iWindow->pageRangeType->checkedId() == ImportWindow::typedPages;
    const QString range = typed ? iWindow->txtPageRange->text() : QStringLiteral("ALL");
    importLog.debug(QStringLiteral("page range is:%1").arg(range));
    const auto& settings = AppSettings::shareInstance();
    iImportPDF =
        std::make_shared<ImportPDFOperation>(iWindow->txtImportFile->text(), range, importDPI,
                                             qualityForLevel(settings.importQualityLevel()));
    iImportPDF->setFinishedObserver([this, weak = std::weak_ptr<ImportPDFOperation>(iImportPDF)] {
        QMetaObject::invokeMethod(
            this, [this, operation = weak.lock()] { importDidFinish(operation); },
            Qt::QueuedConnection);
    });
    // Most likely the next book is of the same kind as the last.
    if (OutputWindow::isWeb(settings.outputType()))
        iImportPDF->setFilesOf(webFiles);
    prepareSources();
    iImportPDF->setSpreads({Spreads(iWindow->spreads->currentIndex()), iIsRightToLeft});
    iImportPDF->setImportLinks(settings.importLinks() == 1);
    iImportPDF->setImportBookmarks(settings.importBookmark() == 1);
    importLog.debug(QStringLiteral("before add operation"));
    iQueue.addOperation(iImportPDF);
    importLog.debug(QStringLiteral("after add operation"));
}

void ImportWindowDelegate::prepareSources() {
    const QString typed = iWindow->txtImportFile->text();
    iUsed = areOthersThanTyped() ? *iSources : ImportSources{{typed}, {}};
    iMerge.reset();
    if (iUsed.areMerged()) {
        iMerge = std::make_shared<DocumentMerge>(iUsed, iPasswords);
        iImportPDF->setMakeDocument(
            [merge = iMerge](const auto& stopped) { return merge->make(stopped); });
        iWindow->lblInfo->setText(needsOffice() ? tr("LibreOffice is making the pages…")
                                                : tr("Preparing the document…"));
    } else if (iPasswords.contains(typed)) {
        OpenedPDF document;
        document.password = iPasswords[typed];
        iImportPDF->setDocument(std::move(document));
    }
}

bool ImportWindowDelegate::needsOffice() const {
    const QStringList& files = iUsed.documents;
    return std::any_of(files.begin(), files.end(), [this](const QString& file) {
        return OfficeDocument::isOne(file) && !iUsed.converted.contains(file);
    });
}

void ImportWindowDelegate::anyThread_handleMSG(const Notification& message) {
    QMetaObject::invokeMethod(
        this, [this, userInfo = message.userInfo] { mainThread_handleMSG(userInfo); },
        Qt::QueuedConnection);
}

void ImportWindowDelegate::mainThread_handleMSG(const QVariantMap& userInfo) {
    if (iWindow->lblInfo->isHidden())
        return;
    const int page = userInfo[QStringLiteral("pageIndex")].toInt();
    const int pages = userInfo[QStringLiteral("totalPage")].toInt();
    //: %1 is the page that is worked at, %2 the number of pages.
    iWindow->lblInfo->setText(tr("Importing:%1/%2").arg(page).arg(pages));
    iJob.show(pages > 0 ? double(page) / pages : 0);
    iWindow->lblTimeLeft->setText(iJob.text());
}

void ImportWindowDelegate::importDidFinish(const std::shared_ptr<ImportPDFOperation>& operation) {
    // Ignores an operation that was cancelled for a newer one.
    if (!operation || operation != iImportPDF)
        return;
    importLog.debug(QStringLiteral("import pdf isFinished."));
    iFailures = localTexts(operation->failures());
    enableButtons(true);
    if (operation->book().hasDrawnPages()) {
        importLog.debug(QStringLiteral("import pdf ok..."));
        iBook = operation->book();
        takeMerged();
        iJob.end(endNotice(true));
        reportFailedPages();
        storePageSize();
        iIsImporting = false;
        endSheet(1);
        return;
    }
    if (const QString file = lockedDocument(*operation); !file.isEmpty()) {
        iJob.end({});
        const bool wasWrong = std::exchange(iAskedFor, file) == file;
        iPasswordWindow->ask(file, wasWrong);
        return; // the import goes on with the answer
    }
    importLog.warn(QStringLiteral("import pdf failed..."));
    iJob.end(operation->isCancelled() ? QString() : endNotice(false));
    if (!operation->isCancelled())
        showFailure(iFailures << nextStep(*operation));
    iIsImporting = false;
}

// A notification of the desktop, for users who look elsewhere.
QString ImportWindowDelegate::endNotice(bool isImported) const {
    const int files = int(iUsed.documents.size());
    if (files > 1)
        return isImported ? tr("%n file(s) were imported.", nullptr, files)
                          : tr("%n file(s) were not imported.", nullptr, files);
    const QString name = Files::lastPathComponent(iUsed.documents.front());
    //: A notification of the desktop; %1 is the name of a file.
    const QString done = tr("“%1” was imported.");
    //: A notification of the desktop; %1 is the name of a file.
    const QString failed = tr("“%1” was not imported.");
    return (isImported ? done : failed).arg(name);
}

// The document whose password would let the import go on.
QString ImportWindowDelegate::lockedDocument(const ImportPDFOperation& operation) const {
    if (operation.failureKind() != ErrorKind::pdfPassword || operation.isCancelled())
        return {};
    return iMerge ? iMerge->protectedDocument() : iWindow->txtImportFile->text();
}

void ImportWindowDelegate::takeMerged() {
    iMerged.reset();
    if (!iMerge)
        return;
    iUsed = iMerge->sources();
    iMerged = iMerge->document();
    iFailures = localTexts(iMerge->leftOut()) + iFailures;
}

// An empty path has no failure of its own that would make sense to users.
QString ImportWindowDelegate::nextStep(const ImportPDFOperation& operation) {
    if (iWindow->txtImportFile->text().isEmpty())
        iFailures.clear();
    switch (operation.failureKind().value_or(ErrorKind::pdfOpen)) {
    case ErrorKind::pdfFile:
    case ErrorKind::pdfOpen:
        return iFailures.isEmpty() ? tr("Choose a PDF document.") : tr("Choose another document.");
    case ErrorKind::pageMissing:
        return tr("Choose other pages or another document.");
    default:
        return tr("Try again, or choose another document.");
    }
}

void ImportWindowDelegate::onPasswordAction() {
    iPasswords[iAskedFor] = iPasswordWindow->txtPassword->text().toUtf8();
    iPasswordWindow->done(1);
    enableButtons(false);
    if (iMerge && iSources)
        iSources->converted = iMerge->sources().converted;
    startImport();
}

void ImportWindowDelegate::onNoPasswordAction() {
    iPasswords.remove(iAskedFor);
    iPasswordWindow->done(0);
    iIsImporting = false;
}

// The book lacks these pages, so the user must know which.
void ImportWindowDelegate::reportFailedPages() {
    const auto& failed = iBook.converter->failedPages();
    const auto told = std::min(failed.size(), maxPagesShown);
    for (const auto& page : std::span(failed).first(told))
        iFailures << tr("Page %1 could not be drawn: %2")
                         .arg(QString::number(page.page), page.reason.local());
    if (failed.size() > told)
        iFailures << tr("%n more page(s) could not be drawn.", nullptr, int(failed.size() - told));
    const auto& damaged = iBook.converter->damagedPages();
    std::size_t shown = 0;
    for (auto at = damaged.begin(); at != damaged.end() && shown < maxPagesShown; ++at, ++shown)
        iFailures << tr("Page %1 could not be drawn completely: %2")
                         .arg(QString::number(at->first), at->second.local());
    if (damaged.size() > shown)
        iFailures << tr("%n more page(s) could not be drawn completely.", nullptr,
                        int(damaged.size() - shown));
}

void ImportWindowDelegate::storePageSize() const {
    iBook.document->stopReader(); // no more queries follow
    auto& settings = AppSettings::shareInstance();
    settings.setPageSize(iBook.pageSize);
    settings.saveSettings();
}

Book ImportWindowDelegate::emptyBook() {
    Book book;
    book.pageSize = QSize(0, 0);
    return book;
}

void ImportWindowDelegate::showFailure(const QStringList& failures) {
    iWindow->lblFailure->setText(failures.join(u'\n'));
    iWindow->lblFailure->setVisible(!failures.isEmpty());
    iWindow->growToContent();
}

void ImportWindowDelegate::onCancelAction() {
    Log::system(QStringLiteral("cancel import pdf!!,%1").arg(iWindow->windowTitle()));
    enableButtons(true);
    if (iQueue.operationCount() > 0)
        iQueue.cancelAllOperations();
    else
        endSheet(0);
}

void ImportWindowDelegate::onBrowseFileAction() {
    openPanelDidEnd(iFilePanel(iWindow->txtImportFile->text(), {QStringLiteral("pdf")}));
}

// Cancelling keeps what was typed.
void ImportWindowDelegate::openPanelDidEnd(const std::optional<QString>& panelFile) {
    Log::system(QStringLiteral("die end,%1").arg(panelFile.value_or(QString())));
    if (panelFile)
        iWindow->txtImportFile->setText(*panelFile);
}

void ImportWindowDelegate::onOpenTheFileAction() {
    iOpenFile(iWindow->txtImportFile->text());
}
