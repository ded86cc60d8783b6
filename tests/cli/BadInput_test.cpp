#include "support/BookReader.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class BadInputTest : public testing::Test {
protected:
    QString inFolder(const QString& name) const { return iRoot.filePath(name); }

    Program::Result publish(const QString& pdf, const QString& folder,
                            const QStringList& options = {}) const {
        return Program::run(
            QStringList{QStringLiteral("publish"), pdf, folder, QStringLiteral("--quiet")} +
            options);
    }

    // Publishes with these options; no book must come of it.
    Program::Result refused(const QStringList& options) const {
        const QString folder = inFolder(QStringLiteral("deep/er/out"));
        const auto result = publish(sample, folder, options);
        EXPECT_FALSE(QFileInfo::exists(inFolder(QStringLiteral("deep"))));
        EXPECT_TRUE(result.output.isEmpty());
        EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.constData();
        EXPECT_TRUE(result.errors.startsWith("folvero: ")) << result.errors.constData();
        return result;
    }

    const QString sample = Program::sample(QStringLiteral("outline.pdf"));
    QTemporaryDir iRoot;
};

// The program with a template library of the test's own: it looks beside itself.
class BadTemplateTest : public BadInputTest {
protected:
    BadTemplateTest() {
        for (const char* folder : {"bin", "share", "libexec/folvero"})
            QDir(iRoot.path()).mkpath(QString::fromLatin1(folder));
        for (const char* name : {"bin/folvero", "libexec/folvero/folvero-page-worker"}) {
            const QString file = QString::fromLatin1(name);
            EXPECT_TRUE(QFile::copy(Program::path(QStringLiteral("../") + file), inFolder(file)));
        }
        QFile::link(library.path(), inFolder(QStringLiteral("share/folvero")));
    }

    Program::Result publishWith(const QByteArray& templateXML) {
        library.addTemplate(QStringLiteral("float"));
        library.addTemplateFile(QStringLiteral("float"), templateXML);
        return Program::runOther(inFolder(QStringLiteral("bin/folvero")),
                                 {QStringLiteral("publish"), sample, inFolder(QStringLiteral("b")),
                                  QStringLiteral("--pages=1"), QStringLiteral("--quiet")});
    }

    TemplateLibrary library;
};

} // namespace

TEST_F(BadInputTest, NamesTheDocumentAndWhatIsWrongWithIt) {
    const QString pipe = inFolder(QStringLiteral("pipe.pdf"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const struct {
        QString file;
        const char* cause;
    } cases[] = {
        {QStringLiteral("/nowhere/missing.pdf"), "no such file"},
        {Program::sample(QStringLiteral("empty.pdf")), "is empty"},
        {Program::sample(QStringLiteral("not-a-pdf.pdf")), "is not a PDF document"},
        {Program::sample(QStringLiteral("truncated.pdf")), "damaged"},
        {Program::sample(QStringLiteral("encrypted.pdf")), "password"},
        {Program::sample(QStringLiteral("zero-pages.pdf")), "has no pages"},
        {iRoot.path(), "is a folder"},
        {pipe, "is a pipe or a device"},
        {QStringLiteral("/dev/zero"), "is a pipe or a device"},
    };
    for (const auto& item : cases) {
        const QString folder = inFolder(QStringLiteral("out"));
        const auto result = publish(item.file, folder);
        SCOPED_TRACE(result.errors.constData());
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_TRUE(result.errors.contains(item.file.toUtf8()));
        EXPECT_TRUE(result.errors.contains(item.cause));
        EXPECT_EQ(result.errors.count('\n'), 1);
        EXPECT_FALSE(QFileInfo::exists(folder));
    }
}

TEST_F(BadInputTest, RefusesOptionsThatCannotBeMet) {
    const struct {
        QStringList options;
        int exitCode;
        const char* cause;
    } cases[] = {
        {{QStringLiteral("--pages=0")}, 1, "names no page"},
        {{QStringLiteral("--pages=7-3")}, 1, "names no page"},
        {{QStringLiteral("--pages=letters")}, 1, "\"letters\" names no page"},
        {{QStringLiteral("--pages=99999999999999999999")}, 1, "has pages 1 to 9"},
        {{QStringLiteral("--name=a/b")}, 2, "\"a/b\""},
        {{QStringLiteral("--name=")}, 2, "--name"},
        {{QStringLiteral("--name=.html")}, 2, "--name"},
        {{QStringLiteral("--template=nope")}, 1, "there are: cinema, deck, desk, float"},
        {{QStringLiteral("--template=../float")}, 1, "no template \"../float\""},
        {{QStringLiteral("--style=nope")}, 1, "Blank"},
        {{QStringLiteral("--set=nope=1")}, 2, "no property \"nope\""},
        {{QStringLiteral("--set=nope")}, 2, "KEY=VALUE"},
        {{QStringLiteral("--set=topMargin=wide")}, 2, "topMargin: \"wide\" is not a number"},
        {{QStringLiteral("--set=mainColor=red")}, 2, "is not a colour"},
        {{QStringLiteral("--set=InitialShow=Jump")}, 2, "None, Fade in, Rise, Drop"},
        {{QStringLiteral("--set=AutoPlay=perhaps")}, 2, "YES or NO"},
        {{QStringLiteral("--set=mainbgImgUrl=/nowhere.png")}, 2, "an existing file"},
        {{QStringLiteral("--set=mainbgImgUrl=STYLE_RESOURCE:../Garden/garden.jpg")},
         2,
         "is not a file of the style"},
        {{QStringLiteral("--settings=/nowhere.txt")}, 1, "/nowhere.txt"},
        {{QStringLiteral("--settings=/")}, 1, "is a folder"},
        {{QStringLiteral("--quality=101")}, 2, "--quality"},
        {{QStringLiteral("--quality=high")}, 2, "--quality"},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.options.first().toStdString());
        const auto result = refused(item.options);
        EXPECT_EQ(result.exitCode, item.exitCode);
        EXPECT_TRUE(result.errors.contains(item.cause)) << result.errors.constData();
    }
}

TEST_F(BadInputTest, RefusesFoldersThatCannotTakeABook) {
    TestFiles::write(inFolder(QStringLiteral("file")), "kept");
    QFile::link(QStringLiteral("/nowhere/at/all"), inFolder(QStringLiteral("dangling")));
    const struct {
        QString folder;
        int exitCode;
        const char* cause;
    } cases[] = {
        {QString(), 2, "output folder is empty"},
        {inFolder(QStringLiteral("file")), 1, "is a file, not a folder"},
        {inFolder(QStringLiteral("file/sub")), 1, "can't be made"},
        {inFolder(QStringLiteral("dangling")), 1, "can't be made"},
        {QStringLiteral("/proc/book"), 1, "can't be made"},
        {QStringLiteral("/proc"), 1, "can't be written"},
    };
    for (const auto& item : cases) {
        const auto result = publish(sample, item.folder);
        SCOPED_TRACE(result.errors.constData());
        EXPECT_EQ(result.exitCode, item.exitCode);
        EXPECT_TRUE(result.errors.contains(item.cause));
        EXPECT_EQ(result.errors.count('\n'), 1);
    }
    EXPECT_EQ(TestFiles::read(inFolder(QStringLiteral("file"))), "kept");
}

TEST_F(BadInputTest, LeavesTheEarlierBookWholeWhenAFileCannotBeReplaced) {
    const QString folder = inFolder(QStringLiteral("book"));
    ASSERT_EQ(publish(sample, folder, {QStringLiteral("--pages=1-3")}).exitCode, 0);
    // A folder where a page file has to go.
    QFile::remove(folder + QStringLiteral("/files/page/2.jpg"));
    TestFiles::write(folder + QStringLiteral("/files/page/2.jpg/mine"), "kept");
    const auto contents = [&] {
        QByteArray all;
        for (const QString& name : BookReader::filesBeneath(folder))
            all += name.toUtf8() + '\n' + TestFiles::read(folder + u'/' + name);
        return all;
    };
    const QByteArray before = contents();
    const auto result = publish(Program::sample(QStringLiteral("links.pdf")), folder);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.contains("files/page/2.jpg")) << result.errors.constData();
    EXPECT_TRUE(contents() == before);
}

TEST_F(BadTemplateTest, RepairsAMalformedTemplate) {
    QByteArray xml = TemplateLibrary::templateXML(
                         TemplateLibrary::property(QStringLiteral("k"), QStringLiteral("v")))
                         .toUtf8();
    xml.replace("<desc>", "<desc>black & white");
    const auto result = publishWith(xml);
    EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
    EXPECT_TRUE(QFileInfo::exists(inFolder(QStringLiteral("b/index.html"))));
}

TEST_F(BadTemplateTest, NamesTheTemplateFileThatCannotBeUsed) {
    for (const QByteArray& xml : {QByteArray("<template></template>"), QByteArray("\0\1\2", 3),
                                  QByteArray("no markup"), QByteArray()}) {
        const auto result = publishWith(xml);
        SCOPED_TRACE(result.errors.constData());
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_TRUE(result.errors.contains("flashTemplate.xml"));
        EXPECT_FALSE(QFileInfo::exists(inFolder(QStringLiteral("b"))));
    }
}

TEST_F(BadTemplateTest, SaysThatThereAreNoTemplates) {
    const auto result =
        Program::runOther(inFolder(QStringLiteral("bin/folvero")),
                          {QStringLiteral("publish"), sample, inFolder(QStringLiteral("b"))});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.contains("holds no templates")) << result.errors.constData();
}

TEST_F(BadTemplateTest, RefusesTenThousandNestedProperties) {
    QString nested;
    QString end;
    const QString property = TemplateLibrary::composite(QStringLiteral("k"), QStringLiteral("@"));
    for (int depth = 0; depth < 10'000; ++depth) {
        nested += property.section(u'@', 0, 0);
        end.prepend(property.section(u'@', 1));
    }
    const auto result = publishWith(TemplateLibrary::templateXML(nested + end).toUtf8());
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.contains("nested more than 200 deep")) << result.errors.constData();
}
