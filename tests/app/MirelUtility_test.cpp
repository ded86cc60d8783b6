#include "app/MirelUtility.h"

#include "support/TemplateLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

// Puts programs of the test's own before those of the machine.
class FakePrograms {
public:
    FakePrograms() { qputenv("PATH", iFolder.path().toUtf8() + ':' + iFormerPath); }
    ~FakePrograms() { qputenv("PATH", iFormerPath); }
    FakePrograms(const FakePrograms&) = delete;
    FakePrograms& operator=(const FakePrograms&) = delete;

    // Writes its arguments, a line each, to a file when it runs.
    void add(const char* name, int exitCode) {
        const QString program = iFolder.filePath(QString::fromLatin1(name));
        TestFiles::write(program, "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$0.new\"\n"
                                  "mv \"$0.new\" \"$0.ran\"\nexit " +
                                      QByteArray::number(exitCode) + '\n');
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    }
    // The arguments it was given; empty when it didn't run within some seconds.
    QStringList argumentsOf(const char* name) const {
        const QString record = iFolder.filePath(QString::fromLatin1(name)) + QStringLiteral(".ran");
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < 10'000; QThread::msleep(10)) {
            if (QFileInfo::exists(record))
                return QString::fromUtf8(TestFiles::read(record)).split(u'\n', Qt::SkipEmptyParts);
        }
        return {};
    }

private:
    QTemporaryDir iFolder;
    QByteArray iFormerPath = qgetenv("PATH");
};

} // namespace

TEST(MirelUtility, MakesANewFolderAtEachCall) {
    const QString name = QStringLiteral("folvero-test-%1").arg(QCoreApplication::applicationPid());
    const QString first = MirelUtility::forceTmpDiractory(name);
    const QString second = MirelUtility::forceTmpDiractory(name);
    EXPECT_NE(first, second);
    for (const QString& path : {first, second}) {
        EXPECT_TRUE(QFileInfo(path).isDir());
        EXPECT_TRUE(path.startsWith(QStringLiteral("/tmp/%1/temp.").arg(name)));
        EXPECT_EQ(QFileInfo(path).fileName().size(), 11);
    }
    QDir(QStringLiteral("/tmp/") + name).removeRecursively();
}

TEST(MirelUtility, ListsImagesByTheirExactEnding) {
    const QTemporaryDir folder;
    for (const char* name : {"b.png", "a.JPG", "b.jpeg", "a.jpg", ".png", "c.png.txt", "jpg"})
        TestFiles::write(folder.filePath(QString::fromLatin1(name)), "x");
    QDir(folder.path()).mkdir(QStringLiteral("d.jpg"));
    TestFiles::write(folder.filePath(QStringLiteral("e/f.jpg")), "x");
    EXPECT_EQ(MirelUtility::imageFilesOfDiractoryAtPath(folder.path()),
              QStringList({QStringLiteral(".png"), QStringLiteral("a.jpg"), QStringLiteral("b.png"),
                           QStringLiteral("d.jpg")}));
    EXPECT_TRUE(
        MirelUtility::imageFilesOfDiractoryAtPath(folder.filePath(QStringLiteral("x"))).isEmpty());
}

TEST(MirelUtility, ListsFoldersBeforeTheirContents) {
    const QTemporaryDir folder;
    const QDir base(folder.path());
    base.mkpath(QStringLiteral("x/y"));
    base.mkpath(QStringLiteral("w/.z"));
    TestFiles::write(base.filePath(QStringLiteral("x/file")), "x");
    QFile::link(folder.path(), base.filePath(QStringLiteral("x/link")));
    QFile::link(QStringLiteral("nowhere"), base.filePath(QStringLiteral("dangling")));
    ASSERT_EQ(::mkfifo(QFile::encodeName(base.filePath(QStringLiteral("pipe"))).constData(), 0600),
              0);
    EXPECT_EQ(
        MirelUtility::subFolderOfFolder(folder.path()),
        QStringList({base.filePath(QStringLiteral("w")), base.filePath(QStringLiteral("w/.z")),
                     base.filePath(QStringLiteral("x")), base.filePath(QStringLiteral("x/y"))}));
    EXPECT_TRUE(MirelUtility::subFolderOfFolder(base.filePath(QStringLiteral("v"))).isEmpty());
}

TEST(MirelUtility, MakesMD5Texts) {
    EXPECT_EQ(MirelUtility::MD5StringOfString(QStringLiteral("")),
              u"d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(MirelUtility::MD5StringOfString(QStringLiteral("ü")),
              MirelUtility::MD5StringOfData("\xC3\xBC"));
    EXPECT_EQ(MirelUtility::MD5DataOfString(QStringLiteral("abc")).toHex(),
              "900150983cd24fb0d6963f7d28e17f72");
}

TEST(MirelUtility, AsksTheFileManagerToSelectAFile) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a, b#ü $(c).pdf"));
    TestFiles::write(file, "x");
    FakePrograms programs;
    programs.add("dbus-send", 0);
    MirelUtility::openFolderFromFolderOrFile(file);
    const QStringList arguments = programs.argumentsOf("dbus-send");
    ASSERT_GE(arguments.size(), 2);
    EXPECT_EQ(arguments[arguments.size() - 2],
              QStringLiteral("array:string:file://%1/a%2C%20b%23%C3%BC%20$(c).pdf")
                  .replace(QStringLiteral("%1"), folder.path()));
}

TEST(MirelUtility, OpensTheFolderWhereNoFileManagerAnswers) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a \"b\".pdf"));
    TestFiles::write(file, "x");
    for (const QString& path : {file, folder.path() + u'/'}) {
        FakePrograms programs;
        programs.add("dbus-send", 1);
        programs.add("xdg-open", 0);
        MirelUtility::openFolderFromFolderOrFile(path);
        EXPECT_EQ(programs.argumentsOf("xdg-open"), QStringList(folder.path()));
    }
}
