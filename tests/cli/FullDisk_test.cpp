#include "support/BookReader.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

// Steps of a shell in a name space of its own, where a small disk can be mounted. They are given
// the program, the folder of the book, a short document and a long one.
const QByteArray steps = R"sh(
set -e
folvero=$1 book=$2 short=$3 long=$4
files() { (cd "$book" && find . -type f -exec cksum {} + | sort); }
first() { "$folvero" publish --quiet "$short" "$book" >/dev/null && before=$(files); }
second() { code=0; "$folvero" publish --quiet "$@" "$long" "$book" >/dev/null || code=$?; }
tell() {
    echo "code $code"
    [ "$before" = "$(files)" ] && echo whole
    if [ -n "$(find "$book" -name '.folvero*')" ]; then echo leftovers; fi
}
)sh";

class FullDiskTest : public testing::Test {
protected:
    void SetUp() override {
        if (run("mount -t tmpfs none \"$book\" && echo works").output != "works\n")
            GTEST_SKIP() << "no name space with mounts of its own can be had here";
    }

    Program::Result run(const QByteArray& script) const {
        const QString how = ::geteuid() == 0 ? QStringLiteral("-m") : QStringLiteral("-rm");
        return Program::runOther(QStringLiteral("unshare"),
                                 {how, QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                                  QString::fromUtf8(steps + script), QStringLiteral("sh"),
                                  Program::path(), folder.path(),
                                  Program::sample(QStringLiteral("outline.pdf")),
                                  Program::sample(QStringLiteral("fifty.pdf"))});
    }

    QTemporaryDir folder;
};

void expectFailure(const Program::Result& result, int code, const QByteArray& file,
                   const QByteArray& cause) {
    EXPECT_EQ(result.output, "code " + QByteArray::number(code) + "\nwhole\n");
    EXPECT_TRUE(result.errors.startsWith("folvero: ")) << result.errors.constData();
    EXPECT_TRUE(result.errors.contains(file)) << result.errors.constData();
    EXPECT_TRUE(result.errors.contains(cause)) << result.errors.constData();
}

} // namespace

TEST_F(FullDiskTest, LeavesTheEarlierBookWholeWhenTheBooksDiskIsFull) {
    const auto result = run("mount -t tmpfs none \"$book\"; first\n"
                            "used=$(du -sk \"$book\" | cut -f1)\n"
                            "mount -o remount,size=$((used + 200))k \"$book\"; second; tell");
    expectFailure(result, 75, folder.path().toUtf8() + "/files/page/", "No space left on device");
}

TEST_F(FullDiskTest, LeavesTheEarlierBookWholeWhenTheDiskOfTheWorkFolderIsFull) {
    // For no page, for some, for all but not for what a web book has beyond.
    for (const QByteArray disk : {"40k; second", "1500k; second", "7000k; second --type web"}) {
        SCOPED_TRACE(disk.constData());
        const auto result = run("first; mkdir -p /tmp/Lumivex\n"
                                "mount -t tmpfs none /tmp/Lumivex -o size=" +
                                disk + "; tell\nfind /tmp/Lumivex -name 'temp.*'");
        expectFailure(result, 75, "/tmp/Lumivex/temp.", "No space left on device");
    }
}

TEST_F(FullDiskTest, LeavesTheEarlierBookWholeWhenTheFolderBecomesReadOnlyMeanwhile) {
    const auto result = run("mount -t tmpfs none \"$book\"; first\n"
                            "long=${long%fifty.pdf}thousand.pdf\n"
                            "errors=$(mktemp -u); mkfifo \"$errors\"\n"
                            "\"$folvero\" publish \"$long\" \"$book\" 2>\"$errors\" >/dev/null &\n"
                            "exec 3<\"$errors\"; rm \"$errors\"\n"
                            // Its first word on its progress: it has tried the folder by then.
                            "read progress <&3; kill -STOP $!\n"
                            "mount -o remount,ro \"$book\"; kill -CONT $!\n"
                            "code=0; sed -n '/^folvero: /p' <&3 >&2; wait $! || code=$?; tell");
    expectFailure(result, 1, folder.path().toUtf8(), "Read-only file system");
}

// Where nothing can be mounted, files of some size are what cannot be written.
TEST(FileSizeLimit, LeavesTheEarlierBookWhole) {
    const QTemporaryDir folder;
    const auto publish = [&folder](const char* before, const char* document) {
        return Program::runOther(QStringLiteral("/bin/sh"),
                                 {QStringLiteral("-c"),
                                  QString::fromLatin1(before) + QStringLiteral("exec \"$@\""),
                                  QStringLiteral("sh"), Program::path(), QStringLiteral("publish"),
                                  QStringLiteral("--quiet"),
                                  Program::sample(QString::fromLatin1(document)), folder.path()});
    };
    ASSERT_EQ(publish("", "outline.pdf").exitCode, 0);
    const auto before = BookReader::contentsBeneath(folder.path());
    const auto result = publish("ulimit -f 200; ", "links.pdf");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.contains("index.html: File too large")) << result.errors.constData();
    EXPECT_EQ(BookReader::contentsBeneath(folder.path()), before);
}

TEST(FileInPlaceOfAFolder, LeavesTheEarlierBookWhole) {
    const QTemporaryDir folder;
    TestFiles::write(folder.filePath(QStringLiteral("files/page")), "mine");
    TestFiles::write(folder.filePath(QStringLiteral("index.html")), "mine");
    const auto before = BookReader::contentsBeneath(folder.path());
    const auto result = Program::run(
        {QStringLiteral("publish"), QStringLiteral("--quiet"), QStringLiteral("--force"),
         Program::sample(QStringLiteral("outline.pdf")), folder.path()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.contains("/files/page: File exists")) << result.errors.constData();
    EXPECT_EQ(BookReader::contentsBeneath(folder.path()), before);
}
