#include "support/OwnFolders.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const OwnFolders folders;
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("FolveroTests"));
    QCoreApplication::setApplicationName(QStringLiteral("FolveroTests"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
