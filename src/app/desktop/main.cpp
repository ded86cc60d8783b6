// folvero-desktop: makes page-flip books from PDF files in a window.

#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/LinedStyle.h"
#include "app/desktop/QuitSignals.h"
#include "platform/Bundle.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

namespace {

// The program's own texts and those of the toolkit's dialogs, as far as there are any in the user's
// language.
void loadTranslations(QApplication& app) {
    const QLocale locale;
    for (const auto& [name, folder] :
         {std::pair(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)),
          {QStringLiteral("folvero"), QStringLiteral(":/translations")}}) {
        auto* translator = new QTranslator(&app);
        if (translator->load(locale, name, QStringLiteral("_"), folder))
            QApplication::installTranslator(translator);
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Folvero"));
    QCoreApplication::setApplicationName(QString::fromUtf16(APP_NAME));
    QCoreApplication::setApplicationVersion(Bundle::version());
    QGuiApplication::setDesktopFileName(QStringLiteral("folvero"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/folvero.svg")));
    QApplication::setStyle(new LinedStyle);
    loadTranslations(app);

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
