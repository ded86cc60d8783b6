#include "annotations/FlashPagesAnnotationsPDF.h"

#include "builder/PDFBuilder.h"
#include "pdf/DrawablePDF.h"

#include <QTemporaryDir>
#include <ctime>
#include <gtest/gtest.h>
#include <sstream>

namespace {

std::string asText(const pugi::xml_node& node) {
    std::ostringstream stream;
    node.print(stream, "", pugi::format_raw);
    return stream.str();
}

class FlashPagesAnnotationsPDFTest : public testing::Test {
protected:
    std::shared_ptr<DrawablePDF> open() {
        const QString path = iFolder.filePath("links.pdf");
        EXPECT_TRUE(builder.write(path));
        return std::make_shared<DrawablePDF>(path);
    }

    // Loads twice, since nothing of an earlier load may remain.
    pugi::xml_node load(const QString& pageRange = "ALL") {
        const auto document = open();
        annotations.loadLinksFromPDF(document, pageRange);
        annotations.loadLinksFromPDF(document, pageRange);
        return annotations.pagesAnnotationsNode();
    }

    void addPage(std::vector<QByteArray> links, int rotate = 0) {
        auto page = PDFBuilder::page({600, 800}, {}, std::move(links));
        page.rotate = rotate;
        builder.addPage(page);
    }

    const QRectF rect{60, 700, 120, 40};
    PDFBuilder builder;
    FlashPagesAnnotationsPDF annotations;

private:
    QTemporaryDir iFolder;
};

std::string location(const pugi::xml_node& anno) {
    std::string text;
    for (const auto& attribute : anno.child("location").attributes())
        text += std::string(attribute.name()) + '=' + attribute.value() + ' ';
    return text;
}

} // namespace

TEST_F(FlashPagesAnnotationsPDFTest, WritesWebAndPageLinksPerImportedPage) {
    const auto url = PDFBuilder::toURL("https://example.org/?a=1&b=2");
    const auto toPage = PDFBuilder::toDestination(builder.destination(4));
    addPage({});
    addPage({});
    addPage({PDFBuilder::link(rect, url), PDFBuilder::link(rect, toPage),
             PDFBuilder::link(rect, {}), PDFBuilder::annotation("Text", rect, url),
             PDFBuilder::link(rect, url + toPage)});
    addPage({});
    addPage({});
    annotations.setNeedFiles({"/left/over"});
    const auto root = load("3,1");
    EXPECT_TRUE(annotations.needFiles().isEmpty());
    const std::string place = R"(<location x="0.100000" y="0.075000" width="0.200000" )"
                              R"(height="0.050000"/></anno>)";
    const std::string action = R"(<anno annotype="com.quenlix.flipbook.pageeditor.TAnnoLink">)"
                               R"(<action triggerEventType="mouseDown" actionType=")"
                               R"(com.quenlix.flipbook.pageeditor.)";
    const std::string toWeb =
        action + R"(TAnnoActionOpenURL"><url>https://example.org/?a=1&amp;b=2</url></action>)" +
        place;
    EXPECT_EQ(asText(root), R"(<pagesAnnos><pageAnnos pageIndex="1"/><pageAnnos pageIndex="2">)" +
                                toWeb + action +
                                R"(TAnnoActionGotoPage"><pageIndex>5</pageIndex></action>)" +
                                place + toWeb + "</pageAnnos></pagesAnnos>");
}

// The player decides which schemes it follows.
TEST_F(FlashPagesAnnotationsPDFTest, KeepsAddressesOfAnySchemeAsTexts) {
    const QByteArrayList addresses{"JaVaScRiPt:x<&\"]]>", "file:///etc/passwd",
                                   "data:text/html,<script>x</script>"};
    std::vector<QByteArray> links;
    for (const QByteArray& address : addresses)
        links.push_back(PDFBuilder::link(rect, PDFBuilder::toURL(address)));
    addPage(links);
    pugi::xml_document read;
    ASSERT_TRUE(read.load_string(asText(load()).c_str()));
    QByteArrayList found;
    for (const auto& anno : read.document_element().child("pageAnnos"))
        found << anno.child("action").child("url").child_value();
    EXPECT_EQ(found, addresses);
}

TEST_F(FlashPagesAnnotationsPDFTest, FollowsEveryFormOfDestination) {
    builder.addNamedDestination("new", builder.destination(1));
    builder.addOldNamedDestination("old", builder.destination(2));
    addPage({PDFBuilder::link(rect, PDFBuilder::toName("new")),
             PDFBuilder::link(rect, PDFBuilder::toOldName("old")),
             PDFBuilder::link(rect, PDFBuilder::toDestinationByAction(builder.destination(2))),
             PDFBuilder::link(rect, PDFBuilder::toName("unknown"))});
    addPage({});
    addPage({});
    std::string targets;
    for (const auto& anno : load("1").first_child().children())
        targets += anno.child("action").child("pageIndex").text().get() + std::string(" ");
    EXPECT_EQ(targets, "2 3 3 ");
}

TEST_F(FlashPagesAnnotationsPDFTest, KeepsThePlayersArithmeticOnTurnedAndCroppedPages) {
    const std::pair<int, const char*> cases[] = {
        {0, "x=0.100000 y=0.075000 width=0.200000 height=0.050000 "},
        {90, "x=0.300000 y=0.075000 width=0.066667 height=0.150000 "},
        {180, "x=0.300000 y=0.125000 width=0.200000 height=0.050000 "},
        {270, "x=0.100000 y=0.125000 width=0.066667 height=0.150000 "},
        {45, "x=0.000000 y=1.000000 width=0.000000 height=0.000000 "}};
    const auto link = PDFBuilder::link(rect, PDFBuilder::toURL("https://a.org/"));
    for (const auto& [rotate, place] : cases)
        addPage({link}, rotate);
    // Only the size of the crop box counts, not its origin.
    auto cropped = PDFBuilder::page({900, 900}, {}, {link});
    cropped.cropBox = QRectF(30, 40, 600, 800);
    builder.addPage(cropped);
    auto page = load().first_child();
    for (const auto& [rotate, place] : cases) {
        EXPECT_EQ(location(page.first_child()), place) << rotate;
        page = page.next_sibling();
    }
    EXPECT_EQ(location(page.first_child()), cases[0].second);
}

TEST_F(FlashPagesAnnotationsPDFTest, WritesNumbersForAnyRectangleOnAnyPage) {
    addPage({"<< /Subtype /Link " + PDFBuilder::toURL("https://example.org/\001") + " >>"});
    PDFBuilder::Page thin;
    thin.extraEntries = "/MediaBox [0 0 0." + QByteArray(37, '0') + "1 100]";
    thin.annotations = {PDFBuilder::link({20, 10, 30, 10}, PDFBuilder::toURL("https://a.org/"))};
    builder.addPage(thin);
    const auto root = load();
    const auto anno = root.first_child().first_child();
    EXPECT_EQ(location(anno), "x=0.000000 y=1.000000 width=0.000000 height=0.000000 ");
    EXPECT_STREQ(anno.child("action").child("url").child_value(), "https://example.org/");
    EXPECT_EQ(location(root.last_child().first_child()),
              "x=0.000000 y=0.800000 width=0.000000 height=0.100000 ");
}

TEST_F(FlashPagesAnnotationsPDFTest, KeepsTheLinksOfOtherPagesThanAnUnreadableOne) {
    const auto link = PDFBuilder::link(rect, PDFBuilder::toURL("https://a.org/"));
    addPage({link});
    builder.setObject(builder.pageObject(builder.addMissingPage()),
                      "<< /Type /Pages /Count 1 /Kids [] >>");
    addPage({link});
    std::string links;
    for (const auto& page : load())
        links += page.attribute("pageIndex").value() + std::string(page.child("anno") ? "+" : "-");
    EXPECT_EQ(links, "1+2-3+");
    ASSERT_EQ(annotations.unreadPages().size(), 1U);
    EXPECT_EQ(annotations.unreadPages()[0].page, 2);
    EXPECT_THROW(load("4"), PlatformException) << "a page that does not exist";
}

// All pages share one list, of that many links with addresses of that length.
class SharedLinks : public FlashPagesAnnotationsPDFTest {
protected:
    std::vector<std::ptrdiff_t> linksOn(int pages, int perPage, int length) {
        const int link = builder.addObject(PDFBuilder::link(
            rect, PDFBuilder::toURL("https://a.org/" + QByteArray(length - 14, 'a'))));
        PDFBuilder::Page page = PDFBuilder::page({100, 100});
        page.extraEntries =
            "/Annots [ " + (PDFBuilder::reference(link) + ' ').repeated(perPage) + "]";
        for (int i = 0; i < pages; ++i)
            builder.addPage(page);
        std::vector<std::ptrdiff_t> links;
        for (const auto& pageAnnos : load())
            links.push_back(std::distance(pageAnnos.begin(), pageAnnos.end()));
        return links;
    }
};

TEST_F(SharedLinks, AreReadUntilTheyAreTooMany) {
    std::vector<std::ptrdiff_t> expected(100, 0);
    std::fill_n(expected.begin(), AnnotationBudget::maxAnnotations / 5000, 5000);
    EXPECT_EQ(linksOn(100, 5000, 20), expected);
}

TEST_F(SharedLinks, AreReadUntilTheirAddressesAreTooLong) {
    std::vector<std::ptrdiff_t> expected(1000, 0);
    std::fill_n(expected.begin(), AnnotationBudget::maxCharacters / 60'000 + 1, 1);
    EXPECT_EQ(linksOn(1000, 1, 60'000), expected);
}

TEST_F(SharedLinks, AreLeftOutWhenOneAddressIsTooLong) {
    EXPECT_EQ(linksOn(1, 1, 120'000), (std::vector<std::ptrdiff_t>{0}));
}

// MuPDF alone would go through five thousand pages, or names, for each of these links.
TEST_F(FlashPagesAnnotationsPDFTest, FindsTheSamePageAgainQuickly) {
    constexpr int pages = 5000;
    constexpr std::size_t links = 30'000;
    for (const QByteArray& target :
         {PDFBuilder::toDestination(builder.destination(pages - 1)), PDFBuilder::toName("missing")})
        addPage(std::vector(links, PDFBuilder::link(rect, target)));
    for (int i = 2; i < pages; ++i) {
        addPage({});
        builder.addNamedDestination("name " + QByteArray::number(i), builder.destination(i));
    }
    const auto document = open();
    const std::clock_t start = std::clock();
    const auto byPage = document->annotations(0);
    const auto byName = document->annotations(1);
    EXPECT_LT(double(std::clock() - start) / CLOCKS_PER_SEC, 4);
    EXPECT_EQ(byPage.at(links - 1).destinationPage, pages - 1);
    EXPECT_EQ(byName.at(links - 1).destinationPage, std::nullopt);
}
