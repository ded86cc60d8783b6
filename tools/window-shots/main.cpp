// folvero-window-shots: takes pictures of the desktop program, in the light and the dark
// appearance.
//
// folvero-window-shots SAMPLES OUTPUT [SCALE]
//
// SAMPLES is the folder of sample documents. OUTPUT gets NAME-light.png and NAME-dark.png of each
// view; SCALE is how many pixels a point has, 1 unless it is given.

#include "app/AppSettings.h"
#include "app/desktop/LinedStyle.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "platform/Bundle.h"
#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"
#include "ui/Panels.h"
#include "ui/SelectTemplateWindowDelegate.h"
#include "window-shots/ShotsProgram.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLineEdit>
#include <QMenuBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <unistd.h>

namespace {

constexpr QSize windowSize(1280, 800);

class Shots {
public:
    Shots(QString samples, QString output)
        : iSamples(std::move(samples)), iOutput(std::move(output)), iProgram(windowSize) {}

    void take() {
        for (const bool isDark : {false, true}) {
            iProgram.setDark(isDark);
            iSuffix = isDark ? QStringLiteral("dark") : QStringLiteral("light");
            takeStart();
            takeImport();
            takeEditing();
            takeChooser();
            takePublish();
            takeMenusAndBoxes();
        }
    }

private:
    QString sample(const char* name) const { return iSamples + u'/' + QLatin1String(name); }
    BrisleafAppDelegate& program() { return iProgram.program(); }
    MainWindow& window() { return iProgram.window(); }

    void save(const QImage& image, const char* name) const {
        const QString file =
            QStringLiteral("%1/%2-%3.png").arg(iOutput, QLatin1String(name), iSuffix);
        if (!image.save(file))
            qFatal("cannot write %s", qPrintable(file));
    }
    void savePicture(const char* name) { save(iProgram.picture(), name); }

    void takeStart() { savePicture("start"); }

    void takeImport() {
        ImportWindowDelegate& import = program().importWindow();
        program().OnImportPDF();
        import.window().txtImportFile->setText(QStringLiteral("Documents/Picture book.pdf"));
        rest(200);
        savePicture("import");
        import.window().txtImportFile->setText(sample("thousand.pdf"));
        import.onImportAction();
        rest(1'500);
        import.window().txtImportFile->setText(QStringLiteral("Documents/Town chronicle.pdf"));
        save(iProgram.pictureOfSheet(), "importing");
        import.onCancelAction();
        waitUntil([&] { return !import.isImporting(); }, "the cancelled import");
        import.importFile(sample("encrypted.pdf"));
        waitUntil([&] { return !import.isImporting(); }, "the failed import");
        save(iProgram.pictureOfSheet(), "import-failed");
        import.onCancelAction();
        iProgram.importBook(sample("damaged-page.pdf"));
        savePicture("message");
        iProgram.importBook(sample("picture-book.pdf"));
    }

    void takeEditing() {
        iProgram.showPage(4);
        iProgram.select(QStringLiteral("bgBeginColor"));
        savePicture("editing");
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
        sheet.txtOutputFolder->setText(QStringLiteral("Documents/Picture book"));
        sheet.txtOutputName->setText(QStringLiteral("index"));
        sheet.txtTitle->setText(QStringLiteral("The picture book"));
        rest(200);
        savePicture("publish");
        program().ouputWindow().onCancel();
    }

    // These wait for the user: the picture is taken while they do.
    void takeMenusAndBoxes() {
        for (QAction* action : window().menuBar()->actions()) {
            QMenu* menu = action->menu();
            window().menuBar()->setActiveAction(action);
            rest(200);
            if (action == window().menuBar()->actions().first())
                savePicture("menu");
            menu->close();
        }
        takeWhile("about", [] { Panels::about(); });
        takeWhile("colour", [] { Panels::chooseColor(QColor("#2f74c0")); });
        takeWhile("published", [] {
            Panels::askToOpen(QStringLiteral("The book is published."), QStringLiteral("?"));
        });
    }

    void takeWhile(const char* name, const std::function<void()>& box) {
        QTimer::singleShot(400, [this, name] {
            save(iProgram.pictureOfSheet(), name);
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                if (auto* dialog = qobject_cast<QDialog*>(widget); dialog && dialog->isVisible())
                    dialog->reject();
            }
        });
        box();
    }

    QString iSamples;
    QString iOutput;
    ShotsProgram iProgram;
    QString iSuffix;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: folvero-window-shots SAMPLES OUTPUT [SCALE]\n", stderr);
        return 2;
    }
    QStandardPaths::setTestModeEnabled(true);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", argc > 3 ? argv[3] : "1");
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("FolveroWindowShots"));
    QCoreApplication::setApplicationName(QString::fromUtf16(APP_NAME));
    QCoreApplication::setApplicationVersion(Bundle::version());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/folvero.svg")));
    QApplication::setStyle(new LinedStyle);
    QApplication::setFont(QFont(QStringLiteral("Inter"), 10));
    QSettings().clear();
    AppSettings::shareInstance().loadSettings();
    QDir().mkpath(QString::fromLocal8Bit(argv[2]));
    Shots(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])).take();
    return 0;
}
