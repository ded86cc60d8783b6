#include "app/desktop/ProjectSession.h"

#include "app/desktop/BookCover.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "app/desktop/RecentFiles.h"
#include "app/desktop/ResultBar.h"
#include "app/desktop/SheetChoices.h"
#include "base/PlatformException.h"
#include "pages/Book.h"
#include "pdf/PictureFile.h"
#include "project/MergedDocument.h"
#include "project/ProjectFile.h"
#include "project/ProjectFiles.h"
#include "system/Files.h"
#include "system/PartFile.h"
#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/PagesWindowDelegate.h"
#include "util/PageRange.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QTimer>
#include <QUndoStack>
#include <algorithm>
#include <utility>

namespace {

const QString autosaveKey = QStringLiteral("autosaveSeconds");
constexpr int usualAutosaveSeconds = 60;

QStringList pathsOf(const std::vector<Project::File>& files) {
    QStringList paths;
    for (const Project::File& file : files)
        paths << file.path;
    return paths;
}

// That of the project, or of its documents before it is saved; null without any.
QString bookName(const QString& project, const QStringList& documents) {
    const QFileInfo named(project.isEmpty() ? documents.value(0) : project);
    if (named.filePath().isEmpty())
        return {};
    // Pictures are most often numbered, and their folder says what they show.
    const bool arePictures = project.isEmpty() && documents.size() > 1 &&
                             std::all_of(documents.begin(), documents.end(), PictureFile::isOne);
    return arePictures ? named.dir().dirName() : named.completeBaseName();
}

} // namespace

ProjectSession::ProjectSession(Program program, Questions questions)
    : iProgram(std::move(program)),
      iQuestions(std::move(questions)),
      iAutosave(std::make_unique<QTimer>()) {
    connectCommands();
    iProgram.pages.setReading(
        {[this] { return iMerged ? iMerged->converted() : ConvertedDocuments(); },
         [this](const QString& path) { return iProgram.import.passwordOf(path); }});
    iProgram.window.installEventFilter(this);
    constexpr int milliseconds = 1000;
    constexpr int mostSeconds = 3600;
    const int seconds = QSettings().value(autosaveKey, usualAutosaveSeconds).toInt();
    iAutosave->setInterval(std::clamp(seconds, 1, mostSeconds) * milliseconds);
    connect(iAutosave.get(), &QTimer::timeout, this, &ProjectSession::autosave);
    iAutosave->start();
}

ProjectSession::~ProjectSession() = default;

void ProjectSession::connectCommands() {
    const MainMenu& menu = *iProgram.window.menu;
    connect(menu.newProject, &QAction::triggered, this, &ProjectSession::onNew);
    connect(menu.openProject, &QAction::triggered, this, &ProjectSession::onOpen);
    connect(menu.saveProject, &QAction::triggered, this, &ProjectSession::onSave);
    connect(menu.saveProjectAs, &QAction::triggered, this, &ProjectSession::onSaveAs);
    connect(menu.arrangePages, &QAction::triggered, this, &ProjectSession::arrangePages);
    connect(&iProgram.edits, &QUndoStack::cleanChanged, this, &ProjectSession::updateTitle);
    connect(&iProgram.output, &QDialog::accepted, this, &ProjectSession::takePublish);
}

bool ProjectSession::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &iProgram.window || event->type() != QEvent::Close || mayLeave())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

bool ProjectSession::isModified() const {
    return iIsChanged || !iProgram.edits.isClean();
}

void ProjectSession::setModified() {
    iIsChanged = true;
    updateTitle();
}

void ProjectSession::setSaved() {
    iIsChanged = false;
    iArePagesSaved = true;
    iProgram.edits.setClean();
    iRecovery.remove();
    updateTitle();
}

void ProjectSession::updateTitle() {
    iProgram.window.setDocumentName(bookName(iPath, iDocuments));
    iProgram.window.setWindowModified(isModified());
}

// True when there is nothing to lose.
bool ProjectSession::mayLeave() {
    return !isModified() ||
           mayLose(tr("Save the changes to “%1”?"), tr("Without saving they are lost."));
}

bool ProjectSession::mayReplacePages() {
    const bool areArranged = !iPages.empty() || iDocuments.size() > 1;
    return iArePagesSaved || !areArranged ||
           mayLose(tr("Save the pages of “%1” first?"),
                   tr("The document that you import takes the place of the pages that you have "
                      "put together. Without saving they are lost."));
}

// question: with a place for the name.
bool ProjectSession::mayLose(const QString& question, const QString& information) {
    const auto answer =
        iQuestions.unsaved(question.arg(iProgram.window.documentName()), information);
    if (answer == Panels::Unsaved::save)
        return onSave();
    if (answer == Panels::Unsaved::discard)
        iRecovery.remove();
    return answer == Panels::Unsaved::discard;
}

void ProjectSession::onNew() {
    if (mayLeave())
        show({}, QStringLiteral(""));
}

void ProjectSession::onOpen() {
    if (!mayLeave())
        return;
    const auto path = iQuestions.fileToOpen(QFileInfo(iPath).path(), {ProjectFile::extension});
    if (path)
        load(*path);
}

void ProjectSession::open(const QString& path) {
    if (mayLeave())
        load(path);
}

void ProjectSession::load(const QString& path) {
    const QString whole = QFileInfo(path).absoluteFilePath();
    const QString failed = tr("The project was not opened.");
    try {
        const auto located =
            ProjectFiles::locate(ProjectFile::read(whole), QFileInfo(whole).path());
        if (!located.missingDocuments.isEmpty()) {
            showError(failed, localTexts(located.missingDocuments).join(u'\n'));
            return;
        }
        iWarnings = localTexts(located.changed + located.missingValues);
        PartFile::removeRemains(whole);
        remember(whole);
        show(located.project, whole);
    } catch (const PlatformException& failure) {
        showError(failed, failure.message().local());
    }
}

// The window shows the demo pages until the documents are imported.
void ProjectSession::show(const Project& project, const QString& path) {
    iPath = path;
    iDocuments = pathsOf(project.documents);
    iPages = project.pages;
    iImport = project.import;
    iPublish = project.publish;
    iMerged.reset();
    iProgram.window.messages->hide();
    iProgram.window.result->hide();
    iProgram.showLook(project);
    setSaved();
    if (iDocuments.isEmpty())
        iProgram.showBook();
    else
        importDocuments({});
    if (!iIsOpening) {
        iIsRecovering = false;
        showWarnings();
    }
}

void ProjectSession::importDocuments(const ConvertedDocuments& converted) {
    iIsOpening = true;
    iProgram.showImportSheet();
    SheetChoices::set(iProgram.import.window(), iImport);
    iProgram.import.importSources({iDocuments, iPages, false, converted});
}

bool ProjectSession::arrangePages() {
    std::vector<MergePlan::Page> pages = iPages;
    if (pages.empty() && iImport.isRangeTyped && iDocuments.size() == 1) {
        for (const int page : pagesFromExpression(iImport.range, 0))
            pages.push_back({0, page - 1});
    }
    QString failure;
    const auto atEnd = [this](int returnCode) {
        if (returnCode == 1)
            takePages();
    };
    const bool isShown = iProgram.pages.beginSheet(iDocuments, std::move(pages), atEnd, &failure);
    if (!isShown)
        showError(tr("The pages can't be arranged."), failure);
    return isShown;
}

void ProjectSession::addPages(const QStringList& files, const QStringList& notUsed) {
    if (arrangePages())
        iProgram.pages.append(files, notUsed);
}

void ProjectSession::takePages() {
    if (iProgram.pages.model().history().isClean())
        return;
    iEarlier = {iDocuments, iPages, iImport};
    const PagesModel::Used used = iProgram.pages.model().used();
    iDocuments = used.documents;
    iPages = used.pages;
    iImport.isRangeTyped = false;
    importDocuments(iProgram.pages.converted());
}

void ProjectSession::restorePages() {
    iDocuments = iEarlier->documents;
    iPages = iEarlier->pages;
    iImport = iEarlier->import;
    iEarlier.reset();
}

// Whether the import was what was asked for, not what was typed into its sheet meanwhile.
bool ProjectSession::isOpened(const ImportSources& imported) const {
    return iIsOpening && imported.documents == iDocuments && imported.pages.size() == iPages.size();
}

QString ProjectSession::takeImport() {
    const ImportSources& imported = iProgram.import.sources();
    const bool wasAskedFor = isOpened(imported);
    iIsOpening = false;
    if (!wasAskedFor) {
        QStringList documents;
        for (const QString& document : imported.documents)
            documents << QFileInfo(document).absoluteFilePath();
        // Without a project, what to publish was chosen for the earlier document.
        if (iPath.isEmpty() && iDocuments != documents)
            iPublish = {};
        iDocuments = documents;
        iPages.clear();
        // Of several, the first would come alone.
        if (documents.size() == 1)
            remember(documents.front(), BookCover::of(iProgram.book()));
    }
    iMerged = iProgram.import.merged();
    iImport = SheetChoices::importOf(iProgram.import.window());
    iIsChanged = !wasAskedFor || iEarlier || std::exchange(iIsRecovering, false);
    iArePagesSaved = !iIsChanged;
    iEarlier.reset();
    updateTitle();
    showWarnings();
    return iDocuments.front();
}

void ProjectSession::showWarnings() {
    if (const QStringList warnings = std::exchange(iWarnings, {}); !warnings.isEmpty())
        showError(tr("The project is not as it was saved."), warnings.join(u'\n'));
}

void ProjectSession::importWasCancelled() {
    if (!std::exchange(iIsOpening, false))
        return;
    if (iEarlier) {
        restorePages();
        return;
    }
    iWarnings.clear();
    // What was recovered is not lost with a document that is gone: it can be saved.
    if (std::exchange(iIsRecovering, false))
        setModified();
    else
        show({}, QStringLiteral(""));
}

void ProjectSession::proposePublish() const {
    if (!iPublish.folder.isEmpty())
        SheetChoices::set(iProgram.output, iPublish);
}

void ProjectSession::takePublish() {
    const Project::Publish chosen = SheetChoices::publishOf(iProgram.output);
    if (chosen == iPublish)
        return;
    iPublish = chosen;
    // Whoever only tries what becomes of the demo book has nothing to save.
    if (!iDocuments.isEmpty() || !iPath.isEmpty())
        setModified();
}

// A document is read again only after it was changed.
Project::File ProjectSession::described(const QString& path) {
    const FileState state = FileState::of(path);
    auto& [known, file] = iDescribed[path];
    if (file.path.isEmpty() || known != state)
        file = ProjectFiles::describe(path);
    known = state;
    return file;
}

Project ProjectSession::current() {
    Project project = iProgram.look();
    for (const QString& document : iDocuments)
        project.documents.push_back(described(document));
    for (Project::Value& value : project.values) {
        if (value.isFile)
            value.file = described(value.text);
    }
    project.pages = iPages;
    project.import = iImport;
    project.publish = iPublish;
    return project;
}

bool ProjectSession::onSave() {
    return iPath.isEmpty() ? onSaveAs() : saveTo(iPath);
}

bool ProjectSession::onSaveAs() {
    const QString beside = iDocuments.isEmpty() ? QDir::homePath() : iDocuments.front();
    const QString proposed =
        !iPath.isEmpty() ? iPath
                         : Files::join(QFileInfo(beside).path(), iProgram.window.documentName() +
                                                                     u'.' + ProjectFile::extension);
    const auto path =
        iQuestions.fileToSave.ask(proposed, ProjectFile::extension, ProjectFile::isProject);
    return path && saveTo(QFileInfo(*path).absoluteFilePath());
}

bool ProjectSession::saveTo(const QString& path) {
    // A program that is killed in between must not come back with what was kept earlier.
    keepForRecovery();
    Message error;
    if (!ProjectFile::write(current(), BookCover::of(iProgram.book()), path, &error)) {
        showError(tr("The project was not saved to %1.").arg(path), error.local());
        return false;
    }
    iPath = path;
    remember(path);
    setSaved();
    return true;
}

void ProjectSession::autosave() {
    if (isModified())
        keepForRecovery();
    else
        iRecovery.remove();
}

void ProjectSession::keepForRecovery() {
    if (!isModified())
        return;
    Project project = current();
    project.recoveryOf = iPath;
    iRecovery.write(project);
}

bool ProjectSession::offerRecovery() {
    bool isTaken = false;
    ProjectRecovery::offer([&](const Project& saved, const QDateTime& time) {
        const QString known = bookName(saved.recoveryOf, pathsOf(saved.documents));
        const QString name = known.isNull() ? tr("a book that was not saved") : known;
        const auto located =
            ProjectFiles::locate(saved, QFileInfo(saved.recoveryOf).absolutePath());
        if (!iQuestions.recover(tr("Recover the changes to “%1”?").arg(name),
                                tr("Folvero ended before they were saved, last on %1.")
                                    .arg(QLocale().toString(time, QLocale::ShortFormat))))
            return false;
        iWarnings = localTexts(located.changed + located.missingValues);
        Project project = located.project;
        iIsRecovering = true;
        show(project, saved.recoveryOf.isNull() ? QStringLiteral("") : saved.recoveryOf);
        iIsChanged = true;
        updateTitle();
        project.recoveryOf = iPath;
        iRecovery.write(project);
        isTaken = true;
        return true;
    });
    return isTaken;
}

void ProjectSession::remember(const QString& path, const QByteArray& cover) const {
    RecentFiles::add(path, cover);
    iProgram.window.menu->showRecentFiles(RecentFiles::list());
}

void ProjectSession::showError(const QString& what, const QString& cause) const {
    iProgram.window.messages->showError(what, cause);
}
