#include "pdf/SplitPDF.h"

#include "builder/PDFBuilder.h"
#include "pdf/DrawablePDF.h"
#include "support/TemplateLibrary.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using Sizes = std::vector<QSizeF>;

class SplitPDFTest : public testing::Test {
protected:
    // What becomes of a document of pages of those sizes: null when nothing does.
    std::shared_ptr<SplitPDF> split(const Sizes& sizes, Spreads spreads, bool rightToLeft = false) {
        for (const QSizeF& size : sizes)
            builder.addPage(PDFBuilder::page(size));
        TestFiles::write(iFolder.filePath("test.pdf"), builder.build());
        builder = {};
        const auto document = std::make_shared<DrawablePDF>(iFolder.filePath("test.pdf"));
        return SplitPDF::of(document, spreads, rightToLeft);
    }

    PDFBuilder builder;

private:
    QTemporaryDir iFolder;
};

const QSizeF single(300, 400);
const QSizeF wide(600, 400);

} // namespace

TEST_F(SplitPDFTest, HalvesPagesThatAreLikelyTwo) {
    const struct {
        Sizes sizes;
        Spreads spreads;
        QByteArray widths; // empty when nothing is split
    } cases[] = {
        {{single, wide, single}, Spreads::automatic, "300 300 300 300"},
        {{single, {539, 400}, {661, 400}, {600, 413}, {600, 387}}, Spreads::automatic, ""},
        {{single, {541, 389}, {659, 411}}, Spreads::automatic, "300 270.5 270.5 329.5 329.5"},
        {{wide, wide}, Spreads::automatic, ""},
        {{single, wide}, Spreads::keep, ""},
        {{wide, single, {539, 300}, {700, 300}}, Spreads::split, "300 300 300 539 350 350"},
        {{wide, wide}, Spreads::split, "300 300 300 300"},
        {{{400, 300}, {800, 300}, {400, 300}}, Spreads::split, "400 400 400 400"},
        {{single, single}, Spreads::split, ""},
    };
    for (const auto& [sizes, spreads, widths] : cases) {
        const auto document = split(sizes, spreads);
        QByteArrayList found;
        for (int index = 0; document && index < document->pageCount(); ++index)
            found << QByteArray::number(document->page(index).displaySize().width());
        EXPECT_EQ(found.join(' '), widths);
    }
}

TEST_F(SplitPDFTest, NumbersItsPagesInReadingOrder) {
    const auto document = split({single, wide, wide}, Spreads::automatic, true);
    ASSERT_EQ(document->pageCount(), 5);
    EXPECT_TRUE(document->cut(1).part == PageCut::Part::right && document->cut(1).index == 1);
    EXPECT_TRUE(document->cut(4).part == PageCut::Part::left && document->cut(4).index == 2);
    EXPECT_EQ(document->range("all"), "1-5");
    EXPECT_EQ(document->range("2,1-3,4-2147483647,-3--1,0"),
              "2-3,1-5,6-2147483647,0-5,0-0"); // "-3" is 0 to 3
}

TEST_F(SplitPDFTest, LeadsToTheHalfThatWasMeant) {
    const auto targets = [this](bool rightToLeft) {
        std::vector<PDFOutlineNode> nodes;
        std::vector<PDFBuilder::OutlineEntry> entries;
        for (const double left : {0.0, 40.0, 310.0})
            entries.push_back({"x", PDFBuilder::toDestination(builder.destination(1, left, 9))});
        entries.push_back({"x", PDFBuilder::toDestination(builder.destination(1))});
        entries.push_back({"x", PDFBuilder::toDestination(builder.destination(2, 310, 9))});
        entries.push_back({"x"});
        builder.setOutline(entries);
        QByteArray found;
        for (const auto& node :
             split({single, wide, single}, Spreads::automatic, rightToLeft)->outline())
            found += QByteArray::number(node.destinationPage) + ' ';
        return found;
    };
    EXPECT_EQ(targets(false), "1 1 2 1 3 -1 ");
    EXPECT_EQ(targets(true), "1 2 1 1 3 -1 ");
}
