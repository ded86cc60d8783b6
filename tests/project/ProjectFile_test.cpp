#include "project/ProjectFile.h"

#include "project/ProjectFiles.h"
#include "project/ProjectJSON.h"
#include "project/ProjectValues.h"
#include "support/FailureOf.h"
#include "support/TemplateLibrary.h"
#include "system/FileDescriptor.h"
#include "system/PartFile.h"
#include "system/ZipWriter.h"

#include <QDir>
#include <QFileInfo>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>

namespace {

class ProjectFileTest : public testing::Test {
protected:
    QString path(const QString& name) const { return iRoot.filePath(name); }

    void write(const Project& project, const QString& to) const {
        QDir().mkpath(QFileInfo(to).path());
        Message error;
        ASSERT_TRUE(ProjectFile::write(project, "a picture", to, &error))
            << error.english().toStdString();
    }
    // Written by hand.
    QString archive(const QByteArray& description, const QByteArray& type) const {
        ZipWriter zip(path("made.folvero"));
        zip.add("mimetype", type, ZipWriter::Method::stored);
        zip.add("project.json", description, ZipWriter::Method::deflated);
        zip.finish({});
        return path("made.folvero");
    }
    QString archive(const QByteArray& description) const {
        return archive(description, "application/x-folvero");
    }
    QString reasonOf(const QString& file) const {
        return failureOf([&] { ProjectFile::read(file); }).message.english();
    }

    QTemporaryDir iRoot;
};

Project filled(const QString& document, const QString& picture) {
    Project project;
    project.documents = {ProjectFiles::describe(document)};
    project.pages = {{0, 2, 90}, {}, {0, -1, -180}};
    project.import = {true, "1-3", 45, Spreads::keep, true, true};
    project.templateName = "cinema";
    project.styleName = "Night";
    project.values = {{"title", "A <book> “ü”", false, {}},
                      {"logoFile", picture, true, ProjectFiles::describe(picture)}};
    project.publish = {
        "/out", "tea", "Tea & Cake", Project::Kind::app, true, "https://example.org/tea/", "1-2"};
    return project;
}

} // namespace

TEST_F(ProjectFileTest, ReadsWhatItWroteAndStartsWithItsType) {
    TestFiles::write(path("a.pdf"), "one");
    TestFiles::write(path("logo.png"), "logo");
    const Project project = filled(path("a.pdf"), path("logo.png"));
    write(project, path("b.folvero"));
    QByteArray before = ProjectJSON::written(ProjectFile::read(path("b.folvero")));
    EXPECT_EQ(before.replace("\"relative\": \"a.pdf\"", "\"relative\": \"\"")
                  .replace("\"relative\": \"logo.png\"", "\"relative\": \"\""),
              ProjectJSON::written(project));
    EXPECT_EQ(ProjectFile::cover(path("b.folvero")), "a picture");
    const QByteArray bytes = TestFiles::read(path("b.folvero"));
    EXPECT_EQ(bytes.mid(30, 29), "mimetypeapplication/x-folvero");
}

TEST_F(ProjectFileTest, TakesWhatAKilledProgramHasLeftAndNothingOfARunningOne) {
    const QString file = path("b.folvero");
    const QString link = path("link.folvero");
    const QString part = path(".b.folvero.part");
    TestFiles::write(part, QByteArray(100'000, 'x'));
    write({}, file);
    EXPECT_EQ(ProjectFile::read(file).templateName, "float");
    EXPECT_FALSE(QFile::exists(part));
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner;
    ASSERT_TRUE(QFile::setPermissions(file, permissions) && QFile::link(file, link));
    TestFiles::write(part, "half");
    PartFile::removeRemains(link);
    EXPECT_FALSE(QFile::exists(part));
    TestFiles::write(part, "of another program");
    const FileDescriptor other(::open(QFile::encodeName(part).constData(), O_RDONLY));
    ASSERT_EQ(::flock(other.number(), LOCK_EX), 0);
    Project project;
    project.templateName = "cinema";
    write(project, link);
    PartFile::removeRemains(file);
    EXPECT_EQ(ProjectFile::read(file).templateName, "cinema");
    EXPECT_EQ(TestFiles::read(part), "of another program");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
}

TEST_F(ProjectFileTest, FilesAreFoundWhereTheyWereOrMovedWithTheProject) {
    const QString old = path("old");
    QDir().mkpath(old + "/project/sub");
    TestFiles::write(old + "/project/sub/a.pdf", "one");
    TestFiles::write(old + "/logo.png", "logo");
    write(filled(old + "/project/sub/a.pdf", old + "/logo.png"), old + "/project/b.folvero");
    const auto located = [](const QString& folder) {
        return ProjectFiles::locate(ProjectFile::read(folder + "/b.folvero"), folder);
    };
    QDir().mkpath(path("else"));
    ASSERT_TRUE(QFile::copy(old + "/project/b.folvero", path("else/b.folvero")));
    auto found = located(path("else"));
    EXPECT_EQ(found.project.documents[0].path, old + "/project/sub/a.pdf");
    EXPECT_TRUE(found.changed.isEmpty() && found.missingValues.isEmpty());

    ASSERT_TRUE(QDir().rename(old, path("new")));
    found = located(path("new/project"));
    EXPECT_EQ(found.project.documents[0].path, path("new/project/sub/a.pdf"));
    EXPECT_EQ(found.project.values[1].text, path("new/logo.png"));
    EXPECT_TRUE(found.changed.isEmpty() && found.missingValues.isEmpty());

    TestFiles::write(path("else/a.pdf"), "two");
    found = located(path("else"));
    EXPECT_EQ(found.project.documents[0].path, path("else/a.pdf"));
    EXPECT_EQ(englishTexts(found.changed),
              QStringList(path("else/a.pdf") + ": was changed after the project was saved"));
    EXPECT_EQ(englishTexts(found.missingValues),
              QStringList(QString("logo.png was not found; it was looked for at: %1, %2, %3")
                              .arg(old + "/logo.png", path("logo.png"), path("else/logo.png"))));
}

TEST_F(ProjectFileTest, WhatIsNoProjectIsRefusedWithItsCause) {
    const QByteArray whole = R"({"format": 1, "unknown": [{}], "publish": {"new": 1}})";
    EXPECT_EQ(reasonOf(archive(whole)), QString());
    const QByteArray bytes = TestFiles::read(archive(whole));
    const QString damaged = "is damaged at “%1”";
    for (const auto& [description, cause] : std::initializer_list<std::pair<QByteArray, QString>>{
             {"{", "is damaged"},
             {"[]", "is damaged"},
             {"{}", damaged.arg("format")},
             {R"({"format": 2})", "was saved by a newer version of Folvero (format 2; this version "
                                  "reads format 1)"},
             {R"({"format": "1"})", damaged.arg("format")},
             {R"({"format": 1, "documents": [{"path": "a.pdf"}]})",
              damaged.arg("documents[0].path")},
             {R"({"format": 1, "documents": {}})", damaged.arg("documents")},
             {R"({"format": 1, "pages": [{"document": 0}]})", damaged.arg("pages[0].document")},
             {R"({"format": 1, "pages": [{"rotation": 45}]})", damaged.arg("pages[0].rotation")},
             {R"({"format": 1, "import": {"quality": 101}})", damaged.arg("import.quality")},
             {R"({"format": 1, "publish": {"kind": "film"}})", damaged.arg("publish.kind")},
             {R"({"format": 1, "values": [{"value": "x"}]})", damaged.arg("values[0].key")},
             {R"({"format": 1, "style": 3})", damaged.arg("style")},
             {QByteArray(65 << 20, ' '), "has far too much in it"},
         }) {
        const QString file = archive(description);
        EXPECT_EQ(reasonOf(file), file + ": " + cause) << description.left(80).constData();
    }
    EXPECT_EQ(reasonOf(archive(whole, "application/epub+zip")),
              path("made.folvero") + ": is no project");
    const QString file = path("cut.folvero");
    constexpr qsizetype endOfArchive = 22;
    for (qsizetype size = 0; size < bytes.size() - endOfArchive; ++size) {
        TestFiles::write(file, bytes.first(size));
        EXPECT_TRUE(reasonOf(file).startsWith(file + ": is ")) << size;
    }
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        QByteArray flipped = bytes;
        flipped[at] = char(flipped[at] ^ 0x55);
        TestFiles::write(file, flipped);
        reasonOf(file);
    }
    EXPECT_EQ(reasonOf(path("nowhere.folvero")), path("nowhere.folvero") + ": no such file");
    EXPECT_EQ(reasonOf(iRoot.path()), iRoot.path() + ": is no file");
}

TEST_F(ProjectFileTest, ValuesAreThoseThatDifferFromTheStyle) {
    using Library = TemplateLibrary;
    Library library;
    library.addTemplate(
        "float", Library::property("pageWidth", "1") + Library::property("title", "a") +
                     Library::composite("group", Library::property("sound", "No") +
                                                     Library::property("back", "", "pt_file")));
    library.addStyle("float", "Night", "\n\rsound=Yes\n\rback=STYLE_RESOURCE:a.png");
    FlashTemplate tmpl;
    tmpl.loadStyleByStyleName("Night");
    tmpl.setPropertyValue("pageWidth", "300");
    EXPECT_TRUE(ProjectValues::changed(tmpl).empty());
    tmpl.setPropertyValue("sound", "No");
    tmpl.setPropertyValue("back", "/pictures/b.png");
    const auto values = ProjectValues::changed(tmpl);
    ASSERT_EQ(values.size(), 2u);
    EXPECT_TRUE(values[1].isFile);
    FlashTemplate other;
    other.loadStyleByStyleName("Night");
    ProjectValues::apply(values, other);
    EXPECT_EQ(other.propertyValueFor("sound", {}), "No");
    EXPECT_EQ(other.propertyValueFor("back", {}), "/pictures/b.png");
}
