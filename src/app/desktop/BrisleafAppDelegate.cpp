#include "app/desktop/BrisleafAppDelegate.h"

#include "app/AppSettings.h"
#include "app/MirelUtility.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "app/desktop/PreviewView.h"
#include "app/desktop/ResultBar.h"
#include "app/desktop/SettingsReset.h"
#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/BookXML.h"
#include "system/Bundle.h"
#include "system/Files.h"
#include "system/Folders.h"
#include "ui/FlashTemplateModel.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindowDelegate.h"
#include "ui/PagesWindowDelegate.h"
#include "ui/SelectTemplateWindowDelegate.h"
#include "ui/TemplateTexts.h"
#include "ui/ValueEditor.h"

#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <utility>

namespace {

constexpr Log appLog("BrisleafAppDelegate");

const QString settingsFileType = QStringLiteral("txt");
const QString helpFile = QStringLiteral("PDF to Folvero for mac Help/PDF to Folvero for Mac.pdf");

constexpr int blinkInterval = 330; // ms

const QString direction = QStringLiteral("RightToLeft");

} // namespace

void BrisleafAppDelegate::prepaireTheLog() const {
    const QString support = Folders::userApplicationSupport();
    const QString base =
        support.isNull() ? QStringLiteral("~/Library/Application Support/") : support;
    const QString path =
        Files::join(base, QStringLiteral("Tessamar/%1/%2.log")
                              .arg(QStringLiteral("Folvero"), QString::fromUtf16(APP_NAME)));
    const QString folder = QFileInfo(path).path();
    if (!QDir(folder).exists())
        QDir().mkpath(folder);
    Log::configure(Bundle::pathForResource(QStringLiteral("logging"), QStringLiteral("properties")),
                   {{QStringLiteral("log4cplus.appender.TessamarFileLog.File"), path}});
}

void BrisleafAppDelegate::makeFlashPreviewFolder() {
    iFlashPreviewFolder = iPreviewFolder.make();
    MirelUtility::makeDiractoryTrustByFlash(iFlashPreviewFolder);
}

void BrisleafAppDelegate::removeFlashPreviewFolder() {
    iPreviewFolder.remove();
}

void BrisleafAppDelegate::OnApplyChange() {
    iWindow->messages->hide();
    applyChange(SameBook);
}

void BrisleafAppDelegate::applyChange(PreviewedBook previewed) {
    iApplyChangeTimer.reset();
    iWindow->menu->showApplyImage(QStringLiteral("apply"));
    if (iFlashPreviewFolder.isEmpty())
        makeFlashPreviewFolder();
    try {
        publishPreview(previewed);
    } catch (const PlatformException& failure) {
        appLog.error(QStringLiteral("apply change :%1").arg(failure.reason()));
        iWindow->messages->showError(tr("The preview could not be brought up to date."),
                                     failure.message().local() + u'\n' +
                                         tr("Press “Apply” to try again."));
    }
}

void BrisleafAppDelegate::publishPreview(PreviewedBook previewed) {
    // Temporary files may have been cleaned up while the program runs.
    const Message failure = iPreviewFolder.restore();
    if (!failure.isNull())
        throw PlatformException(ErrorKind::previewFolder, failure);
    auto html = std::make_shared<HTMLConfigInfo>();
    html->setHTMLTitle(QStringLiteral("Preview"));
    FolveroOutput output(nullptr, iFlashTmpl, iFlashPreviewFolder, BookLayout::defaultPage);
    output.setHTMLConfig(html);
    Book book = iBook;
    book.pageSize = AppSettings::shareInstance().pageSize();
    // Otherwise each preview would copy a document that readers may download.
    book.document.reset();
    output.setBook(std::move(book));
    output.ouputTheBook();
    if (!output.publishErrors().isEmpty())
        throw PlatformException(
            ErrorKind::preview,
            {output.publishErrors().join(u'\n'), localTexts(output.publishMessages()).join(u'\n')});
    iWindow->webView->showFile(output.outputFileName(), previewed == OtherBook);
    if (!output.missingFiles().isEmpty())
        iWindow->messages->showError(tr("These files are missing. The book is shown without them."),
                                     output.missingFiles().join(u'\n') + u'\n' +
                                         tr("Choose others in the settings, or clear the fields."));
}

void BrisleafAppDelegate::previewCrashed(bool reloads) {
    if (!reloads)
        iWindow->messages->showError(tr("The preview has stopped working."),
                                     tr("Press F5 to load it again. Your book is not affected."));
}

void BrisleafAppDelegate::previewDemo() {
    const QString page =
        Bundle::pathForResource(QStringLiteral("index.html"), {}, QStringLiteral("Demo"));
    if (!page.isNull())
        iWindow->webView->showFile(page, true);
}

void BrisleafAppDelegate::valueWasEdited(const FlashTemplateProperty& property) {
    iIsDirectionChosen = iIsDirectionChosen || property.key() == direction;
    iHistory.recordEdits();
    showChangedSettings();
}

// Nothing is changed yet that could be applied.
void BrisleafAppDelegate::valueIsTried(FlashTemplateProperty& property, const QString& value) {
    const QString own = property.value();
    property.setValue(value);
    showSettings();
    property.setValue(own);
}

void BrisleafAppDelegate::showSettings() {
    const auto settings =
        BookXML::make(iFlashTmpl.get(), {}, AppSettings::shareInstance().pageSize());
    iWindow->webView->applySettings(BookXML::text(*settings, pugi::format_raw));
}

// What the open page cannot show waits until the change is applied.
void BrisleafAppDelegate::showChangedSettings() {
    showSettings();
    tmplPpertyValueChanged();
}

void BrisleafAppDelegate::tmplPpertyValueChanged() {
    if (iApplyChangeTimer)
        return;
    iApplyChangeTimer = std::make_unique<QTimer>();
    iApplyChangeTimer->setInterval(blinkInterval);
    connect(iApplyChangeTimer.get(), &QTimer::timeout, this, &BrisleafAppDelegate::onTimerEvent);
    iApplyChangeTimer->start();
}

void BrisleafAppDelegate::onTimerEvent() {
    QAction& button = *iWindow->menu->toolBarItemApplyChange;
    const int phase = (button.data().toInt() + 1) % 3;
    button.setData(phase);
    iWindow->menu->showApplyImage(QStringLiteral("apply%1").arg(phase + 1));
}

void BrisleafAppDelegate::updateTmplPropertyTip() {
    const QModelIndex current = iWindow->outlineView->currentIndex();
    if (!current.isValid())
        return;
    const FlashTemplateProperty* property = FlashTemplateModel::item(current);
    iWindow->toolTipBox->setTitle(TemplateTexts::shown(property->title()));
    QStringList texts{TemplateTexts::shown(property->desc()), ValueEditor::hint(*property)};
    texts.removeAll(QString());
    iWindow->toolTip->setPlainText(texts.join(QStringLiteral("\n\n")));
}

void BrisleafAppDelegate::valuesWereUndone() {
    iOutline->reloadValues();
    showChangedSettings();
}

void BrisleafAppDelegate::OnImportPDF() {
    if (iProject->mayReplacePages())
        showImportSheet();
}

void BrisleafAppDelegate::showImportSheet() {
    iNotUsed.clear();
    iImportWindow->setRightToLeft(iIsDirectionChosen
                                      ? std::optional(StringUtil::valueAsBool(
                                            iFlashTmpl->propertyValueFor(direction, QString())))
                                      : std::nullopt);
    iImportWindow->beginSheet([this](int returnCode) { importWindowDidEnd(returnCode); });
}

void BrisleafAppDelegate::importFile(const QString& path) {
    if (!iProject->mayReplacePages())
        return;
    showImportSheet();
    iImportWindow->importFiles({path});
}

void BrisleafAppDelegate::importWindowDidEnd(int returnCode) {
    if (returnCode != 1) {
        iProject->importWasCancelled();
        return;
    }
    iFlashTmpl->setPropertyValue(QStringLiteral("pageWidth"),
                                 QString::number(iImportWindow->pageWidth()));
    iFlashTmpl->setPropertyValue(QStringLiteral("pageHeight"),
                                 QString::number(iImportWindow->pageHeight()));
    iBook = iImportWindow->book();
    // Or it would keep the earlier book, and the folder with its pages, until the next publish.
    iOuputWindow->setBook(iBook);
    takeDirectionOfDocument();
    takeSizeOfDocument();
    iHistory.snapshotValues();
    iOutline->reloadValues();
    iWindow->messages->hide();
    iWindow->result->hide();
    iDocument = iProject->takeImport();
    QStringList leftOut = iImportWindow->failures();
    leftOut << std::exchange(iNotUsed, {});
    if (!leftOut.isEmpty())
        iWindow->messages->showError(tr("Not everything could be imported."), leftOut.join(u'\n'));
    applyChange(OtherBook);
}

void BrisleafAppDelegate::OnExportFlipBook() {
    iWindow->result->hide();
    iOuputWindow->setFlashTmpl(iFlashTmpl);
    iOuputWindow->setBook(iBook);
    iOuputWindow->setDocument(iDocument, iWindow->documentName());
    iOuputWindow->beginSheet();
    iProject->proposePublish();
}

void BrisleafAppDelegate::OnExportTmplSettings() {
    if (!iFlashTmpl)
        return;
    const std::optional<QString> file =
        FileToSave(iQuestions.fileToSave, iQuestions.replace)
            .ask(QStringLiteral("tmplSetting.txt"), settingsFileType,
                 [](const QString& typed) { return !Files::pathExtension(typed).isEmpty(); });
    if (!file)
        return;
    Message cause;
    if (!iFlashTmpl->exportPropertiesSettingsTo(*file, &cause))
        iWindow->messages->showError(tr("The settings were not saved to %1.").arg(*file),
                                     cause.local());
}

// Cancelling refreshes the preview, too.
void BrisleafAppDelegate::OnImportTmplSettings() {
    if (!iFlashTmpl)
        return;
    const QString file = iQuestions.fileToOpen({}, {settingsFileType}).value_or(QStringLiteral(""));
    iWindow->messages->hide();
    const int loaded = iFlashTmpl->importPropertiesSettingsFrom(file);
    if (!file.isEmpty() && loaded == 0)
        iWindow->messages->showError(tr("The settings were not loaded."),
                                     (QFileInfo(file).isReadable()
                                          ? tr("The file %1 contains no settings. Choose one that "
                                               "was made with “Save look”.")
                                          : tr("The file %1 cannot be read."))
                                         .arg(file));
    iIsDirectionChosen = iIsDirectionChosen || loaded > 0;
    //: Stands in "Undo %1".
    iHistory.recordLook(tr("loading of settings"));
    iOutline->reloadValues();
    applyChange(SameBook);
}

void BrisleafAppDelegate::onSelectTemplate() {
    const QString style = iFlashTmpl->styleName().isEmpty() ? iFlashTmpl->defaultSytleName()
                                                            : iFlashTmpl->styleName();
    iSelecteTmplWindow->prepairToTmpl(iFlashTmpl->tmplName(),
                                      FlashTemplate::styleFolder(iFlashTmpl->tmplName(), style));
    iSelecteTmplWindow->beginSheet([this](int returnCode) { selectTmplWindowDidEnd(returnCode); });
}

void BrisleafAppDelegate::selectTmplWindowDidEnd(int returnCode) {
    const QString shot = returnCode == 1 ? iSelecteTmplWindow->selectedStyle() : QString();
    if (shot.isNull())
        return;
    chooseStyle(QFileInfo(shot).path());
}

void BrisleafAppDelegate::chooseStyle(const QString& styleFolder) {
    const QString name = QFileInfo(styleFolder).dir().dirName();
    iIsDirectionChosen = iHistory.isEdited(direction);
    iWindow->messages->hide();
    //: Stands in "Undo %1".
    iHistory.changeTemplate(name, styleFolder, tr("choice of template"));
    showTemplate();
    applyChange(SameBook);
}

void BrisleafAppDelegate::OnOpenHelp() {
    //: The help in your language; keep the path as it is until there is one.
    const QString named = tr("PDF to Folvero for mac Help/PDF to Folvero for Mac.pdf");
    const QString local = Bundle::pathForResource(named, {});
    const QString file = local.isNull() ? Bundle::pathForResource(helpFile, {}) : local;
    if (file.isNull())
        iWindow->messages->showError(tr("The help cannot be opened."),
                                     tr("The file %1 is missing.").arg(helpFile));
    else
        iQuestions.open(file);
}

void BrisleafAppDelegate::takeDirectionOfDocument() {
    const QString own = iBook.rightToLeft ? QStringLiteral("YES") : iOwnDirection;
    iDefaults.setOfDocument(direction, own);
    if (!iIsDirectionChosen)
        iFlashTmpl->setPropertyValue(direction, own);
}

// Other templates keep it.
void BrisleafAppDelegate::takeSizeOfDocument() {
    for (const QString& key : {QStringLiteral("pageWidth"), QStringLiteral("pageHeight")})
        iDefaults.setOfDocument(key, iFlashTmpl->propertyValueFor(key, {}));
}

void BrisleafAppDelegate::templateWasLoaded() {
    iOwnDirection = iFlashTmpl->propertyValueFor(direction, QStringLiteral("NO"));
    takeDirectionOfDocument();
    iDefaults.read(*iFlashTmpl);
}

// The document may have come after the choice that is undone.
void BrisleafAppDelegate::templateWasUndone() {
    takeDirectionOfDocument();
    iHistory.snapshotValues();
    showTemplate();
    applyChange(SameBook);
}

void BrisleafAppDelegate::showTemplate() {
    const QString name = iFlashTmpl->tmplName();
    iOutline->reloadData();
    iWindow->outlineView->expandAll();
    iWindow->btnFloat->setText(TemplateTexts::templateName(name));
    iWindow->btnFloat->setIcon(
        QIcon(SelectTemplateWindowDelegate::iconFileIn(FlashTemplate::tmplPathForName(name))));
    if (!iFlashTmpl->loadError().isNull())
        iWindow->messages->showError(
            tr("The template “%1” is damaged.").arg(TemplateTexts::templateName(name)),
            iFlashTmpl->loadMessage().local());
}
