#pragma once

#include "app/desktop/JobWatcher.h"
#include "app/desktop/PreviewFolder.h"
#include "app/desktop/ProjectSession.h"
#include "app/desktop/PropertyHistory.h"
#include "base/NotificationCenter.h"
#include "output/FolveroOutput.h"
#include "template/TemplateDefaults.h"
#include "ui/FlashTemplateOutlineDelegate.h"
#include "ui/Panels.h"

#include <QObject>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

class Appearance;
class FlashTemplateModel;
class ImportWindowDelegate;
class MainWindow;
class OutputWindowDelegate;
class PagesWindowDelegate;
class QTimer;
class SelectTemplateWindowDelegate;
class SettingsReset;
class StyleSaver;

inline constexpr char16_t APP_NAME[] = u"Folvero";

// The controller of the desktop program: owns the book being edited, shows it in the preview, and
// runs the commands of the menus and the toolbar. For the main thread.
class BrisleafAppDelegate : public QObject, public HasBook {
    Q_OBJECT

public:
    BrisleafAppDelegate();
    ~BrisleafAppDelegate() override;

    // Opens the window with the demo book.
    void applicationDidFinishLaunching();
    // Offers to recover what an earlier run has left, or else opens a file, which may be empty.
    void begin(const QString& path);
    // Keeps what is not saved for the next start, without a question.
    void keepForRecovery();
    // Cancels a running import and removes the preview folder.
    void applicationWillTerminate();
    // Shows the page "index.html" of the resource folder "Demo", if it exists, instead of the book.
    void previewDemo();

    // How the user is asked for files (none when cancelled), for permission to replace files and
    // for colours; how a file is opened in its default program and the about box shown; and what
    // becomes of changes, in a project that is closed and of an earlier run. Set before the launch.
    struct Questions {
        Panels::FilePanel fileToOpen;
        Panels::FilePanel fileToSave;
        std::function<bool(const QString& message, const QString& information)> replace;
        FlashTemplateOutlineDelegate::ColorPanel color;
        std::function<void(const QString& path)> open;
        std::function<void()> about;
        std::function<Panels::Unsaved(const QString& message, const QString& information)> unsaved =
            [](const QString& /*message*/, const QString& /*information*/) {
                return Panels::Unsaved::discard;
            };
        std::function<bool(const QString& message, const QString& information)> recover =
            [](const QString& /*message*/, const QString& /*information*/) { return false; };
    };
    void setQuestions(Questions questions) { iQuestions = std::move(questions); }

    // Null before the launch.
    MainWindow* window() const { return iWindow.get(); }
    ImportWindowDelegate& importWindow() const { return *iImportWindow; }
    PagesWindowDelegate& pagesWindow() const { return *iPagesWindow; }
    OutputWindowDelegate& ouputWindow() const { return *iOuputWindow; }
    SelectTemplateWindowDelegate& selecteTmplWindow() const { return *iSelecteTmplWindow; }
    StyleSaver& styleSaver() const { return *iStyleSaver; }
    ProjectSession& project() const { return *iProject; }
    const std::shared_ptr<FlashTemplate>& flashTmpl() const { return iFlashTmpl; }
    FlashTemplateModel& outline() const { return *iOutline; }
    QString flashPreviewFolder() const { return iFlashPreviewFolder; }
    bool isChangePending() const { return iApplyChangeTimer != nullptr; }

    void OnApplyChange();
    void OnImportPDF();
    void OnExportFlipBook();
    void OnExportTmplSettings();
    void OnImportTmplSettings();
    void onSelectTemplate();
    void OnOpenHelp();
    // Shows the import sheet and starts with that file.
    void importFile(const QString& path);
    // Opens a project, or imports a document.
    void openFile(const QString& path);
    // Makes one book of documents, pictures and folders of them, in the order of their names.
    void openFiles(const QStringList& paths);
    // Shows the pages of the book with those of the files after them.
    void addFiles(const QStringList& paths);

    void importWindowDidEnd(int returnCode);
    void selectTmplWindowDidEnd(int returnCode);

private:
    // Whether the preview keeps its current page.
    enum PreviewedBook { SameBook, OtherBook };

    void prepaireTheLog() const;
    static void chooseFirstKind();
    void makeWindows();
    // Those of the paths that a book can be made of, and why the others can't.
    std::pair<QStringList, QStringList> usable(const QStringList& paths);
    void loadDemoPages();
    void showEditor();
    void showTemplate();
    void templateWasLoaded();
    void templateWasUndone();
    void takeDirectionOfDocument();
    void takeSizeOfDocument();
    void connectCommands();
    void observeEditor();
    void makeProject();
    void showImportSheet();
    void makeStyleSaver();
    void chooseStyle(const QString& styleFolder);
    void styleWasMoved(const QString& from, const QString& to);
    Project look() const;
    void showLook(const Project& project);
    void updateTmplPropertyTip();
    void valueWasEdited(const FlashTemplateProperty& property);
    void valueIsTried(FlashTemplateProperty& property, const QString& value);
    void showSettings();
    void showChangedSettings();
    void tmplPpertyValueChanged();
    void onTimerEvent();
    void valuesWereUndone();

    void makeFlashPreviewFolder();
    void removeFlashPreviewFolder();
    void applyChange(PreviewedBook previewed);
    void publishPreview(PreviewedBook previewed);
    void previewCrashed(bool reloads);

    Questions iQuestions;
    std::unique_ptr<Appearance> iAppearance;
    PropertyHistory iHistory;
    std::unique_ptr<MainWindow> iWindow;
    std::unique_ptr<ImportWindowDelegate> iImportWindow;
    std::unique_ptr<PagesWindowDelegate> iPagesWindow;
    std::unique_ptr<OutputWindowDelegate> iOuputWindow;
    std::unique_ptr<SelectTemplateWindowDelegate> iSelecteTmplWindow;
    std::unique_ptr<StyleSaver> iStyleSaver;
    std::shared_ptr<FlashTemplate> iFlashTmpl;
    QString iOwnDirection;           // the template's own RightToLeft
    bool iIsDirectionChosen = false; // by the user
    std::unique_ptr<FlashTemplateOutlineDelegate> tmplDelegate;
    TemplateDefaults iDefaults;
    std::unique_ptr<FlashTemplateModel> iOutline;
    std::unique_ptr<SettingsReset> iReset;
    // The path of the last import; empty while the demo book is shown.
    QString iDocument = QStringLiteral("");
    JobWatcher iJobs;
    QStringList iNotUsed; // of the files that were dropped for the import, and why
    std::unique_ptr<QTimer> iApplyChangeTimer;
    // Empty, not null, until the folder is created.
    QString iFlashPreviewFolder = QStringLiteral("");
    PreviewFolder iPreviewFolder;
    NotificationCenter::Subscription iTips;
    NotificationCenter::Subscription iChanges;
    std::unique_ptr<ProjectSession> iProject;
};
