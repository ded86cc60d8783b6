// folvero-desktop: makes page-flip books from PDF files in a window.

#include "app/desktop/ApplicationSetup.h"
#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/QuitSignals.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    setUpApplication(QLocale::system().uiLanguages());

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Turns PDF files into page-flip books."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("pdf"),
                                 QCoreApplication::translate("main", "A PDF file to import."),
                                 QStringLiteral("[pdf]"));
    parser.process(app);

    BrisleafAppDelegate controller;
    const QuitSignals quitSignals;
    // Not quit(): that asks the windows first, and a sheet with an import under way says no.
    QObject::connect(&quitSignals, &QuitSignals::requested, &app, [] { QCoreApplication::exit(); });
    QTimer::singleShot(0, &controller, [&] {
        controller.applicationDidFinishLaunching();
        if (const QStringList files = parser.positionalArguments(); !files.isEmpty())
            controller.importFile(QFileInfo(files.first()).absoluteFilePath());
    });
    return QApplication::exec();
}
