#include "app/desktop/ApplicationSetup.h"
#include "app/desktop/BorderedStyle.h"
#include "desktop/DesktopProgram.h"
#include "desktop/Scenario.h"
#include "support/OwnFolders.h"
#include "system/Folders.h"

#include <QApplication>
#include <QFile>
#include <gtest/gtest.h>
#include <unistd.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Chromium refuses to run as root, as in a container, with its sandbox.
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // The program itself, for tests that terminate it, with its machine-wide folders in that one.
    if (argc > 2 && qstrcmp(argv[1], programOption) == 0) {
        Folders::setMachineRoot(QFile::decodeName(argv[2]));
        const QApplication app(argc, argv);
        QStringList arguments = QApplication::arguments();
        arguments.remove(1, 2);
        return runApplication(arguments);
    }
    if (argc > 3 && argv[1] == Scenario::option) {
        const QString folder = QFile::decodeName(argv[2]);
        Folders::setMachineRoot(folder);
        const QApplication app(argc, argv);
        return Scenario::run(folder, QString::fromUtf8(argv[3]));
    }
    const OwnFolders folders;
    // Listing the names of the tests needs neither.
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName("FolveroDesktopTests");
    QCoreApplication::setApplicationName("FolveroDesktopTests");
    QApplication::setStyle(new BorderedStyle);
    return RUN_ALL_TESTS();
}
