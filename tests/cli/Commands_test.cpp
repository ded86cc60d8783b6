#include "cli/BookTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonDocument json(const QStringList& arguments) {
    const auto result = Program::run(arguments + QStringList{"--json"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
    return QJsonDocument::fromJson(result.output);
}

QJsonObject info(const QString& sample) {
    return json({"info", Program::sample(sample)}).object();
}

QByteArray compact(const QJsonValue& value) {
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

} // namespace

TEST(InfoCommand, TellsRotationsAndTheSizesAsShown) {
    QStringList pages;
    for (const QJsonValue page : info("rotated.pdf")["pages"].toArray())
        pages << QString("%1:%2").arg(page["rotation"].toInt()).arg(page["width"].toInt());
    // MuPDF rounds 45 degrees up.
    EXPECT_EQ(pages.join(u' '), "0:400 90:600 180:400 270:600 45:600 270:600 90:600");
}

TEST(InfoCommand, ListsTheLinksThatLeadSomewhere) {
    const QJsonArray pages = info("links.pdf")["pages"].toArray();
    const QJsonArray links = pages[0]["links"].toArray();
    EXPECT_EQ(links.size(), 7);
    EXPECT_EQ(compact(links[0]), "[{\"height\":40,\"url\":\"https://www.example.org/books?page=1&"
                                 "size=2\",\"width\":120,\"x\":60,\"y\":660}]");
    EXPECT_EQ(compact(links[3]), R"([{"height":40,"page":3,"width":120,"x":60,"y":480}])");
    EXPECT_EQ(compact(pages[1]["links"]), "[[]]");
}

TEST(InfoCommand, ShowsTheOutlineWithItsDepth) {
    EXPECT_EQ(compact(info("outline.pdf")["outline"]).toStdString(),
              R"([[{"page":1,"title":"Preface"},{"children":[{"children":[{"page":5,)"
              R"("title":"1.1.1 Details"}],"page":4,"title":"1.1 A section"},{"page":6,)"
              R"("title":"1.2 By action"}],"page":3,"title":"1 Größe, 大きさ & <more>"},)"
              R"({"title":"Without a destination"},{"page":9,"title":"Appendix, by name"}]])");
}

TEST(InfoCommand, CountsTheLinksOfPagesThatLookAlike) {
    EXPECT_TRUE(Program::run({"info", Program::sample("links.pdf")})
                    .output.contains("\nPages 1-2: 600 x 800 points, 7 links\nPage 3: 800 x 600"));
}

TEST(InfoCommand, ReadsADocumentThatCanBeRepaired) {
    EXPECT_EQ(info("damaged-xref.pdf")["pages"].toArray().size(), 5);
}

TEST(InfoCommand, GivesAnUnreadablePageNoMeasures) {
    const auto page = info("damaged-page.pdf")["pages"][2].toObject();
    EXPECT_EQ(page.keys().join(u' '), "error links number");
    EXPECT_TRUE(Program::run({"info", Program::sample("damaged-page.pdf")})
                    .output.contains("\nPages 1-2: 420 x 595 points\nPage 3: can't be read ("));
}

TEST(TemplatesCommand, ListsStylesAndTypedProperties) {
    const QJsonArray templates = json({"templates"}).array();
    EXPECT_GE(templates.size(), 5);
    const QByteArray text = compact(templates);
    for (const char* part :
         {R"("name":"float","properties":[)", R"("styles":["Blank","Garden",)",
          R"({"choices":["None","Fade in","Rise","Drop"],)",
          R"("key":"mainColor","title":"Bar colour","type":"pt_color","value":"0x26303b")"})
        EXPECT_TRUE(text.contains(part)) << part;
    const auto list = Program::run({"templates"}).output;
    for (const char* line :
         {"cinema\n  Styles: Aurora, Blank, Midnight, Projector, Velvet\n  Pages\n    pageBack",
          "\n    InitialShow = Fade in                    Opening (None, Fade in, Rise, Drop)\n",
          "\n    RightToLeft = No                         Right to left (bool)\n"})
        EXPECT_TRUE(list.contains(line)) << line;
}

using DecodeCommand = BookTest;

TEST_F(DecodeCommand, ShowsTheConfigurationOfABook) {
    const auto none = Program::run({"decode", iRoot.path()});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_TRUE(none.errors.contains("is not a published book")) << none.errors.constData();
    published("outline.pdf");
    const QJsonDocument root = json({"decode", book()});
    EXPECT_EQ(root["SlidePowerPoint"]["Ppts"]["Ppt"].toArray().at(8)["Normal"]["ImgPath"],
              "page/9.jpg");
    EXPECT_TRUE(Program::run({"decode", file("files/UserConfig.bin")})
                    .output.contains("<InitialShow>Rise</InitialShow>"));
}

TEST(Commands, PassNoControlCharactersOfADocumentToTheTerminal) {
    const QString command =
        QString("'%1' info '%2'").arg(Program::path(), Program::sample("hostile.pdf"));
    const auto shown = Program::runOther("script", {"-qec", command, "/dev/null"});
    EXPECT_TRUE(shown.output.contains("taken over")) << shown.output.constData();
    EXPECT_FALSE(shown.output.contains('\x1b') || shown.output.contains('\a'));
    const auto piped = Program::runOther("/bin/sh", {"-c", command});
    EXPECT_TRUE(piped.output.contains("\x1b]0;taken over\a"));
}

TEST(Commands, FailWhenTheirOutputCannotBeWritten) {
    const QStringList arguments{"-c", "\"$0\" templates >/dev/full", Program::path()};
    EXPECT_EQ(Program::runOther("/bin/sh", arguments).exitCode, 1);
}

TEST(Commands, ExplainACommandLineThatIsNotUnderstood) {
    const std::pair<QStringList, const char*> cases[] = {
        {{}, "a command is needed; see folvero --help"},
        {{"bind"}, "no command bind; see folvero --help"},
        {{"publish"}, "PDF is required; see folvero publish --help"},
        {{"info", "a", "b"}, "not expected: b"},
    };
    for (const auto& [arguments, words] : cases) {
        const auto result = Program::run(arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_TRUE(result.errors.contains(words)) << result.errors.constData();
        EXPECT_EQ(result.errors.count('\n'), 1);
    }
}
