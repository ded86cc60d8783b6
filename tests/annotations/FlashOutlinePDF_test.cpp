#include "annotations/FlashOutlinePDF.h"

#include "builder/PDFBuilder.h"
#include "pdf/DrawablePDF.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QString shape(const FlashOutlineItem::Items& items) {
    QString text;
    for (const auto& item : items)
        text += QString("%1@%2/%3(%4)")
                    .arg(item->caption(), QString::number(item->pageIndex()),
                         QString::number(item->level()), shape(item->childItems()));
    return text;
}

} // namespace

TEST(FlashOutlinePDF, CopiesTheWholeTreeWithPDFPageNumbers) {
    PDFBuilder builder;
    const auto to = [&](int page) { return PDFBuilder::toDestination(builder.destination(page)); };
    builder.setOutline(
        {{"A", to(0), {{"A.1", to(1), {{"A.1.a", to(2)}}}}},
         {"Überblick 概要", PDFBuilder::toDestinationByAction(builder.destination(2))},
         {"nowhere"}});
    for (int i = 0; i < 3; ++i)
        builder.addPage(PDFBuilder::page({10, 10}));
    const QTemporaryDir folder;
    ASSERT_TRUE(builder.write(folder.filePath("outline.pdf")));
    FlashOutlinePDF outline;
    outline.loadOutlineFromPDF(std::make_shared<DrawablePDF>(folder.filePath("outline.pdf")));
    EXPECT_EQ(shape(outline.items()),
              "A@1/1(A.1@2/2(A.1.a@3/3()))Überblick 概要@3/1()nowhere@0/1()");
    EXPECT_EQ(outline.items()[0]->parent(), nullptr);
    EXPECT_EQ(outline.items()[0]->childItems()[0]->parent(), outline.items()[0].get());
}
