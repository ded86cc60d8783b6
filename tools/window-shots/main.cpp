// folvero-window-shots: takes screenshots of the desktop program. --help lists the options.

#include "app/AppSettings.h"
#include "app/desktop/ApplicationSetup.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "system/Folders.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"
#include "ui/PagesWindowDelegate.h"
#include "ui/Panels.h"
#include "ui/PasswordWindow.h"
#include "ui/SelectTemplateWindowDelegate.h"
#include "window-shots/ShotsProgram.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr QSize windowSize(1280, 800);
constexpr char lantern[] = "The Lantern";

struct Options {
    QString samples;
    QString output;
    QString language;
    QStringList only;
    bool asJPEG = false;
};

class Shots {
public:
    explicit Shots(Options options) : iOptions(std::move(options)), iProgram(windowSize) {}

    void take() {
        takeIn(false);
        if (!iOptions.asJPEG)
            takeIn(true);
    }

private:
    // A copy of a sample, with a realistic name and folder.
    QString document(const char* sample, const char* name) const {
        static const QHash<QString, QString> folders{{QStringLiteral("de"), "Dokumente"},
                                                     {QStringLiteral("es"), "Documentos"},
                                                     {QStringLiteral("it"), "Documenti"}};
        const QString folder = folders.value(iOptions.language, QStringLiteral("Documents"));
        const QString path = QStringLiteral("%1/%2.pdf").arg(folder, QLatin1String(name));
        QDir().mkpath(folder);
        QFile::remove(path);
        if (!QFile::copy(iOptions.samples + u'/' + QLatin1String(sample), path))
            qFatal("cannot copy %s", sample);
        return path;
    }
    BrisleafAppDelegate& program() { return iProgram.program(); }
    MainWindow& window() { return iProgram.window(); }

    void takeIn(bool isDark) {
        iProgram.setDark(isDark);
        iSuffix = isDark ? QStringLiteral("-dark.png") : QStringLiteral("-light.png");
        savePicture("start");
        takeImport();
        takeMessage();
        takeEditing();
        takePages();
        takeChooser();
        takePublish();
        takeMenu();
        takeBoxes();
    }

    void save(const QImage& image, const char* name) const {
        if (!iOptions.only.isEmpty() && !iOptions.only.contains(QLatin1String(name)))
            return;
        const QString base = QStringLiteral("%1/%2").arg(iOptions.output, QLatin1String(name));
        const bool isSaved = iOptions.asJPEG
                                 ? onPaper(image).save(base + QStringLiteral(".jpg"), "JPEG", 86)
                                 : image.save(base + iSuffix);
        if (!isSaved)
            qFatal("cannot write %s", qPrintable(base));
    }
    void savePicture(const char* name) { save(iProgram.picture(), name); }

    static QImage onPaper(const QImage& image) {
        QImage paper(image.size(), QImage::Format_RGB32);
        paper.setDevicePixelRatio(image.devicePixelRatio());
        paper.fill(Qt::white);
        QPainter(&paper).drawImage(QPointF(), image);
        return paper;
    }

    void takeImport() {
        ImportWindowDelegate& import = program().importWindow();
        program().OnImportPDF();
        rest(200);
        import.window().txtImportFile->setText(document("picture-book.pdf", lantern));
        import.window().btnCancel->setFocus();
        save(iProgram.pictureOfSheet(), "import");
        savePicture("import-window");
        import.window().txtImportFile->setText(document("thousand.pdf", "Town chronicle"));
        import.onImportAction();
        waitUntil([&] { return !import.window().lblInfo->text().isEmpty(); }, "progress");
        save(iProgram.pictureOfSheet(), "importing");
        import.onCancelAction();
        waitUntil([&] { return !import.isImporting(); }, "the cancelled import");
        import.importFiles({document("encrypted.pdf", "Report")});
        PasswordWindow& question = import.passwordWindow();
        waitUntil([&] { return question.isVisible(); }, "the question for the password");
        question.txtPassword->setText(QStringLiteral("password"));
        save(iProgram.pictureOfSheet(), "password");
        import.onPasswordAction();
        waitUntil([&] { return question.isVisible(); }, "the next question");
        save(iProgram.pictureOfSheet(), "password-wrong");
        import.onNoPasswordAction();
        import.importFiles({document("truncated.pdf", "Report")});
        waitUntil([&] { return !import.isImporting(); }, "the failed import");
        save(iProgram.pictureOfSheet(), "import-failed");
        import.onCancelAction();
    }

    void takeMessage() {
        iProgram.importBook(document("damaged-page.pdf", "Yearbook"));
        savePicture("message");
        window().messages->hide();
    }

    void takeEditing() {
        iProgram.importBook(document("picture-book.pdf", lantern));
        iProgram.showPage(4);
        iProgram.select(QStringLiteral("bgBeginColor"));
        savePicture("editing");
        save(iProgram.pictureOf(*window().outlineView->parentWidget()), "settings");
    }

    void takePages() {
        window().menu->arrangePages->trigger();
        PagesWindowDelegate& pages = program().pagesWindow();
        const QAbstractItemModel& model = pages.model();
        waitUntil(
            [&] {
                const QModelIndex last = model.index(model.rowCount() - 1, 0);
                return last.data(PagesModel::pictureRole).isValid();
            },
            "the pictures of the pages");
        pages.window().pages->setCurrentIndex(model.index(2, 0));
        pages.window().pages->setFocus();
        save(iProgram.pictureOfSheet(), "pages");
        pages.window().btnCancel->click();
    }

    void takeChooser() {
        program().onSelectTemplate();
        rest(300);
        savePicture("chooser");
        program().selecteTmplWindow().onCancel();
    }

    void takePublish() {
        OutputWindow& sheet = program().ouputWindow().window();
        program().OnExportFlipBook();
        sheet.txtOutputFolder->setText(QFileInfo(document("picture-book.pdf", lantern)).path() +
                                       u'/' + QLatin1String(lantern));
        sheet.txtOutputName->setText(QStringLiteral("index"));
        sheet.txtTitle->setText(QStringLiteral("The Lantern That Went for a Walk"));
        sheet.btnCancel->setFocus();
        save(iProgram.pictureOfSheet(), "publish-web");
        savePicture("publish-window");
        sheet.mOutputType->button(OutputWindow::htmlBook)->click();
        sheet.btnCancel->setFocus();
        save(iProgram.pictureOfSheet(), "publish");
        program().ouputWindow().onCancel();
    }

    void takeMenu() {
        QAction* first = window().menuBar()->actions().first();
        window().menuBar()->setActiveAction(first);
        rest(200);
        savePicture("menu");
        first->menu()->close();
    }

    // These wait for the user: the screenshot is taken meanwhile.
    void takeBoxes() {
        takeWhile("about", [] { Panels::about(); });
        takeWhile("colour", [] { Panels::chooseColor(QColor("#2f74c0")); });
        takeWhile("text", [] {
            Panels::askForText(OutputWindowDelegate::tr("Include the document's text?"),
                               OutputWindowDelegate::tr(
                                   "The document forbids copying its text. Without text the book "
                                   "can't be searched, and its words can't be selected or read "
                                   "aloud."));
        });
        takeWhile("published", [] {
            Panels::askToOpen(OutputWindowDelegate::tr("Open the result files?"),
                              OutputWindowDelegate::tr("Publish finished! Open the it?"));
        });
    }

    void takeWhile(const char* name, const std::function<void()>& box) {
        QTimer::singleShot(400, &window(), [this, name] {
            save(iProgram.pictureOfSheet(), name);
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                if (auto* dialog = qobject_cast<QDialog*>(widget); dialog && dialog->isVisible())
                    dialog->reject();
            }
        });
        box();
    }

    Options iOptions;
    ShotsProgram iProgram;
    QString iSuffix;
};

// Takes effect before there is an application, so it cannot be asked what its arguments are.
Options parse(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const auto text = [](const char* latin1) { return QString::fromLatin1(latin1); };
    QCommandLineParser parser;
    parser.setApplicationDescription(
        text("Writes pictures of the window, its sheets and its boxes, in the light and the dark "
             "appearance."));
    parser.addPositionalArgument(text("samples"), text("folder of the sample documents"));
    parser.addPositionalArgument(text("output"), text("folder that gets the pictures"));
    parser.addOptions({{text("scale"), text("pixels a point"), text("number"), text("1")},
                       {text("language"), text("for example de"), text("name"), text("en")},
                       {text("only"), text("names of pictures, with commas"), text("names")},
                       {text("jpeg"), text("JPEG files on white, of the light appearance alone")}});
    const QCommandLineOption help = parser.addHelpOption();
    if (!parser.parse(arguments) || parser.isSet(help) ||
        parser.positionalArguments().size() != 2) {
        std::fputs(qPrintable(parser.errorText() + u'\n' + parser.helpText()), stderr);
        std::exit(2);
    }
    qputenv("QT_SCALE_FACTOR", parser.value(text("scale")).toLatin1());
    const auto folder = [&parser](int place) {
        return QDir(parser.positionalArguments().at(place)).absolutePath();
    };
    return {folder(0), folder(1), parser.value(text("language")),
            parser.value(text("only")).split(u',', Qt::SkipEmptyParts), parser.isSet(text("jpeg"))};
}

} // namespace

int main(int argc, char** argv) {
    const Options options = parse(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication app(argc, argv);
    setUpApplication({options.language});
    QLocale::setDefault(QLocale(options.language));
    QCoreApplication::setOrganizationName(QStringLiteral("FolveroWindowShots"));
    QApplication::setFont(QFont(QStringLiteral("Inter"), 10));
    QSettings().clear();
    AppSettings::shareInstance().loadSettings();
    if (!QDir().mkpath(options.output))
        qFatal("cannot make %s", qPrintable(options.output));
    // The documents' paths are visible in the screenshots: they must be short and impersonal.
    const QTemporaryDir documents;
    QDir::setCurrent(documents.path());
    Folders::setMachineRoot(documents.path());
    Shots(options).take();
    return 0;
}
