#include "app/MirelUtility.h"
#include "platform/Folders.h"
#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QStringConverter>
#include <gtest/gtest.h>

namespace {

// Moves the machine's folders beneath a temporary one.
class FlashTrustTest : public testing::Test {
protected:
    FlashTrustTest() {
        Folders::setMachineRoot(iRoot.path());
        QDir(iRoot.path()).mkpath(QStringLiteral("usr/local/share"));
        iPath = Folders::machineApplicationSupport() +
                QStringLiteral("/Macromedia/FlashPlayerTrust/PT.cfg");
    }
    ~FlashTrustTest() override { Folders::setMachineRoot(QString()); }

    static QByteArray encoded(const QString& text, QStringConverter::Encoding encoding) {
        QStringEncoder encode(encoding, QStringConverter::Flag::WriteBom);
        return encode(text);
    }
    void write(const QString& text) {
        TestFiles::write(iPath, encoded(text, QStringConverter::Utf16));
    }
    QByteArray content() const { return TestFiles::read(iPath); }
    void expectText(const QString& text) const {
        EXPECT_EQ(content().toHex(), encoded(text, QStringConverter::Utf16).toHex());
    }

    QTemporaryDir iRoot;
    QString iPath;
    QString iFolder = QStringLiteral("/home/ü/preview/");
};

} // namespace

TEST_F(FlashTrustTest, WritesTheFirstFolder) {
    const RecordedLog log;
    MirelUtility::makeDiractoryTrustByFlash(iFolder);
    expectText(iFolder);
    EXPECT_EQ(log.texts(), QStringList({QStringLiteral("trust folder is:") + iPath,
                                        QStringLiteral("file is exits!!")}));
    EXPECT_TRUE(QDir(Folders::libraryApplicationSupport())
                    .exists(QStringLiteral("Macromedia/FlashPlayerTrust")));
}

TEST_F(FlashTrustTest, AddsAFolderOnce) {
    for (const QString& folder : {iFolder, QStringLiteral("/b"), iFolder})
        MirelUtility::makeDiractoryTrustByFlash(folder);
    expectText(iFolder + QStringLiteral("\n/b"));
}

TEST_F(FlashTrustTest, ComparesWholeLinesOnly) {
    const struct {
        QString before;
        QString after;
    } cases[] = {
        {iFolder + QStringLiteral("\r\n/b"), iFolder + QStringLiteral("\r\n/b\n") + iFolder},
        {u'x' + iFolder, u'x' + iFolder + u'\n' + iFolder},
        {QStringLiteral("/b\n"), QStringLiteral("/b\n\n") + iFolder},
        {QStringLiteral(""), u'\n' + iFolder},
    };
    for (const auto& [before, after] : cases) {
        write(before);
        MirelUtility::makeDiractoryTrustByFlash(iFolder);
        expectText(after);
    }
}

TEST_F(FlashTrustTest, ReadsTheOtherByteOrder) {
    TestFiles::write(iPath, encoded(QStringLiteral("/b"), QStringConverter::Utf16BE));
    MirelUtility::makeDiractoryTrustByFlash(iFolder);
    expectText(QStringLiteral("/b\n") + iFolder);
}

TEST_F(FlashTrustTest, LeavesAFileAloneThatIsNotUTF16) {
    TestFiles::write(iPath, "odd");
    MirelUtility::makeDiractoryTrustByFlash(iFolder);
    EXPECT_EQ(content(), "odd");
}

TEST_F(FlashTrustTest, TellsWhenThereIsNoFile) {
    // A file in the place of the machine's folder.
    Folders::setMachineRoot(iRoot.filePath(QStringLiteral("file")));
    TestFiles::write(iRoot.filePath(QStringLiteral("file")), "x");
    const RecordedLog log;
    MirelUtility::makeDiractoryTrustByFlash(iFolder);
    EXPECT_EQ(log.texts().last(), u"file doest not exits!!!!!!!!!");
}

TEST_F(FlashTrustTest, FallsBackToTheLibraryOnAMachineWithoutItsOwnFolder) {
    QDir(iRoot.filePath(QStringLiteral("usr"))).removeRecursively();
    MirelUtility::makeDiractoryTrustByFlash(iFolder);
    const QString trust =
        iRoot.filePath(QStringLiteral("Library/Application Support/Macromedia/FlashPlayerTrust"));
    iPath = trust + QStringLiteral("/PT.cfg");
    expectText(iFolder);
    iPath = trust + QStringLiteral(".PT.cfg");
    expectText(iFolder);
}
