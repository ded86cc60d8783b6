#include "app/AppSettings.h"
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

// Sets the size of the pages and puts back what it was.
class PageSize {
public:
    PageSize(int width, int height) { set(width, height); }
    ~PageSize() { set(iWidth, iHeight); }
    PageSize(const PageSize&) = delete;
    PageSize& operator=(const PageSize&) = delete;

private:
    static void set(int width, int height) {
        AppSettings::shareInstance().setPageWidth(width);
        AppSettings::shareInstance().setPageHeight(height);
    }
    const int iWidth = AppSettings::shareInstance().PageWidth();
    const int iHeight = AppSettings::shareInstance().PageHeight();
};

void expectLeaves(const BookElement& element,
                  const std::vector<std::pair<const char*, const char*>>& leaves) {
    ASSERT_EQ(element.children.size(), leaves.size());
    for (std::size_t i = 0; i < leaves.size(); ++i) {
        const BookElement& child = element.children[i];
        EXPECT_EQ(child.name, QString::fromLatin1(leaves[i].first));
        EXPECT_EQ(child.text, QString::fromLatin1(leaves[i].second)) << leaves[i].first;
        EXPECT_TRUE(child.attributes.empty() && child.children.empty());
    }
}

TEST(BookXML, OfABareTemplateHoldsTheDefaultsInOrder) {
    const PublishedBook book;
    const BookElement root = configurationOf(book);
    EXPECT_EQ(root.name, QStringLiteral("SlidePowerPoint"));
    EXPECT_EQ(root.childNames(),
              (QStringList{QStringLiteral("Properties"), QStringLiteral("BackgroundConfig"),
                           QStringLiteral("Ppts")}));
    expectLeaves(root.at(QStringLiteral("Properties")), {{"Search", "No"},
                                                         {"IsExe", "No"},
                                                         {"Style", "0"},
                                                         {"Top", "10"},
                                                         {"Bottom", "10"},
                                                         {"Left", "10"},
                                                         {"Right", "10"},
                                                         {"ThumbnailsBgColor", "0xffffff"},
                                                         {"InitialShow", "None"},
                                                         {"FlashWindowsColor", "0xffffff"},
                                                         {"PageBackgroundColor", "0xffffff"},
                                                         {"TutorialTitle", "Folvero"},
                                                         {"HidePageFrameBar", "No"},
                                                         {"PageRiseOrFallTime", "0.5"},
                                                         {"PageMoveTime", "1"},
                                                         {"SlideInterval", "1"},
                                                         {"RightToLeft", "No"},
                                                         {"AutoPlay", "No"},
                                                         {"LoopPlay", "Yes"}});
    const BookElement& background = root.at(QStringLiteral("BackgroundConfig"));
    EXPECT_EQ(background.childNames(),
              (QStringList{QStringLiteral("BackgroundColor"), QStringLiteral("BackgroundImage"),
                           QStringLiteral("BackgroundSound")}));
    expectLeaves(background.at(QStringLiteral("BackgroundColor")),
                 {{"OuterGradiantColorA", "0xC0C0C0"},
                  {"OuterGradiantColorB", "0x808080"},
                  {"OuterGradiantAngle", "90"},
                  {"InnerGradiantColorA", "0xA3CFD1"},
                  {"InnerGradiantColorB", "0x408080"},
                  {"InnerGradiantAngle", "90"}});
    expectLeaves(background.at(QStringLiteral("BackgroundImage")),
                 {{"OuterBackgroundFile", ""},
                  {"OuterImgWidth", "0"},
                  {"OuterImgHeight", "0"},
                  {"OuterBackgroundPosition", "Scale to fit"},
                  {"InnerBackgroundFile", ""},
                  {"InnerImgWidth", "0"},
                  {"InnerImgHeight", "0"},
                  {"InnerBackgroundPosition", "Scale to fit"}});
    expectLeaves(background.at(QStringLiteral("BackgroundSound")),
                 {{"SoundFile", ""}, {"SoundLoops", "-1"}});
    EXPECT_TRUE(root.at(QStringLiteral("Ppts")).children.empty());
}

TEST(BookXML, TakesEachValueFromTheTemplateAsItStands) {
    // Every value is its own key, so that a swap of two rows shows.
    const QStringList keys =
        QStringLiteral("topMargin bottomMargin leftMargin rightMargin mainColor "
                       "InitialShow mainColor pageBackgroundColor TutorialTitle "
                       "hidePageFrameBar PageRiseOrFallTime pageMoveTime SlideInterval "
                       "RightToLeft AutoPlay LoopPlay")
            .split(u' ');
    const QStringList colors =
        QStringLiteral("bgBeginColor bgEndColor bgMRotation inBeginColor inEndColor inMRotation")
            .split(u' ');
    QString nested;
    for (const QString& key : keys + colors)
        nested += TemplateLibrary::property(key, key);
    for (const char* key : {"mainbgImgPosition", "innerMainbgImgPosition", "backgroundSoundLoop"})
        nested += TemplateLibrary::property(QString::fromLatin1(key), QString::fromLatin1(key));
    const PublishedBook book(TemplateLibrary::composite(QStringLiteral("group"), nested));
    const BookElement root = configurationOf(book);

    const auto textsFrom = [](const BookElement& element, std::size_t first) {
        QStringList texts;
        for (std::size_t i = first; i < element.children.size(); ++i)
            texts << element.children[i].text;
        return texts;
    };
    EXPECT_EQ(textsFrom(root.at(QStringLiteral("Properties")), 3), keys);
    EXPECT_EQ(textsFrom(root.at(QStringLiteral("BackgroundConfig/BackgroundColor")), 0), colors);
    const BookElement& background = root.at(QStringLiteral("BackgroundConfig"));
    EXPECT_EQ(background.textAt(QStringLiteral("BackgroundImage/OuterBackgroundPosition")),
              QStringLiteral("mainbgImgPosition"));
    EXPECT_EQ(background.textAt(QStringLiteral("BackgroundImage/InnerBackgroundPosition")),
              QStringLiteral("innerMainbgImgPosition"));
    EXPECT_EQ(background.textAt(QStringLiteral("BackgroundSound/SoundLoops")),
              QStringLiteral("backgroundSoundLoop"));
}

TEST(BookXML, KeepsAnyTextThatXmlCanHold) {
    PublishedBook book(TemplateLibrary::property(QStringLiteral("TutorialTitle"), QString()));
    const QString title = QStringLiteral(" <a> & \"\u4e66\U0001F4D6\" ");
    book.flashTemplate->setPropertyValue(QStringLiteral("TutorialTitle"),
                                         title + QChar(1) + QChar(0xD800) + QChar(0xFFFF) +
                                             QChar(0) + u'.');
    EXPECT_EQ(configurationOf(book).textAt(QStringLiteral("Properties/TutorialTitle")),
              title + u'.');
}

TEST(BookXML, NamesAndMeasuresTheBackgroundImages) {
    PublishedBook book(TemplateLibrary::property(QStringLiteral("mainbgImgUrl"), QString()) +
                       TemplateLibrary::property(QStringLiteral("innerMainbgImgUrl"), QString()));
    QImage image(1024, 768, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(2835);
    image.setDotsPerMeterY(2835);
    book.addSource(QStringLiteral("bg.png"), "");
    ASSERT_TRUE(image.save(book.sourcePath(QStringLiteral("bg.png"))));
    book.flashTemplate->setPropertyValue(QStringLiteral("mainbgImgUrl"),
                                         book.sourcePath(QStringLiteral("bg.png")));
    book.flashTemplate->setPropertyValue(QStringLiteral("innerMainbgImgUrl"),
                                         QStringLiteral("/missing/inner.v2.jpg"));
    const BookElement root = configurationOf(book);
    const BookElement& images = root.at(QStringLiteral("BackgroundConfig/BackgroundImage"));
    EXPECT_EQ(images.textAt(QStringLiteral("OuterBackgroundFile")),
              QStringLiteral("extfiles/mainbgImgUrl.png"));
    EXPECT_EQ(images.textAt(QStringLiteral("OuterImgWidth")), QStringLiteral("1024"));
    EXPECT_EQ(images.textAt(QStringLiteral("OuterImgHeight")), QStringLiteral("768"));
    EXPECT_EQ(images.textAt(QStringLiteral("InnerBackgroundFile")),
              QStringLiteral("extfiles/innerMainbgImgUrl.jpg"));
    EXPECT_EQ(images.textAt(QStringLiteral("InnerImgWidth")), QStringLiteral("0"));
    EXPECT_EQ(images.textAt(QStringLiteral("InnerImgHeight")), QStringLiteral("0"));
}

TEST(BookXML, NamesASoundOnlyWhenItHasAnExtension) {
    PublishedBook book(TemplateLibrary::property(QStringLiteral("backgroundSoundURL"), QString()));
    const auto soundFor = [&](const char* value) {
        book.flashTemplate->setPropertyValue(QStringLiteral("backgroundSoundURL"),
                                             QString::fromLatin1(value));
        return configurationOf(book).textAt(
            QStringLiteral("BackgroundConfig/BackgroundSound/SoundFile"));
    };
    EXPECT_EQ(soundFor("/x/loop"), QStringLiteral(""));
    EXPECT_EQ(soundFor("/x.d/loop"), QStringLiteral(""));
    EXPECT_EQ(soundFor("/x/loop.mp3"), QStringLiteral("extfiles/backgroundSoundURL.mp3"));
}

TEST(BookXML, ListsThePagesInOrderUnderTheNamesOfTheirNormalPages) {
    PublishedBook book;
    book.addPage(QStringLiteral("7.jpg"), 7, "seven");
    book.addPage(QStringLiteral("p12.swf"), 12, "twelve");
    auto pages = book.pageSource->pages();
    pages.insert(pages.begin() + 1, nullptr);
    pages[0]->setPageFilePath(QStringLiteral("/tmp/x/other.png"));
    book.pageSource->setPages(pages);
    const PageSize size(600, 800);
    const BookElement root = configurationOf(book);
    const auto& entries = root.at(QStringLiteral("Ppts")).children;
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].childNames(),
              (QStringList{QStringLiteral("Normal"), QStringLiteral("Thumb")}));
    expectLeaves(entries[0].at(QStringLiteral("Normal")),
                 {{"ImgPath", "page/7.jpg"}, {"Width", "600"}, {"Height", "800"}});
    expectLeaves(entries[0].at(QStringLiteral("Thumb")),
                 {{"ImgPath", "page/7.jpg"}, {"Width", "85"}, {"Height", "113"}});
    EXPECT_EQ(entries[1].textAt(QStringLiteral("Normal/ImgPath")), QStringLiteral("page/12.swf"));
}

TEST(BookXML, GivesPagesWiderThan85PointsAThumbnailOf85) {
    struct Row {
        int width, height;
        const char *thumbWidth, *thumbHeight;
    };
    const Row rows[] = {{600, 800, "85", "113"}, {85, 120, "85", "120"},
                        {86, 120, "85", "118"},  {0, 0, "0", "0"},
                        {90, -7, "85", "-6"},    {100, 30000000, "85", "-17449672"}};
    PublishedBook book;
    book.addPage(QStringLiteral("1.jpg"), 1, "x");
    for (const Row& row : rows) {
        const PageSize size(row.width, row.height);
        const BookElement root = configurationOf(book);
        expectLeaves(
            root.at(QStringLiteral("Ppts/Ppt/Thumb")),
            {{"ImgPath", "page/1.jpg"}, {"Width", row.thumbWidth}, {"Height", row.thumbHeight}});
    }
}

class Nodes : public FolveroOutput {
public:
    using FolveroOutput::appendChildPropertyToNode;
};

TEST(BookXML, FlattensAPropertyIntoItems) {
    const PublishedBook book(TemplateLibrary::composite(
        QStringLiteral("top"),
        TemplateLibrary::property(
            QStringLiteral("a"), QStringLiteral("1"), QStringLiteral("pt_text"),
            TemplateLibrary::property(QStringLiteral("b"), QStringLiteral("/x/y.png"),
                                      QStringLiteral("pt_file"))) +
            TemplateLibrary::property(QStringLiteral("c"), QStringLiteral("3"))));
    pugi::xml_document document;
    const pugi::xml_node element = document.append_child("list");
    Nodes().appendChildPropertyToNode(element, *book.flashTemplate->properties().front());
    std::ostringstream xml;
    document.save(xml, "", pugi::format_raw | pugi::format_no_declaration);
    EXPECT_EQ(xml.str(), "<list><item name=\"a\">1</item>"
                         "<item name=\"b\">./files/extfiles/b.png</item>"
                         "<item name=\"c\">3</item></list>");
}

} // namespace
