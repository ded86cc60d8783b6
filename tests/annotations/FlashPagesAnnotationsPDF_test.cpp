#include "annotations/FlashPagesAnnotationsPDF.h"

#include "builder/PDFBuilder.h"
#include "platform/PlatformException.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <ctime>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace {

class FlashPagesAnnotationsPDFTest : public testing::Test {
protected:
    std::shared_ptr<PDFDocument> open(const PDFBuilder& builder) {
        const QString path = iFolder.filePath(QStringLiteral("links.pdf"));
        EXPECT_TRUE(builder.write(path));
        return PDFDocument::open(path);
    }

    QTemporaryDir iFolder;
};

std::string asText(const pugi::xml_node& node) {
    std::ostringstream stream;
    node.print(stream, "", pugi::format_raw);
    return stream.str();
}

std::string location(const pugi::xml_node& anno) {
    std::string text;
    for (const auto& attribute : anno.child("location").attributes())
        text += std::string(attribute.name()) + '=' + attribute.value() + ' ';
    return text;
}

PDFBuilder::Page pageOf(const QSizeF& size, std::vector<QByteArray> annotations = {}) {
    PDFBuilder::Page page;
    page.mediaBox = QRectF({0, 0}, size);
    page.annotations = std::move(annotations);
    return page;
}

} // namespace

TEST_F(FlashPagesAnnotationsPDFTest, WritesWebAndPageLinksPerImportedPage) {
    PDFBuilder builder;
    const QRectF rect(60, 700, 120, 40);
    builder.addPage(pageOf({600, 800}));
    builder.addPage(pageOf({600, 800}));
    builder.addPage(
        pageOf({600, 800},
               {PDFBuilder::link(rect, PDFBuilder::toURL("https://example.org/?a=1&b=2")),
                PDFBuilder::link(rect, PDFBuilder::toDestination(builder.destination(4))),
                PDFBuilder::link(rect, {}), PDFBuilder::annotation("Text", rect),
                PDFBuilder::link(rect, PDFBuilder::toURL("https://example.org/") +
                                           PDFBuilder::toDestination(builder.destination(0)))}));
    builder.addPage(pageOf({600, 800}));
    builder.addPage(pageOf({600, 800}));

    FlashPagesAnnotationsPDF annotations;
    annotations.setNeedFiles({QStringLiteral("/left/over")});
    annotations.loadLinksFromPDF(open(builder), QStringLiteral("3,1"));
    EXPECT_TRUE(annotations.needFiles().isEmpty());
    const std::string place = R"(<location x="0.100000" y="0.075000" width="0.200000" )"
                              R"(height="0.050000"/></anno>)";
    const std::string link = R"(<anno annotype="com.quenlix.flipbook.pageeditor.TAnnoLink">)"
                             R"(<action triggerEventType="mouseDown" actionType=")"
                             R"(com.quenlix.flipbook.pageeditor.)";
    EXPECT_EQ(asText(annotations.pagesAnnotationsNode()),
              R"(<pagesAnnos><pageAnnos pageIndex="1"/><pageAnnos pageIndex="2">)" + link +
                  R"(TAnnoActionOpenURL"><url>https://example.org/?a=1&amp;b=2</url></action>)" +
                  place + link + R"(TAnnoActionGotoPage"><pageIndex>5</pageIndex></action>)" +
                  place + link + R"(TAnnoActionOpenURL"><url>https://example.org/</url></action>)" +
                  place + "</pageAnnos></pagesAnnos>");
}

// What may be followed is for whoever shows the links.
TEST_F(FlashPagesAnnotationsPDFTest, KeepsAddressesOfAnySchemeAsTexts) {
    const QByteArray addresses[] = {"javascript:alert", "JaVaScRiPt:x<&\"]]>", "file:///etc/passwd",
                                    "data:text/html,<script>x</script>"};
    PDFBuilder builder;
    std::vector<QByteArray> links;
    for (const QByteArray& address : addresses)
        links.push_back(PDFBuilder::link(QRectF(60, 700, 120, 40), PDFBuilder::toURL(address)));
    builder.addPage(pageOf({600, 800}, links));
    FlashPagesAnnotationsPDF annotations;
    annotations.loadLinksFromPDF(open(builder), QStringLiteral("ALL"));
    pugi::xml_document read;
    ASSERT_TRUE(read.load_string(asText(annotations.pagesAnnotationsNode()).c_str()));
    auto anno = read.document_element().child("pageAnnos").child("anno");
    for (const QByteArray& address : addresses) {
        EXPECT_STREQ(anno.child("action").child("url").text().get(), address.constData());
        EXPECT_EQ(anno.child("action").child("url").select_nodes("*").size(), 0U);
        anno = anno.next_sibling();
    }
    EXPECT_FALSE(anno);
}

TEST_F(FlashPagesAnnotationsPDFTest, FollowsEveryFormOfDestination) {
    PDFBuilder builder;
    const QRectF rect(0, 0, 10, 10);
    builder.addNamedDestination("new", builder.destination(1));
    builder.addOldNamedDestination("old", builder.destination(2));
    builder.addPage(
        pageOf({100, 100},
               {PDFBuilder::link(rect, PDFBuilder::toName("new")),
                PDFBuilder::link(rect, PDFBuilder::toOldName("old")),
                PDFBuilder::link(rect, PDFBuilder::toDestinationByAction(builder.destination(2))),
                PDFBuilder::link(rect, PDFBuilder::toName("unknown"))}));
    builder.addPage(pageOf({100, 100}));
    builder.addPage(pageOf({100, 100}));
    FlashPagesAnnotationsPDF annotations;
    annotations.loadLinksFromPDF(open(builder), QStringLiteral("1"));
    std::string targets;
    for (const auto& anno : annotations.pagesAnnotationsNode().first_child().children())
        targets += anno.child("action").child("pageIndex").text().get() + std::string(" ");
    EXPECT_EQ(targets, "2 3 3 ");
}

TEST_F(FlashPagesAnnotationsPDFTest, KeepsThePlayersArithmeticOnTurnedAndCroppedPages) {
    struct Case {
        int rotate;
        const char* location;
    };
    // Bounds x 60, y 700, w 120, h 40 on a page of 600 by 800.
    const std::vector<Case> cases{
        {0, "x=0.100000 y=0.075000 width=0.200000 height=0.050000 "},
        {90, "x=0.300000 y=0.075000 width=0.066667 height=0.150000 "},
        {180, "x=0.300000 y=0.125000 width=0.200000 height=0.050000 "},
        {270, "x=0.100000 y=0.125000 width=0.066667 height=0.150000 "},
        {45, "x=0.000000 y=1.000000 width=0.000000 height=0.000000 "},
    };
    PDFBuilder builder;
    const auto link =
        PDFBuilder::link(QRectF(60, 700, 120, 40), PDFBuilder::toURL("https://example.org/"));
    for (const Case& each : cases) {
        auto page = pageOf({600, 800}, {link});
        page.rotate = each.rotate;
        builder.addPage(page);
    }
    // Only the size of the crop box counts, not its origin.
    auto cropped = pageOf({900, 900}, {link});
    cropped.cropBox = QRectF(30, 40, 600, 800);
    builder.addPage(cropped);

    FlashPagesAnnotationsPDF annotations;
    annotations.loadLinksFromPDF(open(builder), QStringLiteral("ALL"));
    auto page = annotations.pagesAnnotationsNode().first_child();
    for (const Case& each : cases) {
        EXPECT_EQ(location(page.first_child()), each.location) << each.rotate;
        page = page.next_sibling();
    }
    EXPECT_EQ(location(page.first_child()), cases[0].location);
}

TEST_F(FlashPagesAnnotationsPDFTest, TakesAMissingRectangleForAnEmptyOne) {
    PDFBuilder builder;
    builder.addPage(pageOf({100, 100}, {"<< /Type /Annot /Subtype /Link " +
                                        PDFBuilder::toURL("https://example.org/\001") + " >>"}));
    FlashPagesAnnotationsPDF annotations;
    annotations.loadLinksFromPDF(open(builder), QStringLiteral("1"));
    const auto anno = annotations.pagesAnnotationsNode().first_child().first_child();
    EXPECT_EQ(location(anno), "x=0.000000 y=1.000000 width=0.000000 height=0.000000 ");
    EXPECT_STREQ(anno.child("action").child("url").text().get(), "https://example.org/");
}

TEST_F(FlashPagesAnnotationsPDFTest, WritesNumbersForThePlaceOnAPageOfNoWidth) {
    PDFBuilder builder;
    PDFBuilder::Page page;
    page.extraEntries = "/MediaBox [0 0 0." + QByteArray(37, '0') + "1 100]";
    page.annotations = {
        PDFBuilder::link(QRectF(20, 10, 30, 10), PDFBuilder::toURL("https://a.org/"))};
    builder.addPage(page);
    FlashPagesAnnotationsPDF annotations;
    annotations.loadLinksFromPDF(open(builder), QStringLiteral("1"));
    EXPECT_EQ(location(annotations.pagesAnnotationsNode().first_child().first_child()),
              "x=0.000000 y=0.800000 width=0.000000 height=0.100000 ");
}

TEST_F(FlashPagesAnnotationsPDFTest, FailsOnAPageThatTheDocumentLacks) {
    PDFBuilder builder;
    builder.addPage(pageOf({100, 100}));
    FlashPagesAnnotationsPDF annotations;
    EXPECT_THROW(annotations.loadLinksFromPDF(open(builder), QStringLiteral("2")),
                 PlatformException);
}

TEST_F(FlashPagesAnnotationsPDFTest, KeepsTheLinksOfOtherPagesThanAnUnreadableOne) {
    PDFBuilder builder;
    const auto link = PDFBuilder::link(QRectF(0, 0, 9, 9), PDFBuilder::toURL("https://a.org/"));
    builder.addPage(pageOf({100, 100}, {link}));
    builder.setObject(builder.pageObject(builder.addMissingPage()),
                      "<< /Type /Pages /Count 1 /Kids [] >>");
    builder.addPage(pageOf({100, 100}, {link}));
    FlashPagesAnnotationsPDF annotations;
    annotations.loadLinksFromPDF(open(builder), QStringLiteral("ALL"));
    std::string links;
    for (const auto& page : annotations.pagesAnnotationsNode())
        links += page.attribute("pageIndex").value() + std::string(page.child("anno") ? "+" : "-");
    EXPECT_EQ(links, "1+2-3+");
    ASSERT_EQ(annotations.unreadPages().size(), 1U);
    EXPECT_EQ(annotations.unreadPages()[0].page, 2);
}

TEST_F(FlashPagesAnnotationsPDFTest, StopsReadingWhenPagesShareALongList) {
    constexpr int perPage = 5000;
    constexpr int pages = 2 * AnnotationBudget::maxAnnotations / perPage;
    PDFBuilder builder;
    const int link = builder.addObject(
        PDFBuilder::link(QRectF(0, 0, 9, 9), PDFBuilder::toURL("https://a.org/")));
    const int list =
        builder.addObject("[ " + (PDFBuilder::reference(link) + ' ').repeated(perPage) + "]");
    PDFBuilder::Page page = pageOf({100, 100});
    page.extraEntries = "/Annots " + PDFBuilder::reference(list);
    for (int i = 0; i < pages; ++i)
        builder.addPage(page);
    FlashPagesAnnotationsPDF annotations;
    annotations.loadLinksFromPDF(open(builder), QStringLiteral("ALL"));

    int listed = 0;
    std::size_t links = 0;
    for (const auto& pageAnnos : annotations.pagesAnnotationsNode()) {
        const auto found = std::distance(pageAnnos.begin(), pageAnnos.end());
        ASSERT_EQ(found, ++listed <= pages / 2 ? perPage : 0) << listed;
        links += std::size_t(found);
    }
    EXPECT_EQ(listed, pages);
    EXPECT_EQ(links, AnnotationBudget::maxAnnotations);
}

// The engine alone would go through five thousand pages, or names, for each of these links.
TEST_F(FlashPagesAnnotationsPDFTest, FindsTheSamePageAgainQuickly) {
    constexpr int pages = 5000;
    PDFBuilder builder;
    const auto add = [&builder](const QByteArray& target) {
        PDFBuilder::Page page = pageOf({100, 100});
        page.annotations.assign(30'000, PDFBuilder::link(QRectF(0, 0, 9, 9), target));
        builder.addPage(page);
    };
    add(PDFBuilder::toDestination(builder.destination(pages - 1)));
    add(PDFBuilder::toName("missing"));
    for (int i = 2; i < pages; ++i) {
        builder.addPage(pageOf({100, 100}));
        builder.addNamedDestination("name " + QByteArray::number(i), builder.destination(i));
    }
    const auto document = open(builder);
    const std::clock_t start = std::clock();
    const auto byPage = document->page(0).annotations();
    const auto byName = document->page(1).annotations();
    EXPECT_LT(double(std::clock() - start) / CLOCKS_PER_SEC, 4);
    ASSERT_EQ(byPage.size(), 30'000U);
    EXPECT_EQ(byPage.back().destinationPage, pages - 1);
    ASSERT_EQ(byName.size(), 30'000U);
    EXPECT_EQ(byName.back().destinationPage, std::nullopt);
}

TEST_F(FlashPagesAnnotationsPDFTest, ReadsTheSameLinksOnePageAtATimeWhenIdle) {
    PDFBuilder builder;
    const auto link = PDFBuilder::link(QRectF(0, 0, 9, 9), PDFBuilder::toURL("https://a.org/"));
    for (int i = 0; i < 3; ++i)
        builder.addPage(pageOf({100, 100}, {link}));
    const auto document = open(builder);
    FlashPagesAnnotationsPDF atOnce;
    atOnce.loadLinksFromPDF(document, QStringLiteral("ALL"));
    FlashPagesAnnotationsPDF whenIdle;
    whenIdle.loadLinksSyncsFromPDF(document, QStringLiteral("ALL"));
    EXPECT_FALSE(whenIdle.pagesAnnotationsNode().first_child());
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(asText(whenIdle.pagesAnnotationsNode()), asText(atOnce.pagesAnnotationsNode()));
}

TEST_F(FlashPagesAnnotationsPDFTest, StopsReadingWhenPagesShareALongAddress) {
    constexpr int length = 60'000;
    constexpr int pages = 2 * int(AnnotationBudget::maxCharacters) / length;
    const QByteArray address = "https://a.org/";
    const auto links = [&](int addressLength) {
        PDFBuilder builder;
        const int link = builder.addObject(PDFBuilder::link(
            QRectF(0, 0, 9, 9),
            PDFBuilder::toURL(address + QByteArray(addressLength - address.size(), 'a'))));
        PDFBuilder::Page page = pageOf({100, 100});
        page.extraEntries = "/Annots [ " + PDFBuilder::reference(link) + " ]";
        for (int i = 0; i < pages; ++i)
            builder.addPage(page);
        FlashPagesAnnotationsPDF annotations;
        annotations.loadLinksFromPDF(open(builder), QStringLiteral("ALL"));
        const auto pagesNode = annotations.pagesAnnotationsNode();
        return std::count_if(pagesNode.begin(), pagesNode.end(),
                             [](const pugi::xml_node& node) { return node.first_child(); });
    };
    EXPECT_EQ(links(length), pages / 2 + 1);
    EXPECT_EQ(links(length * 2), 0); // is too long for an address
}
