#include "ui/OutputWindowDelegate.h"

#include "app/AppSettings.h"
#include "app/PublishedBooks.h"
#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/EmbedSnippet.h"
#include "output/ExistingBook.h"
#include "output/FolveroOutputApp.h"
#include "pages/PageFilesOperation.h"
#include "pdf/PDFDocument.h"
#include "ui/OutputWindow.h"
#include "ui/PageListText.h"
#include "ui/Panels.h"
#include "ui/PublishProgress.h"
#include "ui/PublishProposal.h"
#include "ui/ReadingSample.h"
#include "webbook/FolveroOutputWeb.h"

#include <QButtonGroup>
#include <QClipboard>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <exception>
#include <utility>

namespace {

constexpr Log publishLog("OutputWindowDelegate");

constexpr int progressInterval = 100; // ms
constexpr int filesBesidePages = 10;
constexpr std::size_t manyPages = 50; // take a while to write
constexpr qsizetype maxFilesShown = 3;

// Runs a publisher on another thread.
class WriteBook : public Operation {
public:
    explicit WriteBook(FolveroOutput& output) : iOutput(output) {}

    void main() override {
        try {
            iOutput.ouputTheBook();
        } catch (...) {
            failure = std::current_exception();
        }
    }

    std::exception_ptr failure;

private:
    FolveroOutput& iOutput;
};

// A permission that can't be read is not given.
bool allowsText(const PDFDocument& document) {
    try {
        return document.viewing().allowsText;
    } catch (const PlatformException& failure) {
        publishLog.warn(failure.reason());
        return false;
    }
}

} // namespace

OutputWindowDelegate::OutputWindowDelegate(QWidget* parent)
    : iWindow(new OutputWindow(parent)), iQuestions{Panels::chooseFolder, Panels::askToReplace,
                                                    Panels::askToOpen,    Panels::open,
                                                    Panels::showMessage,  Panels::askForText} {
    if (!parent)
        connect(this, &QObject::destroyed, iWindow, &QObject::deleteLater);
    awakeFromNib();
    for (const auto* field :
         {iWindow->txtOutputFolder, iWindow->txtOutputName, iWindow->txtTitle, iWindow->txtAddress})
        connect(field, &QLineEdit::textChanged, this, &OutputWindowDelegate::showState);
    connect(iWindow->mOutputType, &QButtonGroup::idToggled, this, &OutputWindowDelegate::showState);
    connect(iWindow->btnCopyEmbed, &QPushButton::clicked, this, &OutputWindowDelegate::onCopyEmbed);
    connect(iWindow->btnPublish, &QPushButton::clicked, this, &OutputWindowDelegate::onPublish);
    connect(iWindow->btnCancel, &QPushButton::clicked, this, &OutputWindowDelegate::onCancel);
    connect(iWindow, &OutputWindow::closeRequested, this, &OutputWindowDelegate::onCancel);
    connect(iWindow->btnSelectFolder, &QPushButton::clicked, this,
            &OutputWindowDelegate::onSelectFolder);
    connect(iWindow->btnOpenFolder, &QPushButton::clicked, this,
            &OutputWindowDelegate::onOpenFolder);
}

OutputWindowDelegate::~OutputWindowDelegate() = default;

void OutputWindowDelegate::awakeFromNib() {
    const auto& settings = AppSettings::shareInstance();
    iWindow->txtOutputFolder->setText(settings.lastOutputFileFolder());
    iWindow->txtOutputName->setText(settings.lastOutputFileName());
    iWindow->txtTitle->setText(settings.lastOutputFileTitle());
    auto* chosen = iWindow->mOutputType->button(settings.outputType());
    (chosen ? chosen : iWindow->mOutputType->button(OutputWindow::htmlBook))->setChecked(true);
}

void OutputWindowDelegate::beginSheet() {
    PublishProposal::fill(*iWindow, iDocument, iDocumentName,
                          std::exchange(iIsOtherDocument, false));
    showState();
    // Not on the button to publish, which Return presses from everywhere.
    iWindow->mOutputType->checkedButton()->setFocus();
    iWindow->open();
}

// The first time it is unknown which document the last run's texts belong to.
void OutputWindowDelegate::setDocument(const QString& path, const QString& name) {
    iIsOtherDocument = iIsOtherDocument || iDocumentName.isNull() || path != iDocument;
    iDocument = path;
    iDocumentName = name;
}

// Folder and name are required.
void OutputWindowDelegate::showState() {
    iWindow->btnPublish->setEnabled(!iWindow->txtOutputFolder->text().trimmed().isEmpty() &&
                                    !iWindow->txtOutputName->text().trimmed().isEmpty());
    iWindow->showWebBookParts(OutputWindow::isWeb(iWindow->mOutputType->checkedId()));
    iWindow->txtEmbed->setText(EmbedSnippet::html(iWindow->txtTitle->text(),
                                                  AppSettings::shareInstance().pageSize(),
                                                  pageName(), pageAddress()));
    iWindow->txtEmbed->setCursorPosition(0);
}

void OutputWindowDelegate::endSheet(int returnCode) {
    iOutput.reset();
    iWindow->done(returnCode);
}

bool OutputWindowDelegate::isWeb() {
    return OutputWindow::isWeb(AppSettings::shareInstance().outputType());
}

void OutputWindowDelegate::saveChoices() const {
    auto& settings = AppSettings::shareInstance();
    settings.setLastOutputFileFolder(iWindow->txtOutputFolder->text());
    settings.setLastOutputFileName(iWindow->txtOutputName->text());
    settings.setLastOutputFileTitle(iWindow->txtTitle->text());
    settings.setOutputType(iWindow->mOutputType->checkedId());
    settings.saveSettings();
}

QString OutputWindowDelegate::pageName() const {
    return iWindow->txtOutputName->text() + QStringLiteral(".html");
}

// Empty while there is none, or no valid one.
QString OutputWindowDelegate::pageAddress() const {
    const auto address = BookAddress::from(iWindow->txtAddress->text());
    return address ? address->page(pageName()) : QString();
}

// The application's name comes from the same text, with another extension.
std::unique_ptr<FolveroOutput> OutputWindowDelegate::makeOutput() {
    const QString folder = iWindow->txtOutputFolder->text();
    const QString name = pageName();
    iNewFolder.clear();
    if (AppSettings::shareInstance().outputType() == OutputWindow::application)
        return std::make_unique<FolveroOutputApp>(iBook.pageSource, iFlashTmpl, folder, name);
    const bool isNew = !QFileInfo::exists(folder);
    errno = 0;
    iFolderFailure = QDir().mkpath(folder) ? QString() : Message::ofLastSystemError().local();
    iNewFolder = isNew ? folder : QString();
    if (!isWeb())
        return std::make_unique<FolveroOutput>(iBook.pageSource, iFlashTmpl, folder, name);
    auto output = std::make_unique<FolveroOutputWeb>(iBook.pageSource, iFlashTmpl, folder, name);
    output->setTitle(AppSettings::shareInstance().lastOutputFileTitle());
    output->setSingleFile(AppSettings::shareInstance().outputType() ==
                          OutputWindow::webBookInOneFile);
    output->setAddress(BookAddress::from(iWindow->txtAddress->text()));
    output->setOpenPages(ReadingSample(iWindow->txtSample->text(), iBook).pages());
    return output;
}

// If the user declines or cancels, the sheet stays open for other choices.
void OutputWindowDelegate::onPublish() {
    if (iProgress || !areWebFieldsValid())
        return;
    saveChoices();
    iOutput = makeOutput();
    if (const Message missing = iOutput->missingPart(); !missing.isNull()) {
        iQuestions.showMessage(tr("The book was not published"), missing.local());
        endSheet(1);
        return;
    }
    const QString lost = overwriteWarning(*iOutput);
    if (!lost.isEmpty() && !iQuestions.replace(tr("Replace what is already there?"), lost))
        return;
    if (!askForText(*iOutput)) {
        goBackToSheet();
        return;
    }
    iJob.begin();
    const PageFiles kind = isWeb() ? PageFiles::web : PageFiles::classic;
    if (iBook.pageSource && !iBook.pageSource->pagesWithout(kind).empty())
        makePageFiles(kind);
    else
        publishAndEnd();
}

// A problem is shown in the sheet.
bool OutputWindowDelegate::areWebFieldsValid() const {
    if (!OutputWindow::isWeb(iWindow->mOutputType->checkedId()))
        return true;
    const QString address = iWindow->txtAddress->text().trimmed();
    if (!address.isEmpty() && !BookAddress::from(address)) {
        iWindow->showProblem(*iWindow->txtAddress,
                             tr("The address must be that of a folder or page, such as "
                                "https://example.org/book/, without “?” and “#”."));
        return false;
    }
    const QString problem = ReadingSample(iWindow->txtSample->text(), iBook).problem();
    if (!problem.isNull())
        iWindow->showProblem(*iWindow->txtSample, problem);
    return problem.isNull();
}

// A web book contains the document's text unless the document forbids copying it. False when the
// user cancels.
bool OutputWindowDelegate::askForText(FolveroOutput& output) const {
    auto* const web = dynamic_cast<FolveroOutputWeb*>(&output);
    if (!web || !iBook.document || allowsText(*iBook.document))
        return true;
    const auto answer = iQuestions.includeText(tr("Include the document's text?"),
                                               tr("The document forbids copying its text. Without "
                                                  "text the book can't be searched, and its "
                                                  "words can't be selected or read aloud."));
    web->setIncludesForbiddenText(answer.value_or(false));
    return answer.has_value();
}

// Of pages that were imported for another kind of book. Takes as long as an import.
void OutputWindowDelegate::makePageFiles(PageFiles kind) {
    iProgress = new PublishProgress(iWindow, iJob, PublishProgress::atOnce);
    iProgress->showPages(0, int(iBook.pageSource->pagesWithout(kind).size()));
    connect(iProgress, &QProgressDialog::canceled, this, [this] { iQueue.cancelAllOperations(); });
    const auto operation = std::make_shared<PageFilesOperation>(iBook.pageSource, kind);
    operation->setProgress([this](int done, int total) {
        const auto show = [=, this] {
            if (iProgress)
                iProgress->showPages(done, total);
        };
        QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
    });
    operation->setFinishedObserver([this, weak = std::weak_ptr<PageFilesOperation>(operation)] {
        QMetaObject::invokeMethod(
            this, [this, operation = weak.lock()] { pageFilesAreMade(operation); },
            Qt::QueuedConnection);
    });
    iQueue.addOperation(operation);
}

// The progress window is closed before a question: it would stay open under that.
void OutputWindowDelegate::pageFilesAreMade(const std::shared_ptr<PageFilesOperation>& operation) {
    const bool isCancelled = iProgress && iProgress->wasCanceled();
    if (isCancelled || !operation->failure().isNull())
        delete iProgress;
    if (isCancelled) {
        goBackToSheet();
        return;
    }
    if (!operation->failure().isNull()) {
        iJob.end(tr("The book was not published."));
        iQuestions.showMessage(tr("The book was not published"), operation->failure().local());
        endSheet(1);
        return;
    }
    publishAndEnd();
}

// With what the user has typed, and without anything that was made.
void OutputWindowDelegate::goBackToSheet() {
    iJob.end({});
    iOutput.reset();
    if (!iNewFolder.isEmpty())
        QDir().rmdir(iNewFolder);
    iWindow->activateWindow();
}

void OutputWindowDelegate::publishAndEnd() {
    Message cause;
    iResult.reset();
    try {
        publish(*iOutput);
    } catch (const PlatformException& failure) {
        publishLog.error(QStringLiteral("publish error:%1").arg(failure.reason()));
        cause = failure.message();
    }
    if (iOutput->wasCancelled()) {
        goBackToSheet();
        return;
    }
    iJob.end(cause.isNull() ? QString() : tr("The book was not published."));
    endSheet(1);
    if (!cause.isNull())
        Q_EMIT publishFailed(cause.local());
    else if (iResult)
        Q_EMIT bookPublished(*iResult);
}

// No warning about the book of the same document: republishing is meant to replace it.
QString OutputWindowDelegate::overwriteWarning(const FolveroOutput& output) const {
    QStringList lost;
    if (const QStringList files = output.foreignFiles(); !files.isEmpty())
        lost << tr("This is not part of a book and would be lost:") << files.mid(0, maxFilesShown)
             << QStringList(files.size() > maxFilesShown, QStringLiteral("…"));
    const auto own = PublishedBooks::of(iDocument);
    const QString where = place(output);
    const QString title = output.titleOfExistingBook();
    const bool isBook = !title.isNull() || ExistingBook::isIn(output.saveToFolder());
    if (isBook && !(own && own->place == where)) {
        lost << (title.isEmpty() ? tr("The book in %1 would be lost.").arg(where)
                                 : tr("The book “%1” in %2 would be lost.").arg(title, where));
    }
    return lost.join(u'\n');
}

QString OutputWindowDelegate::place(const FolveroOutput& output) {
    const bool isApplication =
        AppSettings::shareInstance().outputType() == OutputWindow::application;
    return QDir::cleanPath(isApplication ? output.outputFileName() : output.saveToFolder());
}

// Returns when the book is written, while the sheet shows how far that is. A publisher asks between
// any two files whether it was cancelled, which is taken for its progress.
void OutputWindowDelegate::write(FolveroOutput& output) {
    std::atomic<bool> isCancelled = false;
    std::atomic<int> files = 0;
    const std::size_t pages = iBook.pageSource ? iBook.pageSource->pages().size() : 0;
    const int total = int(isWeb() ? 2 * pages : pages) + filesBesidePages;
    output.setCancelled([&] {
        ++files;
        return isCancelled.load();
    });
    const auto operation = std::make_shared<WriteBook>(output);
    QEventLoop loop;
    operation->setFinishedObserver(
        [&loop] { QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection); });
    if (!iProgress)
        iProgress = new PublishProgress(
            iWindow, iJob, pages < manyPages ? PublishProgress::whenSlow : PublishProgress::atOnce);
    connect(iProgress, &QProgressDialog::canceled, &loop, [&] { isCancelled = true; });
    const auto show = [&] {
        if (iProgress)
            iProgress->showFiles(std::min(1.0, double(files) / total));
    };
    show();
    QTimer timer;
    connect(&timer, &QTimer::timeout, &loop, show);
    timer.start(progressInterval);
    iQueue.addOperation(operation);
    loop.exec();
    // Before its end only where the program ends.
    isCancelled = isCancelled || !operation->isFinished();
    iQueue.waitFor(-1);
    delete iProgress;
    if (operation->failure)
        std::rethrow_exception(operation->failure);
}

void OutputWindowDelegate::publish(FolveroOutput& output) {
    auto html = std::make_shared<HTMLConfigInfo>();
    html->setHTMLTitle(AppSettings::shareInstance().lastOutputFileTitle().toHtmlEscaped());
    output.setHTMLConfig(html);
    Book book = iBook;
    book.pageSize = AppSettings::shareInstance().pageSize();
    output.setBook(std::move(book));
    write(output);
    if (output.wasCancelled())
        return;
    const QString result = output.outputFileName();
    const bool isWritten = output.publishErrors().isEmpty() && QFileInfo::exists(result);
    //: A notification of the desktop, for users who look elsewhere.
    iJob.end(isWritten ? tr("The book was published.") : tr("The book was not published."));
    if (!isWritten) {
        const QString cause = output.publishErrors().isEmpty()
                                  ? tr("The folder %1 could not be made: %2")
                                        .arg(QFileInfo(result).path(), iFolderFailure)
                                  : localTexts(output.publishMessages()).join(u'\n');
        iQuestions.showMessage(
            tr("The book was not published"),
            cause + u'\n' +
                tr("Choose another folder, or make room in this one, and publish again: what you "
                   "have typed is kept."));
        return;
    }
    const QString address = isWeb() ? pageAddress() : QString();
    iResult = {result, iWindow->txtTitle->text(), address,
               address.isEmpty() ? QString() : iWindow->txtEmbed->text()};
    PublishProposal::remember(*iWindow, iDocument, place(output));
    if (const auto& missing = output.missingPages(); !missing.empty()) {
        iQuestions.showMessage(
            tr("The book is not complete"),
            tr("These pages have no picture and stay empty: %1. If the document itself is sound, "
               "import it again, then publish once more.")
                .arg(PageListText::of(missing)));
    }
    if (!output.missingFiles().isEmpty()) {
        iQuestions.showMessage(
            tr("These files are missing. The book was published without them."),
            output.missingFiles().join(u'\n') + u'\n' +
                tr("Choose others in the settings, or clear the fields, and publish again."));
    }
    if (const Message reason = output.documentLeftOut(); !reason.isNull()) {
        iQuestions.showMessage(
            tr("Readers can't download the document"),
            //: %1 is a reason, such as "it opens with a password only"
            tr("The settings offer it for download, but %1.").arg(reason.local()));
    }
    if (iQuestions.openResult(tr("Open the result files?"), tr("Publish finished! Open the it?")))
        iQuestions.open(result);
}

void OutputWindowDelegate::onCancel() {
    if (!iProgress)
        endSheet(0);
}

void OutputWindowDelegate::onSelectFolder() {
    //: The button of a panel that asks for a folder.
    openPanelDidEnd(iQuestions.folder(tr("Choose folder")));
}

// Cancelling keeps what was typed.
void OutputWindowDelegate::openPanelDidEnd(const std::optional<QString>& panelFile) {
    publishLog.debug(QStringLiteral("die end,%1").arg(panelFile.value_or(QString())));
    if (panelFile)
        iWindow->txtOutputFolder->setText(*panelFile);
}

void OutputWindowDelegate::onOpenFolder() {
    iQuestions.open(iWindow->txtOutputFolder->text());
}

void OutputWindowDelegate::onCopyEmbed() {
    QGuiApplication::clipboard()->setText(iWindow->txtEmbed->text());
    // Shows that the text was copied.
    iWindow->txtEmbed->setFocus();
    iWindow->txtEmbed->selectAll();
}
