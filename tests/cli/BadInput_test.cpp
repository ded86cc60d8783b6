#include "cli/BookTest.h"

#include <sys/stat.h>

namespace {

class BadInputTest : public BookTest {
protected:
    // Publishing must fail with one line about the cause and leave no new folder behind.
    void expectRefused(const QStringList& arguments, int exitCode, const QByteArray& cause) const {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        const auto result = Program::run(QStringList{"publish"} + arguments);
        EXPECT_EQ(result.exitCode, exitCode);
        EXPECT_TRUE(result.output.isEmpty());
        EXPECT_EQ(result.errors.count('\n'), 1);
        EXPECT_TRUE(result.errors.startsWith("folvero: ") && result.errors.contains(cause))
            << result.errors.constData();
        EXPECT_FALSE(QFileInfo::exists(path("deep")));
    }

    const QString sample = Program::sample("outline.pdf");
    const QString newFolder = path("deep/er/out");
};

} // namespace

TEST_F(BadInputTest, NamesTheDocumentAndWhatIsWrongWithIt) {
    const QString pipe = path("pipe.pdf");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const std::pair<QString, const char*> cases[] = {
        {"/nowhere/missing.pdf", "no such file"},
        {Program::sample("empty.pdf"), "the file is empty"},
        {Program::sample("not-a-pdf.pdf"), "is not a PDF document"},
        {Program::sample("truncated.pdf"), "is damaged"},
        {Program::sample("encrypted.pdf"), "is protected by a password"},
        {Program::sample("zero-pages.pdf"), "the document has no pages"},
        {iRoot.path(), "is a folder"},
        {pipe, "is a pipe or a device"},
        {"/dev/zero", "is a pipe or a device"},
    };
    for (const auto& [document, cause] : cases)
        expectRefused({document, newFolder}, 1, document.toUtf8() + ": " + cause);
    expectRefused({"", newFolder}, 2, "the name of the PDF file is empty");
}

TEST_F(BadInputTest, RefusesOptionsThatCannotBeMet) {
    const struct {
        QStringList options;
        int exitCode;
        const char* cause;
    } cases[] = {
        {{"--pages=0"}, 1, "names no page"},
        {{"--pages=letters"}, 1, "\"letters\" names no page"},
        {{"--pages=99999999999999999999"}, 1, "has pages 1 to 9"},
        {{"--name=a/b"}, 2, "\"a/b\""},
        {{"--name="}, 2, "--name"},
        {{"--name=.html"}, 2, "--name"},
        {{"--type=exe"}, 2, "--type"},
        {{"--template=nope"}, 1, "there are: cinema, deck, desk, float"},
        {{"--template=../float"}, 1, "no template \"../float\""},
        {{"--style=nope"}, 1, "Blank"},
        {{"--set=nope=1"}, 2, "no property \"nope\""},
        {{"--set=topMargin=wide"}, 2, "topMargin: \"wide\" is not a number"},
        {{"--set=mainColor=red"}, 2, "is not a colour"},
        {{"--set=InitialShow=Jump"}, 2, "None, Fade in, Rise, Drop"},
        {{"--set=AutoPlay=perhaps"}, 2, "YES or NO"},
        {{"--set=mainbgImgUrl=/nowhere.png"}, 2, "an existing file"},
        {{"--set=mainbgImgUrl=STYLE_RESOURCE:../Garden/a.jpg"}, 2, "is not a file of the style"},
        {{"--settings=/nowhere.txt"}, 1, "/nowhere.txt"},
        {{"--quality=101"}, 2, "--quality"},
        {{"--single-file"}, 2, "--single-file is for web books only; add --type web"},
        {{"--preview-pages=1", "--type=app"}, 2, "--preview-pages is for web books only"},
        {{"--preview-pages=1-3", "--type=web", "--pages=5-8,9"},
         1,
         "--preview-pages 1-3: the book has none of these pages, it has 5-8,9"},
        {{"--preview-pages=99", "--type=web"}, 1, "--preview-pages: the page range \"99\""},
    };
    for (const auto& [options, exitCode, cause] : cases)
        expectRefused(QStringList{sample, newFolder} + options, exitCode, cause);
}

TEST_F(BadInputTest, RefusesFoldersThatCannotTakeABook) {
    TestFiles::write(path("file"), "kept");
    QFile::link("/nowhere/at/all", path("dangling"));
    expectRefused({sample, ""}, 2, "output folder is empty");
    expectRefused({sample, path("file")}, 1, "is a file, not a folder");
    expectRefused({sample, "/proc"}, 1, "can't be written");
    for (const QString& folder : {path("file/sub"), path("dangling"), QString("/proc/book")})
        expectRefused({sample, folder}, 1, "can't be made");
    EXPECT_EQ(TestFiles::read(path("file")), "kept");
}
