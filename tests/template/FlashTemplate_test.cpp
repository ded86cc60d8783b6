#include "template/FlashTemplate.h"

#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

class FlashTemplateTest : public testing::Test {
protected:
    static QString property(const char* key, const char* value, const char* type = "pt_text") {
        return TemplateLibrary::property(QString::fromUtf8(key), QString::fromUtf8(value),
                                         QString::fromLatin1(type));
    }
    static QString group(const char* key, const QString& children) {
        return TemplateLibrary::composite(QString::fromUtf8(key), children);
    }
    static QString value(const FlashTemplate& tmpl, const char* key) {
        return tmpl.propertyValueFor(QString::fromUtf8(key), QStringLiteral("default"));
    }
    static void set(FlashTemplate& tmpl, const char* key, const char* text) {
        tmpl.setPropertyValue(QString::fromUtf8(key), QString::fromUtf8(text));
    }

    TemplateLibrary library;
};

} // namespace

TEST_F(FlashTemplateTest, LoadsTheTemplateFloatAtFirst) {
    library.addTemplate(QStringLiteral("float"), property("a", "1"));
    const FlashTemplate tmpl;
    EXPECT_TRUE(tmpl.loadError().isNull());
    EXPECT_EQ(tmpl.tmplName(), u"float");
    EXPECT_EQ(tmpl.HTMLFilePath(), u"index.html");
    EXPECT_EQ(tmpl.SWFFilePath(), u"book.swf");
    EXPECT_EQ(tmpl.defaultSytleName(), u"Plain");
    EXPECT_EQ(tmpl.macAppFilesFolder(), u"mac.app");
    EXPECT_EQ(tmpl.mobileTmplFilesPath(), u"mobile");
    EXPECT_EQ(tmpl.tmplVersion(), u"3.0.0");
    EXPECT_TRUE(tmpl.styleName().isNull());
    EXPECT_TRUE(tmpl.tmplFilePath().isNull());
    EXPECT_TRUE(tmpl.needThumbs());
    ASSERT_EQ(tmpl.properties().size(), 1U);
    EXPECT_EQ(tmpl.properties()[0]->key(), u"a");
}

TEST_F(FlashTemplateTest, KeepsTheNewNameWhenItsFileIsMissing) {
    const FlashTemplate tmpl;
    EXPECT_EQ(tmpl.tmplName(), u"float");
    EXPECT_TRUE(tmpl.properties().empty());
    EXPECT_EQ(tmpl.defaultSytleName(), u"Blank");
    EXPECT_TRUE(tmpl.loadError().contains(FlashTemplate::tmplMetaPathForName(tmpl.tmplName())));
}

TEST_F(FlashTemplateTest, ReportsANameThatNoFileCanHave) {
    FlashTemplate tmpl;
    const RecordedLog log;
    const QString name(QStringLiteral("a") + QChar(u'\0'));
    tmpl.loadTemplate(name);
    ASSERT_EQ(log.texts().size(), 1);
    EXPECT_EQ(log.texts()[0], QStringLiteral("Can't create an URL from file ") +
                                  FlashTemplate::tmplMetaPathForName(name) + u'.');
    EXPECT_EQ(tmpl.loadError(), log.texts()[0]);
}

TEST_F(FlashTemplateTest, BuildsThePathsOfTheLibrary) {
    const QString name = QStringLiteral("float");
    EXPECT_EQ(FlashTemplate::tmplPathForName(name), library.templatePath(name) + u'/');
    EXPECT_EQ(FlashTemplate::tmplMetaPathForName(name),
              library.templatePath(name) + QStringLiteral("/flashTemplate.xml"));
    EXPECT_EQ(FlashTemplate::stylePathFor(name, QStringLiteral("Sea")),
              library.stylePath(name, QStringLiteral("Sea")));
}

TEST_F(FlashTemplateTest, ListsFoldersAtEveryDepth) {
    EXPECT_TRUE(FlashTemplate::tmplNames().isEmpty());
    library.addTemplate(QStringLiteral("slide"));
    library.addTemplate(QStringLiteral("float"));
    library.addFile(QStringLiteral("AppFiles/Templates/float/images/big/a.png"), "x");
    library.addStyle(QStringLiteral("float"), QStringLiteral("Sea"), "");
    const QString base = library.path() + QStringLiteral("/AppFiles/Templates/");
    EXPECT_EQ(
        FlashTemplate::tmplNames(),
        QStringList({base + QStringLiteral("float"), base + QStringLiteral("float/images"),
                     base + QStringLiteral("float/images/big"), base + QStringLiteral("slide")}));
    EXPECT_EQ(FlashTemplate::tmplStyleNamesForTmpl(QStringLiteral("float")),
              QStringList(library.stylePath(QStringLiteral("float"), QStringLiteral("Sea"))));
}

TEST_F(FlashTemplateTest, FindsTheFirstMatchDepthFirst) {
    library.addTemplate(QStringLiteral("float"),
                        group("g", group("inner", property("x", "deep")) + property("x", "later") +
                                       property("pageWidth", "1")) +
                            property("pageWidth", "2") + property("x", "last") +
                            property("empty", ""));
    FlashTemplate tmpl;
    EXPECT_EQ(value(tmpl, "x"), u"deep");
    EXPECT_EQ(value(tmpl, "pageWidth"), u"1");
    EXPECT_EQ(value(tmpl, "empty"), u"");
    EXPECT_EQ(value(tmpl, "g"), u"");
    EXPECT_EQ(value(tmpl, "X"), u"default");
    EXPECT_EQ(value(tmpl, ""), u"default");
    set(tmpl, "x", "new");
    const auto& children = tmpl.properties()[0]->childProperties();
    EXPECT_EQ(children[0]->childProperties()[0]->value(), u"new");
    EXPECT_EQ(children[1]->value(), u"later");
    EXPECT_EQ(tmpl.properties()[2]->value(), u"last");
}

TEST_F(FlashTemplateTest, PrefersTheTopLevelKeyThatComesFirst) {
    library.addTemplate(QStringLiteral("float"),
                        property("pageWidth", "1") + group("g", property("pageWidth", "2")));
    FlashTemplate tmpl;
    set(tmpl, "pageWidth", "3");
    EXPECT_EQ(value(tmpl, "pageWidth"), u"3");
    EXPECT_EQ(tmpl.propertyValueFor(*tmpl.properties()[1], QStringLiteral("pageWidth")), u"2");
}

TEST_F(FlashTemplateTest, TakesAPropertyWithoutValueForNone) {
    library.addTemplate(QStringLiteral("float"),
                        group("g", property("a", "1")) + property("a", "2") + property("b", "3"));
    const FlashTemplate tmpl;
    tmpl.properties()[0]->childProperties()[0]->setValue(QString());
    EXPECT_EQ(value(tmpl, "a"), u"2");
    tmpl.properties()[1]->setValue(QString());
    EXPECT_EQ(value(tmpl, "a"), u"default");
    tmpl.properties()[2]->setKey(QString());
    EXPECT_EQ(value(tmpl, ""), u"default");
}

TEST_F(FlashTemplateTest, ResolvesFilesOfTheStyle) {
    library.addTemplate(QStringLiteral("float"),
                        group("g", property("bg", "", "pt_file") + property("text", "")) +
                            property("logo", "", "pt_file"));
    FlashTemplate tmpl;
    tmpl.setStyleName(QStringLiteral("Sea"));
    const RecordedLog log;
    const char* given = "bg/STYLE_RESOURCE:img.jpg";
    for (const char* key : {"bg", "text", "logo"})
        set(tmpl, key, given);
    const QString resolved = library.stylePath(QStringLiteral("float"), QStringLiteral("Sea")) +
                             QStringLiteral("/img.jpg");
    EXPECT_EQ(value(tmpl, "bg"), resolved);
    EXPECT_EQ(value(tmpl, "logo"), resolved);
    EXPECT_EQ(value(tmpl, "text"), QString::fromLatin1(given));
    EXPECT_EQ(tmpl.valueAsFilePath(QStringLiteral("STYLE_RESOURCE:/img.jpg")), resolved);
    EXPECT_EQ(tmpl.valueAsFilePath(QStringLiteral("/a/b.jpg")), u"/a/b.jpg");
    EXPECT_EQ(log.texts(), QStringList(QStringLiteral("key 3[bg=bg/STYLE_RESOURCE:img.jpg]")));
}

TEST_F(FlashTemplateTest, KeepsPageSizeAndLanguageWhenChanged) {
    const auto properties = [](const char* number) {
        return property("pageWidth", number) + group("g", property("pageHeight", number)) +
               property("languageSetting", number) + property("other", number);
    };
    library.addTemplate(QStringLiteral("float"), properties("1"));
    library.addTemplate(QStringLiteral("slide"), properties("2"));
    library.addStyle(QStringLiteral("slide"), QStringLiteral("Sea"),
                     "\n\rpageWidth=3\n\rlanguageSetting=3\n\rother=3");
    FlashTemplate tmpl;
    tmpl.changeTmplTo(QStringLiteral("slide"),
                      library.stylePath(QStringLiteral("slide"), QStringLiteral("Sea")) + u'/');
    EXPECT_EQ(tmpl.tmplName(), u"slide");
    EXPECT_EQ(tmpl.styleName(), u"Sea");
    EXPECT_EQ(value(tmpl, "pageWidth"), u"1");
    EXPECT_EQ(value(tmpl, "pageHeight"), u"1");
    EXPECT_EQ(value(tmpl, "languageSetting"), u"1");
    EXPECT_EQ(value(tmpl, "other"), u"3");
}

TEST_F(FlashTemplateTest, GivesThePageSizeOfTheNewTemplateItsDefault) {
    library.addTemplate(QStringLiteral("slide"),
                        property("pageWidth", "2") + property("pageHeight", "2"));
    FlashTemplate tmpl; // there is no "float", so nothing is remembered
    tmpl.changeTmplTo(QStringLiteral("slide"), QString());
    EXPECT_EQ(value(tmpl, "pageWidth"), u"960");
    EXPECT_EQ(value(tmpl, "pageHeight"), u"600");
}

TEST_F(FlashTemplateTest, TakesOverATreeOfProperties) {
    library.addTemplate(QStringLiteral("float"), property("old", "1"));
    FlashTemplate tmpl;
    auto child = std::make_unique<FlashTemplateProperty>();
    child->setKey(QStringLiteral("new"));
    child->setValue(QStringLiteral("2"));
    FlashTemplate::Properties tree;
    tree.push_back(std::make_unique<FlashTemplateProperty>());
    FlashTemplateProperty::Children children;
    children.push_back(std::move(child));
    tree[0]->setChildProperties(std::move(children));
    tree[0]->setParent(tree[0].get());
    tmpl.setProperties(std::move(tree));
    EXPECT_EQ(value(tmpl, "old"), u"default");
    EXPECT_EQ(value(tmpl, "new"), u"2");
    const auto& top = *tmpl.properties()[0];
    EXPECT_EQ(top.parent(), nullptr);
    EXPECT_EQ(top.childProperties()[0]->parent(), &top);
}

TEST_F(FlashTemplateTest, LooksForItsPageInItsFolderAndThenInTheLibrary) {
    library.addTemplate(QStringLiteral("float"));
    FlashTemplate tmpl;
    tmpl.setHTMLFilePath(QStringLiteral("html\\index.html"));
    EXPECT_TRUE(tmpl.tmplHTMLFilePath().isNull());
    const QString shared = library.path() + QStringLiteral("/AppFiles/html/index.html");
    library.addFile(QStringLiteral("AppFiles/html/index.html"), "x");
    EXPECT_EQ(tmpl.tmplHTMLFilePath(), shared);
    library.addFile(QStringLiteral("AppFiles/Templates/float/html/index.html"), "x");
    EXPECT_EQ(tmpl.tmplHTMLFilePath(),
              library.templatePath(QStringLiteral("float")) + QStringLiteral("/html/index.html"));
}

TEST_F(FlashTemplateTest, KeepsFilesOfAStyleWithinTheStyle) {
    library.addTemplate(QStringLiteral("float"), property("image", "", "pt_file"));
    library.addFile(QStringLiteral("secret.png"), "x");
    library.addFile(QStringLiteral("AppFiles/Styles/float/Other/img.jpg"), "x");
    const QString secret = library.path() + QStringLiteral("/secret.png");
    for (const char* name :
         {"../Other/img.jpg", "../../../../secret.png", "/../../../../secret.png",
          "a/../../Other/img.jpg", "link.png", "linked/secret.png"}) {
        SCOPED_TRACE(name);
        library.addStyle(QStringLiteral("float"), QStringLiteral("Sea"),
                         QByteArray("image=STYLE_RESOURCE:") + name);
        const QString style = library.stylePath(QStringLiteral("float"), QStringLiteral("Sea"));
        QFile::link(secret, style + QStringLiteral("/link.png"));
        QFile::link(library.path(), style + QStringLiteral("/linked"));
        FlashTemplate tmpl;
        const RecordedLog log;
        tmpl.loadStyleByStyleName(QStringLiteral("Sea"));
        EXPECT_EQ(value(tmpl, "image"), u"");
        EXPECT_FALSE(log.texts().filter(QStringLiteral("has no right")).isEmpty());
    }
}

TEST_F(FlashTemplateTest, TellsOfFilesElsewhereThatATemplateAndAStyleName) {
    const QString own = library.templatePath(QStringLiteral("float")) + QStringLiteral("/own.png");
    library.addTemplate(QStringLiteral("float"),
                        property("image", "/elsewhere/a.png", "pt_file") +
                            property("text", "/a/text") +
                            group("group", property("own", own.toUtf8().constData(), "pt_file") +
                                               property("sound", "", "pt_file")));
    library.addStyle(QStringLiteral("float"), QStringLiteral("Sea"),
                     "sound=STYLE_RESOURCE:a.mp3\nown=../b.png\ntext=/another/text\n");
    const RecordedLog log(Log::Level::warn);
    FlashTemplate tmpl;
    ASSERT_EQ(log.texts().size(), 1);
    EXPECT_TRUE(log.texts().last().contains(QStringLiteral("template \"float\"")));
    EXPECT_TRUE(log.texts().last().endsWith(QStringLiteral("image=/elsewhere/a.png")));
    set(tmpl, "image", "/chosen/by/the/user.png");
    tmpl.loadStyleByStyleName(QStringLiteral("Sea"));
    ASSERT_EQ(log.texts().size(), 2) << log.texts().last().toStdString();
    EXPECT_TRUE(log.texts().last().contains(QStringLiteral("style \"Sea\"")));
    EXPECT_TRUE(log.texts().last().endsWith(QStringLiteral("own=../b.png")));
    EXPECT_EQ(value(tmpl, "own"), u"../b.png") << "an exported settings file may serve as a style";
    const QString settings = library.path() + QStringLiteral("/settings.txt");
    TestFiles::write(settings, "own=/elsewhere/c.png");
    tmpl.importPropertiesSettingsFrom(settings);
    EXPECT_EQ(log.texts().size(), 2);
}

TEST_F(FlashTemplateTest, TakesAnAbsoluteNameOfAStyleForOneInIt) {
    library.addTemplate(QStringLiteral("float"));
    FlashTemplate tmpl;
    tmpl.setStyleName(QStringLiteral("Sea"));
    const QString style = library.stylePath(QStringLiteral("float"), QStringLiteral("Sea"));
    EXPECT_EQ(tmpl.valueAsFilePath(QStringLiteral("STYLE_RESOURCE:/etc/passwd")),
              style + QStringLiteral("/etc/passwd"));
    EXPECT_EQ(tmpl.valueAsFilePath(QStringLiteral("STYLE_RESOURCE:")), style);
}

TEST_F(FlashTemplateTest, PublishesNoFilesFromOutsideTheLibrary) {
    library.addTemplate(QStringLiteral("float"));
    library.addFile(QStringLiteral("secret"), "x");
    const QString secret = library.path() + QStringLiteral("/secret");
    const QString folder = library.templatePath(QStringLiteral("float"));
    FlashTemplate tmpl;
    tmpl.setHTMLFilePath(QStringLiteral("..\\..\\..\\secret"));
    EXPECT_TRUE(tmpl.tmplHTMLFilePath().isNull());
    ASSERT_TRUE(QFile::link(secret, folder + QStringLiteral("/page.html")));
    tmpl.setHTMLFilePath(QStringLiteral("page.html"));
    EXPECT_TRUE(tmpl.tmplHTMLFilePath().isNull());
    library.addFile(QStringLiteral("AppFiles/page.html"), "x");
    EXPECT_EQ(tmpl.tmplHTMLFilePath(), library.path() + QStringLiteral("/AppFiles/page.html"));
    QFile::remove(folder + QStringLiteral("/book.swf"));
    ASSERT_TRUE(QFile::link(secret, folder + QStringLiteral("/book.swf")));
    tmpl.copyBookSWFToFile(library.path() + QStringLiteral("/copy"));
    EXPECT_FALSE(QFileInfo::exists(library.path() + QStringLiteral("/copy")));
}

TEST_F(FlashTemplateTest, CopiesPlayerFilesOverOldOnes) {
    library.addTemplate(QStringLiteral("float"));
    FlashTemplate tmpl;
    const QString target = library.path() + QStringLiteral("/copy");
    TestFiles::write(target, "old");
    tmpl.copyBookSWFToFile(target);
    EXPECT_EQ(TestFiles::read(target), "book.swf");
    tmpl.copyBookSoundFile(target);
    EXPECT_EQ(TestFiles::read(target), "moveSound.mp3");
    tmpl.copyBookJSFile(target);
    EXPECT_EQ(TestFiles::read(target), "swfobject.js");
    tmpl.copyHTMLToFile(target);
    EXPECT_EQ(TestFiles::read(target), "swfobject.js") << "publishing makes the page";
    tmpl.setTmplName(QStringLiteral("none"));
    tmpl.copyBookJSFile(target);
    EXPECT_FALSE(QFileInfo::exists(target));
}
