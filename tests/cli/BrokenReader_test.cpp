#include "platform/Bundle.h"
#include "support/BookReader.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Passes questions on to the real worker, until one comes that is said to break the engine.
const QByteArray breakingReader = R"(#!/usr/bin/env python3
import os, subprocess, sys
real, breaking = %REAL%, %BREAKING%
if sys.argv[1] == "draw":
    os.execv(real, [real, "draw"])
child = subprocess.Popen([real] + sys.argv[1:], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
def passOn():
    sys.stdout.buffer.write(child.stdout.readline())
    sys.stdout.flush()
passOn()
passOn()
for question in sys.stdin.buffer:
    if question.split()[0] in breaking:
        os.kill(child.pid, 9)
        os.abort()
    child.stdin.write(question)
    child.stdin.flush()
    passOn()
)";

} // namespace

// An installation of its own, whose reader breaks at both parts that a book can do without.
TEST(BrokenReader, CostsTheLinksAndTheBookmarksAndNotTheBook) {
    const QTemporaryDir folder;
    const QDir root(folder.path());
    ASSERT_TRUE(root.mkpath(QStringLiteral("bin")));
    ASSERT_TRUE(root.mkpath(QStringLiteral("libexec/folvero")));
    const QString program = root.filePath(QStringLiteral("bin/folvero"));
    ASSERT_TRUE(QFile::copy(Program::path(), program));
    ASSERT_TRUE(QFile::link(Program::path(QStringLiteral("../share")),
                            root.filePath(QStringLiteral("share"))));
    const QString worker = root.filePath(QStringLiteral("libexec/folvero/folvero-page-worker"));
    TestFiles::write(worker,
                     QByteArray(breakingReader)
                         .replace("%REAL%", '"' + QFile::encodeName(Bundle::pageWorkerPath()) + '"')
                         .replace("%BREAKING%", R"([b"annotations", b"outline"])"));
    ASSERT_TRUE(QFile::setPermissions(worker, QFile::permissions(program)));

    const QString book = root.filePath(QStringLiteral("book"));
    const auto result = Program::runOther(
        program, {QStringLiteral("publish"), Program::sample(QStringLiteral("links.pdf")), book,
                  QStringLiteral("--links"), QStringLiteral("--bookmarks")});
    EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
    EXPECT_TRUE(result.errors.contains("links: page 1 and 5 more: the program that reads PDF"))
        << result.errors.constData();
    EXPECT_TRUE(result.errors.contains("bookmarks: ")) << result.errors.constData();
    EXPECT_TRUE(QFile::exists(book + QStringLiteral("/files/page/1.jpg")));
    EXPECT_TRUE(TestFiles::read(book + QStringLiteral("/index.html")).contains("<title>Links"))
        << "the title is read before";
}
