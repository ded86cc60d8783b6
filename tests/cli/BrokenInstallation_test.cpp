#include "cli/BookTest.h"

namespace {

// A copy of the program, which looks for its resources and its page worker beside itself.
class BrokenInstallation : public BookTest {
protected:
    BrokenInstallation() {
        for (const QString& name : {QString("bin/folvero"), worker}) {
            QDir(iRoot.path()).mkpath(QFileInfo(name).path());
            EXPECT_TRUE(QFile::copy(Program::path("../" + name), path(name)));
        }
    }

    Program::Result publish(const QString& document, const QString& resources,
                            const QString& type = "html") const {
        QFile::link(resources, path("share"));
        return Program::runOther(path("bin/folvero"),
                                 {"publish", "--links", "--bookmarks", "--quiet", "--type", type,
                                  Program::sample(document), book()});
    }
    void replaceWorker(const QByteArray& script) const {
        ASSERT_TRUE(QFile::rename(path(worker), path(worker + "-real")));
        TestFiles::write(path(worker), script);
        QFile::setPermissions(path(worker), QFile::permissions(path("bin/folvero")));
    }

    const QString worker = "libexec/folvero/folvero-page-worker";
};

// Passes questions on to the real worker until one comes that breaks it.
const QByteArray breakingReader = R"(#!/usr/bin/env python3
import os, subprocess, sys
real = sys.argv[0] + "-real"
if sys.argv[1] == "draw":
    os.execv(real, [real, "draw"])
child = subprocess.Popen([real] + sys.argv[1:], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
def passOn():
    sys.stdout.buffer.write(child.stdout.readline())
    sys.stdout.flush()
child.stdin.write(sys.stdin.buffer.readline())
child.stdin.flush()
passOn()
passOn()
for question in sys.stdin.buffer:
    if question.split()[0] in [b"annotations", b"outline"]:
        os.kill(child.pid, 9)
        os.abort()
    child.stdin.write(question)
    child.stdin.flush()
    passOn()
)";

} // namespace

TEST_F(BrokenInstallation, NamesWhatIsWrongWithItsTemplates) {
    TemplateLibrary library;
    QDir().mkpath(path("resources"));
    QFile::link(library.path(), path("resources/folvero"));
    const auto expectFailure = [this](const char* cause, const char* type = "html") {
        const auto result = publish("outline.pdf", path("resources"), type);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_TRUE(result.errors.contains(cause)) << result.errors.constData();
        EXPECT_FALSE(exists({}));
    };
    expectFailure(": holds no templates; the program is not installed completely\n");
    const auto listed = Program::runOther(path("bin/folvero"), {"templates", "--json"});
    EXPECT_EQ(listed.exitCode, 1);
    EXPECT_TRUE(listed.errors.contains("share/folvero: holds no templates"));
    for (const QByteArray& xml : {QByteArray("<template></template>"), QByteArray("\0\1\2", 3),
                                  QByteArray("no markup"), QByteArray()}) {
        library.addTemplateFile("float", xml);
        expectFailure("float/flashTemplate.xml");
    }
    library.addTemplate("float");
    expectFailure("mac.app/Contents/: is missing; the program is not installed", "app");
    const QString page = library.templatePath("float") + "/index.html";
    ASSERT_TRUE(QFile::rename(page, path("page.html")) && QFile::link(path("page.html"), page));
    for (const char* type : {"html", "web"})
        expectFailure("index.html: the page of the template \"float\" is missing", type);
}

TEST_F(BrokenInstallation, CostsTheLinksAndTheBookmarksAndNotTheBook) {
    replaceWorker(breakingReader);
    const auto result = publish("links.pdf", Program::path("../share"));
    EXPECT_EQ(result.exitCode, 0);
    for (const char* cause :
         {"links: page 1 and 5 more: the program that reads PDF", "bookmarks: "})
        EXPECT_TRUE(result.errors.contains(cause)) << result.errors.constData();
    EXPECT_TRUE(exists("files/page/1.jpg"));
    EXPECT_TRUE(TestFiles::read(file("index.html")).contains("<title>Links"));
}

TEST_F(BrokenInstallation, CostsTheTextOfADocumentWhosePermissionsCannotBeRead) {
    replaceWorker(QByteArray(breakingReader).replace("annotations", "viewing"));
    EXPECT_EQ(publish("text.pdf", Program::path("../share"), "web").exitCode, 0);
    EXPECT_TRUE(exists("files/page/1.png"));
    EXPECT_FALSE(exists("text.html"));
}

// Keeps what the drawing workers are asked for.
TEST_F(BrokenInstallation, DrawsEachPageOnceAndNamesThoseThatAWebBookHasAPictureOfOnly) {
    replaceWorker("#!/bin/sh\n[ $1 = draw ] || exec \"$0-real\" \"$@\"\n"
                  "tee -a \"$0.asked\" | \"$0-real\" draw | sed -u 's/^ok .*/& too large/'\n");
    const auto result = publish("links.pdf", Program::path("../share"), "web");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.errors.contains("folvero: page 6 has its picture only: too large"));
    const QByteArray asked = TestFiles::read(path(worker + ".asked"));
    for (int page = 1; page <= 6; ++page)
        EXPECT_EQ(asked.count('\n' + QByteArray::number(page) + " web\n"), 1) << asked.constData();
}
