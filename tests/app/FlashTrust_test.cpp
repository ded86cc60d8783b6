#include "app/MirelUtility.h"
#include "support/TemplateLibrary.h"
#include "system/Folders.h"

#include <QDir>
#include <QStringConverter>
#include <gtest/gtest.h>

namespace {

// Moves the machine's folders beneath a temporary one.
class FlashTrustTest : public testing::Test {
protected:
    FlashTrustTest() {
        Folders::setMachineRoot(iRoot.path());
        QDir(iRoot.path()).mkpath("usr/local/share");
        iPath = Folders::machineApplicationSupport() + "/Macromedia/FlashPlayerTrust/PT.cfg";
    }
    ~FlashTrustTest() override { Folders::setMachineRoot(QString()); }

    static QByteArray utf16(const QString& text,
                            QStringConverter::Encoding encoding = QStringConverter::Utf16) {
        return QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(text);
    }
    QByteArray added(const QString& folder) const {
        MirelUtility::makeDiractoryTrustByFlash(folder);
        return TestFiles::read(iPath);
    }

    QTemporaryDir iRoot;
    QString iPath;
    QString iFolder = "/home/ü/preview/";
};

} // namespace

TEST_F(FlashTrustTest, AddsAFolderOnce) {
    EXPECT_EQ(added(iFolder), utf16(iFolder));
    EXPECT_TRUE(QDir(Folders::libraryApplicationSupport()).exists("Macromedia/FlashPlayerTrust"));
    for (const QString& folder : {QString("/b"), iFolder})
        EXPECT_EQ(added(folder), utf16(iFolder + "\n/b"));
}

TEST_F(FlashTrustTest, ComparesWholeLinesOnly) {
    for (const QString& before :
         {iFolder + "\r\n/b", 'x' + iFolder, QString("/b\n"), QString("")}) {
        TestFiles::write(iPath, utf16(before));
        EXPECT_EQ(added(iFolder), utf16(before + '\n' + iFolder));
    }
    TestFiles::write(iPath, utf16("/b", QStringConverter::Utf16BE));
    EXPECT_EQ(added(iFolder), utf16("/b\n" + iFolder));
}

TEST_F(FlashTrustTest, LeavesAFileAloneThatIsNotUTF16) {
    TestFiles::write(iPath, "odd");
    EXPECT_EQ(added(iFolder), "odd");
}

TEST_F(FlashTrustTest, FallsBackToTheLibraryOnAMachineWithoutItsOwnFolder) {
    QDir(iRoot.filePath("usr")).removeRecursively();
    const QString trust = iRoot.filePath("Library/Application Support/Macromedia/FlashPlayerTrust");
    iPath = trust + "/PT.cfg";
    EXPECT_EQ(added(iFolder), utf16(iFolder));
    EXPECT_EQ(TestFiles::read(trust + ".PT.cfg"), utf16(iFolder));
}
