#include "cli/BookTest.h"
#include "project/ProjectFile.h"
#include "project/ProjectFiles.h"
#include "template/StyleFolders.h"

#include <QImage>
#include <QJsonArray>

namespace {

class PublishedProject : public BookTest {
protected:
    QString save(const Project& project) const {
        Message error;
        EXPECT_TRUE(ProjectFile::write(project, {}, path("tea.folvero"), &error));
        return path("tea.folvero");
    }
    std::map<QString, QByteArray> published(const QStringList& arguments) const {
        QDir(book()).removeRecursively();
        const auto result =
            Program::run(QStringList{"publish", "--quiet"} + arguments + QStringList{book()});
        EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
        auto files = contents();
        std::erase_if(files, [](const auto& file) { return file.first.endsWith(".stamp"); });
        return files;
    }
    QString copy(const QString& sample) const {
        QFile::copy(Program::sample(sample), path(sample));
        return path(sample);
    }
};

Project projectOf(const QStringList& documents) {
    Project project;
    for (const QString& document : documents)
        project.documents.push_back(ProjectFiles::describe(document));
    return project;
}

TEST_F(PublishedProject, IsTheBookThatTheSameOptionsMakeAndOptionsComeFirst) {
    const QString document = copy("links.pdf");
    Project project = projectOf({document});
    project.import = {true, "1-2", 45, Spreads::keep, true, false};
    project.templateName = "deck";
    project.values = {{"mainColor", "0x123456", false, {}}};
    project.publish = {"", "tea", "Tea & Cake", Project::Kind::web, true, "https://example.org/",
                       "2"};
    const QString file = save(project);
    const QStringList options{"--pages=1-2",        "--quality=45",
                              "--spreads=keep",     "--links",
                              "--template=deck",    "--set=mainColor=0x123456",
                              "--single-file",      "--name=tea",
                              "--title=Tea & Cake", "--url=https://example.org/",
                              "--preview-pages=2"};
    const auto expected = published(QStringList{document} + options);
    EXPECT_TRUE(expected.contains("tea.html"));
    EXPECT_TRUE(published({file}) == expected);
    const auto other = published({file, "--type=html", "--name=cake", "--set=mainColor=0x654321"});
    EXPECT_TRUE(other.contains("cake.html") && !other.contains("files/web/book.js"));
    EXPECT_EQ(BookReader::configuration(book()).textAt("Properties/FlashWindowsColor"), "0x654321");
}

TEST_F(PublishedProject, HasAStyleOfTheUsersOwnAlsoWhereThatIsMissing) {
    const QString folder = StyleFolders::ownFor("float", "Mine");
    TestFiles::write(folder + "/tmplSetting.txt", "topMargin=40\nleftMargin=30\n");
    Project project = projectOf({copy("links.pdf")});
    project.styleName = "Mine";
    project.values = {{"topMargin", "40", false, {}}, {"leftMargin", "30", false, {}}};
    project.holdsStyle = true;
    const QString file = save(project);
    const auto expected = published({project.documents[0].path, "--style=Mine"});
    EXPECT_EQ(BookReader::configuration(book()).textAt("Properties/Top"), "40");
    EXPECT_TRUE(published({file}) == expected);
    TestFiles::write(folder + "/tmplSetting.txt", "nothing");
    const auto broken = Program::run({"publish", file, book()});
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_TRUE(broken.errors.contains("contains no settings"));
    QDir(StyleFolders::own()).removeRecursively();
    EXPECT_TRUE(published({file}) == expected);
}

TEST_F(PublishedProject, HasThePagesOfItsListTurnedAsItSays) {
    Project project = projectOf({copy("text.pdf"), copy("links.pdf")});
    project.pages = {{1, 0, 0}, {}, {0, 0, 90}};
    project.publish.kind = Project::Kind::html;
    published({save(project)});
    EXPECT_EQ(QDir(file("files/page")).entryList({"*.jpg"}).size(), 3);
    const auto isUpright = [this](const char* page) {
        const QSize size = QImage(file(page)).size();
        return size.height() > size.width();
    };
    EXPECT_TRUE(isUpright("files/page/1.jpg") && !isUpright("files/page/3.jpg"));
    const auto result = Program::run({"publish", path("tea.folvero"), book()});
    EXPECT_TRUE(result.errors.contains("up to date"));
    project.pages.pop_back();
    published({save(project)});
    EXPECT_EQ(QDir(file("files/page")).entryList({"*.jpg"}).size(), 2);
}

TEST_F(PublishedProject, PagesOfAListKeepWhatTheyAreCalled) {
    Project project = projectOf({copy("spreads.pdf")});
    project.pages = {{0, 2, 0}, {}, {0, 0, 0}};
    project.import.spreads = Spreads::keep;
    published({save(project)});
    EXPECT_EQ(data("web/book").object()["labels"], (QJsonArray{"4-5", "", "Cover"}));
}

TEST_F(PublishedProject, ChangedDocumentIsWarnedOfAndMissingOneNamedWithItsPlaces) {
    const QString document = copy("text.pdf");
    const QString file = save(projectOf({document}));
    QFile::remove(document);
    QFile::copy(Program::sample("links.pdf"), document);
    auto result = Program::run({"publish", "--quiet", file, book()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.errors.contains("text.pdf: was changed after the project was saved"));
    QFile::remove(document);
    result = Program::run({"publish", file, path("other")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.contains(
        (file + ": text.pdf was not found; it was looked for at: " + document).toUtf8()))
        << result.errors.constData();
    EXPECT_FALSE(QFileInfo::exists(path("other")));
    EXPECT_TRUE(Program::run({"info", file}).output.startsWith("Document: " + document.toUtf8()));
    TestFiles::write(file, "no project");
    EXPECT_EQ(Program::run({"publish", file, path("other")}).exitCode, 65);
    EXPECT_EQ(Program::run({"publish", file, document, path("other")}).exitCode, 2);
}

} // namespace
