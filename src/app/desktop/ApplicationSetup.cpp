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
    parser.addPositionalArgument(
        QStringLiteral("file"),
        QCoreApplication::translate("main", "A PDF file to import, or a project to open."),
        QStringLiteral("[file]"));
    parser.process(arguments);

    BrisleafAppDelegate controller;
    const QuitSignals quitSignals;
    // Not quit(): that asks the windows first, and a sheet with a running import refuses.
    QObject::connect(&quitSignals, &QuitSignals::requested, [&controller] {
        controller.keepForRecovery();
        QCoreApplication::exit();
    });
    QTimer::singleShot(0, &controller, [&] {
        controller.applicationDidFinishLaunching();
        const QString file = parser.positionalArguments().value(0);
        controller.begin(file.isEmpty() ? file : QFileInfo(file).absoluteFilePath());
    });
    return QApplication::exec();
}
