#include "app/MirelUtility.h"

#include "support/TemplateLibrary.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

// Stands in for dbus-send, which ends with that code, and for xdg-open.
class FakePrograms {
public:
    explicit FakePrograms(int dbusExitCode) {
        add("dbus-send", dbusExitCode);
        add("xdg-open", 0);
        qputenv("PATH", iFolder.path().toUtf8() + ':' + iFormerPath);
    }
    ~FakePrograms() { qputenv("PATH", iFormerPath); }
    FakePrograms(const FakePrograms&) = delete;
    FakePrograms& operator=(const FakePrograms&) = delete;

    // Empty when the program did not run within some seconds.
    QStringList argumentsOf(const QString& name) const {
        const QString record = iFolder.filePath(name + ".ran");
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < 10'000; QThread::msleep(10)) {
            if (QFileInfo::exists(record))
                return QString::fromUtf8(TestFiles::read(record)).split(u'\n', Qt::SkipEmptyParts);
        }
        return {};
    }

private:
    void add(const QString& name, int exitCode) {
        TestFiles::write(iFolder.filePath(name), "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$0.new\"\n"
                                                 "mv \"$0.new\" \"$0.ran\"\nexit " +
                                                     QByteArray::number(exitCode) + '\n');
        QFile::setPermissions(iFolder.filePath(name), QFile::ReadOwner | QFile::ExeOwner);
    }

    QTemporaryDir iFolder;
    QByteArray iFormerPath = qgetenv("PATH");
};

} // namespace

TEST(MirelUtility, ListsImagesByTheirExactEnding) {
    const QTemporaryDir folder;
    for (const char* name : {"b.png", "a.JPG", "b.jpeg", "a.jpg", ".png", "c.png.txt", "jpg"})
        TestFiles::write(folder.filePath(name), "x");
    QDir(folder.path()).mkdir("d.jpg");
    TestFiles::write(folder.filePath("e/f.jpg"), "x");
    EXPECT_EQ(MirelUtility::imageFilesOfDiractoryAtPath(folder.path()),
              QStringList({".png", "a.jpg", "b.png", "d.jpg"}));
}

TEST(MirelUtility, ListsFoldersBeforeTheirContents) {
    const QTemporaryDir folder;
    const QDir base(folder.path());
    base.mkpath("x/y");
    base.mkpath("w/.z");
    TestFiles::write(base.filePath("x/file"), "x");
    QFile::link(folder.path(), base.filePath("x/link"));
    QFile::link("nowhere", base.filePath("dangling"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(base.filePath("pipe")).constData(), 0600), 0);
    EXPECT_EQ(MirelUtility::subFolderOfFolder(folder.path()),
              QStringList({base.filePath("w"), base.filePath("w/.z"), base.filePath("x"),
                           base.filePath("x/y")}));
}

TEST(MirelUtility, AsksTheFileManagerToSelectAFileOrElseOpensTheFolder) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("a, \"b\"#ü $(c).pdf");
    TestFiles::write(file, "x");
    {
        const FakePrograms programs(0);
        MirelUtility::openFolderFromFolderOrFile(file);
        EXPECT_TRUE(programs.argumentsOf("dbus-send")
                        .contains("array:string:file://" + folder.path() +
                                  "/a%2C%20%22b%22%23%C3%BC%20$(c).pdf"));
    }
    for (const QString& path : {file, folder.path() + '/'}) {
        const FakePrograms programs(1);
        MirelUtility::openFolderFromFolderOrFile(path);
        EXPECT_EQ(programs.argumentsOf("xdg-open"), QStringList(folder.path()));
    }
}
