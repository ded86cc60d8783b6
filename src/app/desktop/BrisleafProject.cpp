// The project in the desktop program.

#include "app/AppSettings.h"
#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "app/desktop/ProjectSession.h"
#include "project/InputFiles.h"
#include "project/ProjectFile.h"
#include "project/ProjectValues.h"
#include "ui/FlashTemplateModel.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindowDelegate.h"
#include "ui/PagesWindowDelegate.h"

#include <algorithm>
#include <utility>

namespace {

const QString directionKey = QStringLiteral("RightToLeft");

bool isDirection(const Project::Value& value) {
    return value.key == directionKey;
}

std::shared_ptr<FlashTemplate> templateOf(const Project& project) {
    auto tmpl = std::make_shared<FlashTemplate>();
    if (project.templateName != tmpl->tmplName())
        tmpl->loadTemplate(project.templateName);
    if (!project.styleName.isEmpty())
        tmpl->loadStyleByStyleName(project.styleName);
    return tmpl;
}

} // namespace

void BrisleafAppDelegate::makeProject() {
    iProject = std::make_unique<ProjectSession>(
        ProjectSession::Program{*iWindow, *iImportWindow, iOuputWindow->window(), *iPagesWindow,
                                iHistory.stack(), [this] { return look(); },
                                [this](const Project& project) { showLook(project); },
                                [this] { applyChange(OtherBook); }, [this] { showImportSheet(); },
                                [this]() -> const Book& { return iBook; }},
        ProjectSession::Questions{iQuestions.fileToOpen,
                                  {iQuestions.fileToSave, iQuestions.replace},
                                  iQuestions.unsaved,
                                  iQuestions.recover});
}

void BrisleafAppDelegate::begin(const QString& path) {
    if (!iProject->offerRecovery() && !path.isEmpty())
        openFile(path);
}

void BrisleafAppDelegate::keepForRecovery() {
    if (iProject)
        iProject->keepForRecovery();
}

void BrisleafAppDelegate::openFile(const QString& path) {
    if (ProjectFile::isProject(path))
        iProject->open(path);
    else
        importFile(path);
}

void BrisleafAppDelegate::openFiles(const QStringList& paths) {
    if (paths.size() == 1 && ProjectFile::isProject(paths.front())) {
        iProject->open(paths.front());
        return;
    }
    const auto [files, notUsed] = usable(paths);
    if (files.isEmpty() || !iProject->mayReplacePages())
        return;
    showImportSheet();
    iNotUsed = notUsed;
    iImportWindow->importFiles(files);
}

void BrisleafAppDelegate::addFiles(const QStringList& paths) {
    const auto [files, notUsed] = usable(paths);
    if (!files.isEmpty())
        iProject->addPages(files, notUsed);
}

// Says so when there is nothing to use.
std::pair<QStringList, QStringList> BrisleafAppDelegate::usable(const QStringList& paths) {
    QStringList projects;
    QStringList others;
    for (const QString& path : paths)
        (ProjectFile::isProject(path) ? projects : others) << path;
    const auto [files, unusable] = InputFiles::of(others);
    QStringList notUsed = localTexts(unusable);
    for (const QString& project : projects)
        notUsed << tr("%1: is a project; open it alone").arg(project);
    if (files.isEmpty())
        iWindow->messages->showError(tr("Nothing was imported."), notUsed.join(u'\n'));
    return {files, notUsed};
}

// The direction that the document asks for is no choice of the user's.
Project BrisleafAppDelegate::look() const {
    Project project;
    project.templateName = iFlashTmpl->tmplName();
    project.styleName = iFlashTmpl->styleName();
    project.values = ProjectValues::changed(*iFlashTmpl);
    project.holdsStyle = ProjectValues::holdStyle(*iFlashTmpl);
    if (!iIsDirectionChosen)
        std::erase_if(project.values, isDirection);
    return project;
}

void BrisleafAppDelegate::showLook(const Project& project) {
    // The views refer to it until they are shown another one.
    const auto earlier = std::exchange(iFlashTmpl, templateOf(project));
    tmplDelegate->setFlashTmpl(iFlashTmpl);
    iBook = {};
    iDocument = QStringLiteral("");
    loadDemoPages();
    AppSettings::shareInstance().setPageSize(Book::defaultPageSize);
    templateWasLoaded();
    takeSizeOfDocument();
    iHistory.reset(iFlashTmpl);
    showTemplate();
    ProjectValues::apply(project.values, *iFlashTmpl);
    iIsDirectionChosen = std::any_of(project.values.begin(), project.values.end(), isDirection);
    iHistory.snapshotValues();
    iOutline->reloadValues();
}
