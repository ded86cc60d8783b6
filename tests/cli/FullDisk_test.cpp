#include "cli/BookTest.h"

#include <unistd.h>

namespace {

// Functions of a shell in a namespace of its own, where a small disk can be mounted. Its arguments
// are the program, the folder of the book, a short document and a long one.
const char steps[] = R"sh(
set -e
unset TMPDIR
folvero=$1 book=$2 short=$3 long=$4
files() { (cd "$book" && find . -type f -exec cksum {} + | sort); }
first() { "$folvero" publish --quiet --type html "$short" "$book" >/dev/null && before=$(files); }
second() { code=0; "$folvero" publish --quiet --type ${1:-html} "$long" "$book" >/dev/null || code=$?; }
report() {
    echo "code $code"
    [ "$before" = "$(files)" ] && echo whole
    if [ -n "$(find "$book" -name '.folvero*')" ]; then echo leftovers; fi
}
)sh";

class FullDiskTest : public BookTest {
protected:
    void SetUp() override {
        if (run("mount -t tmpfs none \"$book\" && echo works").output != "works\n")
            GTEST_SKIP() << "no namespace with mounts of its own can be had here";
    }

    Program::Result run(const QByteArray& script) const {
        return Program::runOther("unshare",
                                 {::geteuid() == 0 ? "-m" : "-rm", "/bin/sh", "-c", steps + script,
                                  "sh", Program::path(), iRoot.path(),
                                  Program::sample("outline.pdf"), Program::sample("fifty.pdf")});
    }

    void expectFailure(const QByteArray& script, int code, const QByteArray& file,
                       const QByteArray& cause) const {
        SCOPED_TRACE(script.constData());
        const auto result = run(script);
        EXPECT_EQ(result.output, "code " + QByteArray::number(code) + "\nwhole\n");
        EXPECT_TRUE(result.errors.startsWith("folvero: ") && result.errors.contains(file) &&
                    result.errors.contains(cause))
            << result.errors.constData();
    }
};

} // namespace

TEST_F(FullDiskTest, LeavesTheEarlierBookWholeWhenTheBooksDiskIsFull) {
    expectFailure("mount -t tmpfs none \"$book\"; first\n"
                  "used=$(du -sk \"$book\" | cut -f1)\n"
                  "mount -o remount,size=$((used + 200))k \"$book\"; second; report",
                  75, iRoot.path().toUtf8() + "/files/page/", "No space left on device");
}

TEST_F(FullDiskTest, LeavesTheEarlierBookWholeWhenTheDiskOfTheWorkFolderIsFull) {
    // For no page, and for some.
    for (const QByteArray disk : {"40k; second", "1500k; second", "400k; second web"})
        expectFailure("first; mkdir -p /tmp/Lumivex\n"
                      "mount -t tmpfs none /tmp/Lumivex -o size=" +
                          disk + "; report\nfind /tmp/Lumivex -name 'temp.*'",
                      75, "/tmp/Lumivex/temp.", "No space left on device");
    const auto elsewhere = run("mount -t tmpfs none \"$book\"; mkdir -p /tmp/Lumivex\n"
                               "mount -t tmpfs none /tmp/Lumivex -o size=40k\n"
                               "export TMPDIR=$book; second; echo $code; ls -A /tmp/Lumivex $book");
    EXPECT_TRUE(elsewhere.output.startsWith("0\n") && !elsewhere.output.contains("temp."))
        << elsewhere.output.constData() << elsewhere.errors.constData();
}

TEST_F(FullDiskTest, PublishesWhereFoldersCannotBeMoved) {
    const auto result = run("mount -t tmpfs none \"$book\"; cd \"$book\"; mkdir lower u w overlay\n"
                            "book=$PWD/lower; first; book=$PWD/overlay\n"
                            "mount -t overlay none -o lowerdir=lower,upperdir=u,workdir=w overlay"
                            " || { echo none; exit; }\n"
                            "second; report; book=$PWD/fresh; second; diff -rx '.*' overlay fresh");
    if (result.output == "none\n")
        GTEST_SKIP() << "no overlay can be mounted here";
    EXPECT_EQ(result.output, "code 0\n") << result.errors.constData();
}

TEST_F(FullDiskTest, LeavesTheEarlierBookWholeWhenTheFolderBecomesReadOnlyMeanwhile) {
    expectFailure("mount -t tmpfs none \"$book\"; first\n"
                  "long=${long%fifty.pdf}thousand.pdf\n"
                  "errors=$(mktemp -u); mkfifo \"$errors\"\n"
                  "\"$folvero\" publish --type html \"$long\" \"$book\" "
                  ">/dev/null 2>\"$errors\" &\n"
                  "exec 3<\"$errors\"; rm \"$errors\"\n"
                  // By its first line of progress it has tried the folder.
                  "read progress <&3; kill -STOP $!\n"
                  "mount -o remount,ro \"$book\"; kill -CONT $!\n"
                  "code=0; sed -n '/^folvero: /p' <&3 >&2; wait $! || code=$?; report",
                  75, iRoot.path().toUtf8(), "Read-only file system");
}

using FileSizeLimit = BookTest;

// Going over it is a signal, which ends programs that are not prepared.
TEST_F(FileSizeLimit, LeavesTheEarlierBookWhole) {
    published("outline.pdf");
    const auto before = contents();
    const auto result = Program::runOther(
        "/bin/sh", {"-c", "ulimit -f 200; exec \"$@\"", "sh", Program::path(), "publish", "--quiet",
                    "--type=html", Program::sample("links.pdf"), book()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.contains("index.html: File too large")) << result.errors.constData();
    EXPECT_EQ(contents(), before);
}

// Root may start any number of processes.
TEST(ProcessLimit, IsAReasonToTryAgain) {
    const QString user = ::geteuid() == 0 ? "setpriv --reuid=65534 --clear-groups" : "";
    const auto run = [&](const QString& limit, const QString& arguments) {
        return Program::runOther("/bin/sh",
                                 {"-c", user + " prlimit " + limit + " \"$0\" " + arguments,
                                  Program::path(), Program::sample("outline.pdf")});
    };
    if (run("--nproc", "--version").exitCode != 0)
        GTEST_SKIP() << "an ordinary user can't run the program from here";
    for (const char* limit : {"--nproc=1", "--nproc=6", "--nproc=10"}) {
        const auto result = run(limit, "publish \"$1\" /tmp/not-made --quiet");
        EXPECT_EQ(result.exitCode, 75) << limit << result.errors.constData();
    }
    EXPECT_FALSE(QFileInfo::exists("/tmp/not-made"));
}
