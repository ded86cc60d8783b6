#include "output/PublishTransaction.h"

#include "platform/PlatformException.h"
#include "support/BookReader.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Transaction : public testing::Test {
protected:
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    QStringList files() const { return BookReader::filesBeneath(folder.path()); }
    QStringList entries() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
};

TEST_F(Transaction, ChangesNothingBeforeItsCommit) {
    TestFiles::write(path("a"), "old");
    TestFiles::write(path("b"), "old");
    PublishTransaction run(folder.path());
    run.write(path("a"), "new");
    run.remove(path("b"));
    run.makeFolder(path("c/d"));
    EXPECT_EQ(TestFiles::read(path("a")), "old");
    EXPECT_TRUE(QFileInfo::exists(path("b")));
    EXPECT_FALSE(QFileInfo::exists(path("c")));
    EXPECT_TRUE(run.willExist(path("a")));
    EXPECT_FALSE(run.willExist(path("b")));
    EXPECT_TRUE(run.willExist(path("c/d")));
    run.commit();
    EXPECT_EQ(TestFiles::read(path("a")), "new");
    EXPECT_FALSE(QFileInfo::exists(path("b")));
    EXPECT_TRUE(QFileInfo(path("c/d")).isDir());
}

TEST_F(Transaction, LeavesNothingOfItselfBehind) {
    TestFiles::write(path("a"), "old");
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        run.write(path("b/c"), "new");
        run.commit();
    }
    EXPECT_EQ(entries(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    {
        PublishTransaction run(path("new/folder"));
        run.write(path("new/folder/a"), "x");
    }
    EXPECT_EQ(entries(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

TEST_F(Transaction, TakesTheLastWordOnAFile) {
    TestFiles::write(path("a"), "old");
    PublishTransaction run(folder.path());
    run.write(path("a"), "first");
    run.write(path("./a"), "second");
    run.write(path("b"), "x");
    run.remove(path("b"));
    run.remove(path("c"));
    run.write(path("c"), "back");
    run.commit();
    EXPECT_EQ(TestFiles::read(path("a")), "second");
    EXPECT_FALSE(QFileInfo::exists(path("b")));
    EXPECT_EQ(TestFiles::read(path("c")), "back");
}

TEST_F(Transaction, PutsBackWhatItReplacedWhenALaterFileCannotBePlaced) {
    TestFiles::write(path("a"), "old");
    TestFiles::write(path("taken/inside"), "x");
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        run.write(path("new/b"), "new");
        run.remove(path("taken/inside"));
        run.write(path("taken"), "new");
        EXPECT_THROW(run.commit(), PlatformException);
    }
    EXPECT_EQ(TestFiles::read(path("a")), "old");
    EXPECT_EQ(entries(), (QStringList{QStringLiteral("a"), QStringLiteral("taken")}));
    EXPECT_EQ(TestFiles::read(path("taken/inside")), "x");
}

TEST_F(Transaction, NamesTheFileAndTheCauseOfAFailure) {
    TestFiles::write(path("file"), "x");
    PublishTransaction run(folder.path());
    run.write(path("file/beneath"), "x");
    try {
        run.commit();
        FAIL() << "a file was written beneath a file";
    } catch (const PlatformException& failure) {
        EXPECT_EQ(failure.reason(), path("file") + QStringLiteral(": File exists"));
    }
}

TEST_F(Transaction, ReplacesALinkNotWhatItPointsTo) {
    TestFiles::write(path("outside"), "kept");
    ASSERT_TRUE(QFile::link(path("outside"), path("a")));
    ASSERT_TRUE(QFile::link(path("missing"), path("b")));
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        run.write(path("b"), "new");
        run.commit();
    }
    EXPECT_EQ(TestFiles::read(path("outside")), "kept");
    EXPECT_EQ(TestFiles::read(path("a")), "new");
    EXPECT_FALSE(QFileInfo(path("b")).isSymLink());
}

TEST_F(Transaction, ClearsAwayOnlyWhatDeadProcessesLeft) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    ::waitpid(child, nullptr, 0);
    const QString stale = path(".folvero-publish-%1-abcdef").arg(child);
    const QString live = path(".folvero-publish-%1-abcdef").arg(::getppid());
    for (const QString& name : {stale, live})
        TestFiles::write(name + QStringLiteral("/1"), "x");
    { const PublishTransaction run(folder.path()); }
    EXPECT_FALSE(QFileInfo::exists(stale));
    EXPECT_TRUE(QFileInfo::exists(live));
    EXPECT_EQ(files().size(), 1);
}

TEST_F(Transaction, SurvivesTheDeathOfTheProcess) {
    TestFiles::write(path("a"), "old");
    const pid_t child = ::fork();
    if (child == 0) {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    EXPECT_EQ(TestFiles::read(path("a")), "old");
    EXPECT_EQ(files().size(), 2);
    { const PublishTransaction run(folder.path()); }
    EXPECT_EQ(entries(), QStringList{QStringLiteral("a")});
}

} // namespace
