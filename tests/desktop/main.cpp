#include "app/desktop/LinedStyle.h"

#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>
#include <unistd.h>

int main(int argc, char** argv) {
    // Keeps the tests off the settings and folders of whoever runs them.
    QStandardPaths::setTestModeEnabled(true);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The web engine refuses to run as root, as it is in a container, with its walls up.
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // Listing the names of the tests needs neither.
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("FolveroDesktopTests"));
    QCoreApplication::setApplicationName(QStringLiteral("FolveroDesktopTests"));
    QApplication::setStyle(new LinedStyle);
    return RUN_ALL_TESTS();
}
