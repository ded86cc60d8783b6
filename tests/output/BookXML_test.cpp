#include "support/BookReader.h"
#include "support/PublishedBook.h"

#include <QImage>
#include <gtest/gtest.h>
#include <sstream>

namespace {

BookElement configurationOf(const PublishedBook& book) {
    std::ostringstream xml;
    book.publisher()->bookXML()->save(xml);
    return BookReader::parse(QByteArray::fromStdString(xml.str()));
}

// "NAME=TEXT" of each element within the one at that path.
QString within(const BookElement& root, const QString& path) {
    QStringList texts;
    for (const BookElement& element : root.at(path).children) {
        EXPECT_TRUE(element.children.empty());
        texts << element.name + '=' + element.text;
    }
    return texts.join(' ');
}

TEST(BookXML, OfABareTemplateHoldsTheDefaultsInOrder) {
    const BookElement root = configurationOf(PublishedBook());
    EXPECT_EQ(root.name, "SlidePowerPoint");
    EXPECT_EQ(root.childNames(), (QStringList{"Properties", "BackgroundConfig", "Ppts"}));
    EXPECT_EQ(
        within(root, "Properties"),
        "Search=No IsExe=No Style=0 Top=10 Bottom=10 Left=10 Right=10 ThumbnailsBgColor=0xffffff "
        "InitialShow=None FlashWindowsColor=0xffffff PageBackgroundColor=0xffffff "
        "TutorialTitle=Folvero HidePageFrameBar=No PageRiseOrFallTime=0.5 PageMoveTime=1 "
        "SlideInterval=1 RightToLeft=No AutoPlay=No LoopPlay=Yes");
    EXPECT_EQ(root.at("BackgroundConfig").childNames(),
              (QStringList{"BackgroundColor", "BackgroundImage", "BackgroundSound"}));
    EXPECT_EQ(within(root, "BackgroundConfig/BackgroundColor"),
              "OuterGradiantColorA=0xC0C0C0 OuterGradiantColorB=0x808080 OuterGradiantAngle=90 "
              "InnerGradiantColorA=0xA3CFD1 InnerGradiantColorB=0x408080 InnerGradiantAngle=90");
    EXPECT_EQ(within(root, "BackgroundConfig/BackgroundImage"),
              "OuterBackgroundFile= OuterImgWidth=0 OuterImgHeight=0 OuterBackgroundPosition=Scale "
              "to fit "
              "InnerBackgroundFile= InnerImgWidth=0 InnerImgHeight=0 InnerBackgroundPosition=Scale "
              "to fit");
    EXPECT_EQ(within(root, "BackgroundConfig/BackgroundSound"), "SoundFile= SoundLoops=-1");
    EXPECT_TRUE(root.at("Ppts").children.empty());
}

TEST(BookXML, TakesEachValueFromTheTemplateAsItStands) {
    // Every value is its own key, so that a swap of two rows shows.
    QString nested;
    for (const QString& key :
         QString("topMargin bottomMargin leftMargin rightMargin mainColor InitialShow "
                 "pageBackgroundColor TutorialTitle hidePageFrameBar PageRiseOrFallTime "
                 "pageMoveTime SlideInterval RightToLeft AutoPlay LoopPlay bgBeginColor bgEndColor "
                 "bgMRotation inBeginColor inEndColor inMRotation mainbgImgPosition "
                 "innerMainbgImgPosition backgroundSoundLoop")
             .split(' '))
        nested += TemplateLibrary::property(key, key);
    const BookElement root =
        configurationOf(PublishedBook(TemplateLibrary::composite("group", nested)));
    EXPECT_EQ(
        within(root, "Properties"),
        "Search=No IsExe=No Style=0 Top=topMargin Bottom=bottomMargin Left=leftMargin "
        "Right=rightMargin ThumbnailsBgColor=mainColor InitialShow=InitialShow "
        "FlashWindowsColor=mainColor PageBackgroundColor=pageBackgroundColor "
        "TutorialTitle=TutorialTitle HidePageFrameBar=hidePageFrameBar "
        "PageRiseOrFallTime=PageRiseOrFallTime PageMoveTime=pageMoveTime "
        "SlideInterval=SlideInterval RightToLeft=RightToLeft AutoPlay=AutoPlay LoopPlay=LoopPlay");
    EXPECT_EQ(within(root, "BackgroundConfig/BackgroundColor"),
              "OuterGradiantColorA=bgBeginColor OuterGradiantColorB=bgEndColor "
              "OuterGradiantAngle=bgMRotation InnerGradiantColorA=inBeginColor "
              "InnerGradiantColorB=inEndColor InnerGradiantAngle=inMRotation");
    EXPECT_EQ(within(root, "BackgroundConfig/BackgroundImage"),
              "OuterBackgroundFile= OuterImgWidth=0 OuterImgHeight=0 "
              "OuterBackgroundPosition=mainbgImgPosition InnerBackgroundFile= InnerImgWidth=0 "
              "InnerImgHeight=0 InnerBackgroundPosition=innerMainbgImgPosition");
    EXPECT_EQ(within(root, "BackgroundConfig/BackgroundSound"),
              "SoundFile= SoundLoops=backgroundSoundLoop");
}

TEST(BookXML, HasWhatThePublisherDecidesOnlyWhereThatDiffers) {
    const auto propertiesOf = [](const std::vector<std::pair<QString, QString>>& values) {
        QString nested;
        for (const auto& [key, value] : values)
            nested += TemplateLibrary::property(key, value);
        const PublishedBook book(TemplateLibrary::composite("group", nested));
        return within(configurationOf(book), "Properties").section(" LoopPlay=Yes", 1).trimmed();
    };
    EXPECT_EQ(propertiesOf({{"logoFile", ""},
                            {"logoLink", "https://example.org"},
                            {"showPrint", "Yes"},
                            {"showHelp", ""},
                            {"firstView", "Automatic"},
                            {"accentColor", "0X2B5876"},
                            {"offerDocument", "Yes"}}),
              "");
    EXPECT_EQ(propertiesOf({{"logoFile", "/a/my logo.svg"},
                            {"logoLink", "https://example.org"},
                            {"showPrint", "No"},
                            {"showZoom", "NO"},
                            {"firstView", "Two pages"},
                            {"accentColor", "0xf0c000"}}),
              "LogoFile=extfiles/logoFile.svg LogoLink=https://example.org "
              "HiddenButtons=zoomIn zoomOut print FirstView=Two pages AccentColor=0xf0c000");
}

TEST(BookXML, KeepsAnyTextThatXmlCanHold) {
    PublishedBook book(TemplateLibrary::property("TutorialTitle", QString()));
    const QString title = " <a> & \"\u4e66\U0001F4D6\" ";
    book.flashTemplate->setPropertyValue("TutorialTitle", title + QChar(1) + QChar(0xD800) +
                                                              QChar(0xFFFF) + QChar(0) + '.');
    EXPECT_EQ(configurationOf(book).textAt("Properties/TutorialTitle"), title + '.');
}

TEST(BookXML, NamesAndMeasuresTheBackgroundImages) {
    PublishedBook book(TemplateLibrary::property("mainbgImgUrl", QString()) +
                       TemplateLibrary::property("innerMainbgImgUrl", "/missing/inner.v2.jpg"));
    QImage image(1024, 768, QImage::Format_RGB32);
    image.setDotsPerMeterX(2835);
    image.setDotsPerMeterY(2835);
    const QString path = book.addSource("bg.png", "");
    ASSERT_TRUE(image.save(path));
    book.flashTemplate->setPropertyValue("mainbgImgUrl", path);
    EXPECT_EQ(within(configurationOf(book), "BackgroundConfig/BackgroundImage"),
              "OuterBackgroundFile=extfiles/mainbgImgUrl.png OuterImgWidth=1024 OuterImgHeight=768 "
              "OuterBackgroundPosition=Scale to fit "
              "InnerBackgroundFile=extfiles/innerMainbgImgUrl.jpg InnerImgWidth=0 InnerImgHeight=0 "
              "InnerBackgroundPosition=Scale to fit");
}

TEST(BookXML, NamesASoundOnlyWhenItHasAnExtension) {
    const std::pair<const char*, const char*> cases[] = {
        {"/x/loop", ""}, {"/x.d/loop", ""}, {"/x/loop.mp3", "extfiles/backgroundSoundURL.mp3"}};
    for (const auto& [path, name] : cases) {
        const PublishedBook book(TemplateLibrary::property("backgroundSoundURL", path));
        EXPECT_EQ(configurationOf(book).textAt("BackgroundConfig/BackgroundSound/SoundFile"), name);
    }
}

TEST(BookXML, ListsThePagesInOrderUnderTheNamesOfTheirNormalPages) {
    PublishedBook book;
    book.addPage("7.jpg", 7, "seven");
    book.addPage("p12.swf", 12, "twelve");
    auto pages = book.pageSource->pages();
    pages.insert(pages.begin() + 1, nullptr);
    pages[0]->setPageFilePath("/tmp/x/other.png");
    book.pageSource->setPages(pages);
    book.pageSize = {600, 800};
    const BookElement root = configurationOf(book);
    const auto& entries = root.at("Ppts").children;
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].childNames(), (QStringList{"Normal", "Thumb"}));
    EXPECT_EQ(within(entries[0], "Normal"), "ImgPath=page/7.jpg Width=600 Height=800");
    EXPECT_EQ(within(entries[0], "Thumb"), "ImgPath=page/7.jpg Width=85 Height=113");
    EXPECT_EQ(entries[1].textAt("Normal/ImgPath"), "page/12.swf");
}

} // namespace
