#include "ui/OutputWindowDelegate.h"

#include "app/AppSettings.h"
#include "output/EmbedSnippet.h"
#include "output/FolveroOutputApp.h"
#include "output/FolveroOutputWeb.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "platform/PlatformException.h"
#include "ui/OutputWindow.h"
#include "ui/Panels.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QStandardPaths>

namespace {

const Log& logger() {
    static const Log log("OutputWindowDelegate");
    return log;
}

constexpr int progressWidth = 340;

// Closes only with the run that it belongs to. Its bar is too low for a text.
std::unique_ptr<QProgressDialog> progressWindow(QWidget* parent) {
    auto dialog = std::make_unique<QProgressDialog>(parent);
    constexpr int patienceMilliseconds = 400;
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setMinimumDuration(patienceMilliseconds);
    dialog->setMinimumWidth(progressWidth);
    dialog->setAutoReset(false);
    dialog->setAutoClose(false);
    auto* bar = new QProgressBar;
    bar->setTextVisible(false);
    dialog->setBar(bar);
    return dialog;
}

void showProgress(QProgressDialog& dialog, int done, int total) {
    dialog.setLabelText(OutputWindowDelegate::tr("Making the web book… %1%")
                            .arg(total > 0 ? 100LL * done / total : 0));
    dialog.setMaximum(total);
    dialog.setValue(done);
}

} // namespace

OutputWindowDelegate::OutputWindowDelegate(QWidget* parent)
    : iWindow(new OutputWindow(parent)),
      iQuestions{Panels::chooseFolder, Panels::askToOpen, Panels::open, Panels::tell} {
    if (!parent)
        connect(this, &QObject::destroyed, iWindow, &QObject::deleteLater);
    awakeFromNib();
    for (const auto* field : {iWindow->txtOutputFolder, iWindow->txtOutputName, iWindow->txtTitle})
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
    proposeTexts();
    showState();
    iWindow->open();
}

// What most people would type, for a book that nobody has published before. Another document gets
// other proposals: it must not end up in the folder of the one before. What the user has typed
// stays.
void OutputWindowDelegate::proposeTexts() {
    const auto propose = [](QLineEdit* field, QString& proposed, const QString& text) {
        if (field->text().isEmpty() || field->text() == proposed)
            field->setText(text);
        proposed = text;
    };
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString parent = QFileInfo::exists(documents) ? documents : QDir::homePath();
    propose(iWindow->txtOutputFolder, iProposedFolder, Files::join(parent, iDocumentName));
    propose(iWindow->txtTitle, iProposedTitle, iDocumentName);
    if (iWindow->txtOutputName->text().isEmpty())
        iWindow->txtOutputName->setText(QStringLiteral("index"));
}

// Without a folder or a name there is no telling where the book would end up.
void OutputWindowDelegate::showState() {
    iWindow->btnPublish->setEnabled(!iWindow->txtOutputFolder->text().trimmed().isEmpty() &&
                                    !iWindow->txtOutputName->text().trimmed().isEmpty());
    iWindow->showWebBookParts(iWindow->mOutputType->checkedId() == OutputWindow::webBook);
    const auto& settings = AppSettings::shareInstance();
    const EmbedSnippet snippet(iWindow->txtTitle->text(),
                               {settings.PageWidth(), settings.PageHeight()}, pageName());
    iWindow->txtEmbed->setText(snippet.html());
    iWindow->txtEmbed->setCursorPosition(0);
}

void OutputWindowDelegate::endSheet(int returnCode) {
    iWindow->done(returnCode);
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

// The application takes its name from the same text: it replaces the ending.
std::unique_ptr<FolveroOutput> OutputWindowDelegate::makeOutput() {
    const QString folder = iWindow->txtOutputFolder->text();
    const QString name = pageName();
    if (AppSettings::shareInstance().outputType() == OutputWindow::application)
        return std::make_unique<FolveroOutputApp>(iFlashPageSource, iFlashTmpl, folder, name);
    if (!QFileInfo::exists(folder))
        QDir().mkdir(folder);
    if (AppSettings::shareInstance().outputType() == OutputWindow::webBook)
        return makeWebOutput(folder, name);
    return std::make_unique<FolveroOutput>(iFlashPageSource, iFlashTmpl, folder, name);
}

// Pages are drawn once more, which takes as long as an import.
std::unique_ptr<FolveroOutput> OutputWindowDelegate::makeWebOutput(const QString& folder,
                                                                   const QString& name) {
    auto output = std::make_unique<FolveroOutputWeb>(iFlashPageSource, iFlashTmpl, folder, name);
    output->setTitle(AppSettings::shareInstance().lastOutputFileTitle());
    output->setSingleFile(iWindow->chkSingleFile->isChecked());
    output->setProgress([this](int done, int total) { showProgress(*iProgress, done, total); });
    output->setCancelled([this] {
        QCoreApplication::processEvents();
        return iProgress->wasCanceled();
    });
    return output;
}

void OutputWindowDelegate::onPublish() {
    saveChoices();
    {
        const auto output = makeOutput();
        try {
            publish(*output);
        } catch (const PlatformException& failure) {
            logger().error(QStringLiteral("publish error:%1").arg(failure.reason()));
        }
    }
    endSheet(1);
}

// The progress window ends with the run: it would stay open under the question that follows.
void OutputWindowDelegate::run(FolveroOutput& output) {
    const auto end = qScopeGuard([this] { iProgress.reset(); });
    iProgress = progressWindow(iWindow);
    showProgress(*iProgress, 0, 1);
    output.ouputTheBook();
}

void OutputWindowDelegate::publish(FolveroOutput& output) {
    auto html = std::make_shared<HTMLConfigInfo>();
    html->setHTMLTitle(AppSettings::shareInstance().lastOutputFileTitle().toHtmlEscaped());
    output.setHTMLConfig(html);
    output.setFlashPagesAnnotations(iFlashPagesAnnotations);
    output.setFlashOutline(iFlashOutline);
    run(output);
    if (output.wasCancelled())
        return;
    const QString result = output.outputFileName();
    if (!output.publishErrors().isEmpty() || !QFileInfo::exists(result)) {
        const QString cause =
            output.publishErrors().isEmpty()
                ? tr("The folder %1 could not be made.").arg(QFileInfo(result).path())
                : localTexts(output.publishMessages()).join(u'\n');
        iQuestions.tell(tr("The book was not published"), cause);
        return;
    }
    if (const auto& missing = output.missingPages(); !missing.empty()) {
        QStringList pages;
        for (const int page : missing)
            pages << QString::number(page);
        iQuestions.tell(tr("The book is not complete"),
                        tr("The pictures of these pages have gone: %1. Import the document again, "
                           "then publish once more.")
                            .arg(pages.join(QStringLiteral(", "))));
    }
    if (iQuestions.openResult(tr("Open the result files?"), tr("Publish finished! Open the it?")))
        iQuestions.open(result);
}

void OutputWindowDelegate::onCancel() {
    endSheet(0);
}

void OutputWindowDelegate::onSelectFolder() {
    //: The button of a panel that asks for a folder.
    openPanelDidEnd(iQuestions.folder(tr("Choose folder")));
}

// A cancelled panel leaves what was typed.
void OutputWindowDelegate::openPanelDidEnd(const std::optional<QString>& panelFile) {
    logger().debug(QStringLiteral("die end,%1").arg(panelFile.value_or(QString())));
    if (panelFile)
        iWindow->txtOutputFolder->setText(*panelFile);
}

void OutputWindowDelegate::onOpenFolder() {
    iQuestions.open(iWindow->txtOutputFolder->text());
}

void OutputWindowDelegate::onCopyEmbed() {
    QGuiApplication::clipboard()->setText(iWindow->txtEmbed->text());
    // Shows that it was done.
    iWindow->txtEmbed->setFocus();
    iWindow->txtEmbed->selectAll();
}
