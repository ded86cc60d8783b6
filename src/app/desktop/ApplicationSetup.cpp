#include "app/desktop/ApplicationSetup.h"

#include "app/desktop/BorderedStyle.h"
#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/QuitSignals.h"
#include "app/desktop/Translations.h"
#include "system/Bundle.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QLocale>
#include <QTimer>

void setUpApplication(const QStringList& languages) {
    QCoreApplication::setOrganizationName(QStringLiteral("Folvero"));
    QCoreApplication::setApplicationName(QString::fromUtf16(APP_NAME));
    QCoreApplication::setApplicationVersion(Bundle::version());
    QGuiApplication::setDesktopFileName(QStringLiteral("folvero"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/folvero.svg")));
    QApplication::setStyle(new BorderedStyle);
    Translations::install(languages);
}

int runApplication(const QStringList& arguments) {
    setUpApplication(QLocale::system().uiLanguages());

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Turns PDF files into page-flip books."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("pdf"),
                                 QCoreApplication::translate("main", "A PDF file to import."),
                                 QStringLiteral("[pdf]"));
    parser.process(arguments);

    BrisleafAppDelegate controller;
    const QuitSignals quitSignals;
    // Not quit(): that asks the windows first, and a sheet with a running import refuses.
    QObject::connect(&quitSignals, &QuitSignals::requested, [] { QCoreApplication::exit(); });
    QTimer::singleShot(0, &controller, [&] {
        controller.applicationDidFinishLaunching();
        if (const QStringList files = parser.positionalArguments(); !files.isEmpty())
            controller.importFile(QFileInfo(files.first()).absoluteFilePath());
    });
    return QApplication::exec();
}
