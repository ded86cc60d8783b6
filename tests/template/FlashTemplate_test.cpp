#include "template/FlashTemplate.h"

#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"

#include <QFileInfo>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString property(const QString& key, const QString& value, const QString& type = "pt_text") {
    return TemplateLibrary::property(key, value, type);
}

QString group(const QString& key, const QString& children) {
    return TemplateLibrary::composite(key, children);
}

QString value(const FlashTemplate& tmpl, const QString& key) {
    return tmpl.propertyValueFor(key, "default");
}

class FlashTemplateTest : public testing::Test {
protected:
    TemplateLibrary library;
};

} // namespace

TEST_F(FlashTemplateTest, LoadsTheTemplateFloatAtFirst) {
    library.addTemplate("float", property("a", "1"));
    const FlashTemplate tmpl;
    EXPECT_TRUE(tmpl.loadError().isNull() && tmpl.styleName().isNull() && tmpl.needThumbs());
    EXPECT_EQ(QStringList({tmpl.tmplName(), tmpl.HTMLFilePath(), tmpl.SWFFilePath(),
                           tmpl.defaultSytleName(), tmpl.macAppFilesFolder()})
                  .join(u' '),
              "float index.html book.swf Plain mac.app");
    ASSERT_EQ(tmpl.properties().size(), 1U);
    EXPECT_EQ(tmpl.properties()[0]->key(), "a");
}

TEST_F(FlashTemplateTest, KeepsTheNewNameWhenItsFileIsMissing) {
    const FlashTemplate tmpl;
    EXPECT_EQ(tmpl.tmplName(), "float");
    EXPECT_TRUE(tmpl.properties().empty());
    EXPECT_EQ(tmpl.defaultSytleName(), "Blank");
    EXPECT_TRUE(tmpl.loadError().contains(FlashTemplate::tmplMetaPathForName(tmpl.tmplName())));
}

TEST_F(FlashTemplateTest, ListsFoldersAtEveryDepth) {
    EXPECT_TRUE(FlashTemplate::tmplNames().isEmpty());
    for (const QString name : {"slide", "float"})
        library.addTemplate(name);
    library.addFile("AppFiles/Templates/float/images/big/a.png", "x");
    library.addStyle("float", "Sea", "");
    const QString base = library.templatePath("float");
    EXPECT_EQ(FlashTemplate::tmplPathForName("float"), base + '/');
    EXPECT_EQ(FlashTemplate::tmplNames(), QStringList({base, base + "/images", base + "/images/big",
                                                       library.templatePath("slide")}));
    EXPECT_EQ(FlashTemplate::tmplStyleNamesForTmpl("float"),
              QStringList(FlashTemplate::stylePathFor("float", "Sea")));
    EXPECT_EQ(FlashTemplate::stylePathFor("float", "Sea"), library.stylePath("float", "Sea"));
}

TEST_F(FlashTemplateTest, FindsTheFirstMatchDepthFirst) {
    library.addTemplate(
        "float", property("top", "first") +
                     group("g", group("inner", property("x", "deep")) + property("x", "later") +
                                    property("top", "second") + property("pageWidth", "1")) +
                     property("pageWidth", "2") + property("x", "last") + property("empty", ""));
    FlashTemplate tmpl;
    const QMap<QString, QString> wanted{{"x", "deep"},  {"pageWidth", "1"}, {"top", "first"},
                                        {"empty", ""},  {"g", ""},          {"X", "default"},
                                        {"", "default"}};
    for (const QString& key : wanted.keys())
        EXPECT_EQ(value(tmpl, key), wanted[key]) << key.toStdString();
    tmpl.setPropertyValue("x", "new");
    const auto& children = tmpl.properties()[1]->childProperties();
    EXPECT_EQ(children[0]->childProperties()[0]->value(), "new");
    EXPECT_EQ(children[1]->value(), "later");
    EXPECT_EQ(tmpl.properties()[3]->value(), "last");
}

TEST_F(FlashTemplateTest, ResolvesFilesOfTheStyleInTheLibrarysFolderOfTheTemplate) {
    library.addTemplate("float", group("g", property("bg", "", "pt_file") + property("text", "")) +
                                     property("logo", "", "pt_file"));
    FlashTemplate tmpl;
    tmpl.loadStyleByStylePath("/elsewhere/Sea");
    const QString given = "bg/STYLE_RESOURCE:img.jpg";
    for (const char* key : {"bg", "text", "logo"})
        tmpl.setPropertyValue(key, given);
    const QString style = library.stylePath("float", "Sea");
    EXPECT_EQ(value(tmpl, "bg"), style + "/img.jpg");
    EXPECT_EQ(value(tmpl, "logo"), style + "/img.jpg");
    EXPECT_EQ(value(tmpl, "text"), given);
    EXPECT_EQ(tmpl.valueAsFilePath("STYLE_RESOURCE:/etc/passwd"), style + "/etc/passwd");
    EXPECT_EQ(tmpl.valueAsFilePath("STYLE_RESOURCE:"), style);
    EXPECT_EQ(tmpl.valueAsFilePath("/a/b.jpg"), "/a/b.jpg");
}

TEST_F(FlashTemplateTest, KeepsPageSizeAndLanguageWhenChanged) {
    const auto properties = [](const QString& number) {
        return property("pageWidth", number) + group("g", property("pageHeight", number)) +
               property("languageSetting", number) + property("other", number);
    };
    library.addTemplate("slide", properties("2"));
    library.addStyle("slide", "Sea", "\n\rpageWidth=3\n\rlanguageSetting=3\n\rother=3");
    const auto change = [&] {
        FlashTemplate tmpl;
        tmpl.changeTmplTo("slide", library.stylePath("slide", "Sea") + '/');
        QStringList texts{tmpl.tmplName(), tmpl.styleName()};
        for (const char* key : {"pageWidth", "pageHeight", "languageSetting", "other"})
            texts << value(tmpl, key);
        return texts.join(u' ');
    };
    EXPECT_EQ(change(), "slide Sea 960 600  3") << "without \"float\" nothing is remembered";
    library.addTemplate("float", properties("1"));
    EXPECT_EQ(change(), "slide Sea 1 1 1 3");
}

TEST_F(FlashTemplateTest, LooksForItsPageInItsFolderAndThenInTheLibrary) {
    library.addTemplate("float");
    FlashTemplate tmpl;
    tmpl.setHTMLFilePath("html\\index.html");
    EXPECT_TRUE(tmpl.tmplHTMLFilePath().isNull());
    for (const QString folder : {"/AppFiles", "/AppFiles/Templates/float"}) {
        library.addFile(folder + "/html/index.html", "x");
        EXPECT_EQ(tmpl.tmplHTMLFilePath(), library.path() + folder + "/html/index.html");
    }
}

TEST_F(FlashTemplateTest, KeepsFilesOfAStyleWithinTheStyle) {
    library.addTemplate("float", property("image", "", "pt_file"));
    library.addFile("secret.png", "x");
    library.addFile("AppFiles/Styles/float/Other/img.jpg", "x");
    const QString secret = library.path() + "/secret.png";
    for (const char* name :
         {"../Other/img.jpg", "../../../../secret.png", "/../../../../secret.png",
          "a/../../Other/img.jpg", "link.png", "linked/secret.png"}) {
        SCOPED_TRACE(name);
        library.addStyle("float", "Sea", QByteArray("image=STYLE_RESOURCE:") + name);
        const QString style = library.stylePath("float", "Sea");
        QFile::link(secret, style + "/link.png");
        QFile::link(library.path(), style + "/linked");
        FlashTemplate tmpl;
        const RecordedLog log;
        tmpl.loadStyleByStyleName("Sea");
        EXPECT_EQ(value(tmpl, "image"), "");
        EXPECT_FALSE(log.texts().filter("has no right").isEmpty());
    }
}

TEST_F(FlashTemplateTest, WarnsOfFilesOutsideOfTemplateStyleAndLibrary) {
    const auto file = [](const QString& key, const QString& path) {
        return property(key, path, "pt_file");
    };
    library.addTemplate("float",
                        file("image", "/elsewhere/a.png") + property("text", "/a/text") +
                            group("group", file("own", library.templatePath("float") + "/a") +
                                               file("shared", library.path() + "/AppFiles/a") +
                                               file("sound", "")));
    library.addStyle("float", "Sea",
                     "sound=STYLE_RESOURCE:a.mp3\nown=../b.png\ntext=/another/text\n");
    const RecordedLog log(Log::Level::warn);
    const auto warnings = [&log](const char* source, const char* named) {
        return log.texts().filter(source).filter(named).size();
    };
    FlashTemplate tmpl;
    EXPECT_EQ(warnings("template \"float\"", "image=/elsewhere/a.png"), 1);
    tmpl.setPropertyValue("image", "/chosen/by/the/user.png");
    tmpl.loadStyleByStyleName("Sea");
    EXPECT_EQ(warnings("style \"Sea\"", "own=../b.png"), 1);
    EXPECT_EQ(value(tmpl, "own"), "../b.png") << "an exported settings file may serve as a style";
    const QString settings = library.path() + "/settings.txt";
    TestFiles::write(settings, "own=/elsewhere/c.png");
    tmpl.importPropertiesSettingsFrom(settings);
    EXPECT_EQ(log.texts().size(), 2) << log.texts().join(u'\n').toStdString();
}

TEST_F(FlashTemplateTest, PublishesNoFilesFromOutsideTheLibrary) {
    library.addTemplate("float");
    library.addFile("secret", "x");
    const QString secret = library.path() + "/secret";
    const QString folder = library.templatePath("float");
    FlashTemplate tmpl;
    tmpl.setHTMLFilePath("..\\..\\..\\secret");
    EXPECT_TRUE(tmpl.tmplHTMLFilePath().isNull());
    ASSERT_TRUE(QFile::link(secret, folder + "/page.html"));
    tmpl.setHTMLFilePath("page.html");
    EXPECT_TRUE(tmpl.tmplHTMLFilePath().isNull());
    library.addFile("AppFiles/page.html", "x");
    EXPECT_EQ(tmpl.tmplHTMLFilePath(), library.path() + "/AppFiles/page.html");
    QFile::remove(folder + "/book.swf");
    ASSERT_TRUE(QFile::link(secret, folder + "/book.swf"));
    tmpl.copyBookSWFToFile(library.path() + "/copy");
    EXPECT_FALSE(QFileInfo::exists(library.path() + "/copy"));
}

TEST_F(FlashTemplateTest, CopiesPlayerFilesOverOldOnes) {
    library.addTemplate("float");
    FlashTemplate tmpl;
    const QString target = library.path() + "/copy";
    TestFiles::write(target, "old");
    tmpl.copyBookSWFToFile(target);
    EXPECT_EQ(TestFiles::read(target), "book.swf");
    tmpl.copyBookSoundFile(target);
    EXPECT_EQ(TestFiles::read(target), "moveSound.mp3");
    tmpl.copyBookJSFile(target);
    EXPECT_EQ(TestFiles::read(target), "swfobject.js");
    tmpl.setTmplName("none");
    tmpl.copyBookJSFile(target);
    EXPECT_FALSE(QFileInfo::exists(target));
}
