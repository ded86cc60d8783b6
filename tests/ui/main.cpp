#include "support/OwnFolders.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const OwnFolders folders;
    // Neither the tests nor the listing of their names need a screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName("FolveroTests");
    QCoreApplication::setApplicationName("FolveroTests");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
