#include "support/OwnFolders.h"

#include <QCoreApplication>
#include <csignal>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    std::signal(SIGHUP, SIG_DFL); // programs under nohup ignore it
    const OwnFolders folders;
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("FolveroTests"));
    QCoreApplication::setApplicationName(QStringLiteral("FolveroTests"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
