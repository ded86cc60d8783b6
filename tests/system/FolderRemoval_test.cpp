#include "system/FolderRemoval.h"

#include "support/BookReader.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class FolderRemovalTest : public testing::Test {
protected:
    FolderRemovalTest() { TestFiles::write(path("kept/file"), "x"); }

    QString path(const char* name) const { return iRoot.filePath(QString::fromLatin1(name)); }
    bool isKept() const { return QFileInfo::exists(path("kept/file")); }

private:
    QTemporaryDir iRoot;
};

TEST_F(FolderRemovalTest, TakesAllThatLiesBeneathButFollowsNoLink) {
    TestFiles::write(path("gone/a/b/.hidden"), "x");
    ASSERT_TRUE(QFile::link(path("kept"), path("gone/a/folder")));
    ASSERT_TRUE(QFile::link(path("kept/file"), path("gone/file")));
    EXPECT_TRUE(FolderRemoval::remove(path("gone")));
    EXPECT_FALSE(QFileInfo::exists(path("gone")));
    EXPECT_TRUE(isKept());
}

TEST_F(FolderRemovalTest, RemovesALinkInPlaceOfAFolderAsALink) {
    for (const char* ending : {"", "/"}) {
        ASSERT_TRUE(QFile::link(path("kept"), path("link")));
        EXPECT_TRUE(FolderRemoval::remove(path("link") + QString::fromLatin1(ending)));
        EXPECT_FALSE(QFileInfo(path("link")).isSymLink());
        EXPECT_TRUE(isKept());
    }
}

} // namespace
