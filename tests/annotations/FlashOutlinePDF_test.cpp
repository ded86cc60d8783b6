#include "annotations/FlashOutlinePDF.h"

#include "builder/PDFBuilder.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using Entry = PDFBuilder::OutlineEntry;

QString shape(const FlashOutlineItem::Items& items) {
    QString text;
    for (const auto& item : items) {
        text += QStringLiteral("%1@%2/%3(%4)")
                    .arg(item->caption())
                    .arg(item->pageIndex())
                    .arg(item->level())
                    .arg(shape(item->childItems()));
    }
    return text;
}

} // namespace

TEST(FlashOutlinePDF, CopiesTheWholeTreeWithPDFPageNumbers) {
    PDFBuilder builder;
    const auto to = [&](int page) { return PDFBuilder::toDestination(builder.destination(page)); };
    builder.setOutline(
        {Entry{QStringLiteral("A"),
               to(0),
               {Entry{QStringLiteral("A.1"), to(1), {Entry{QStringLiteral("A.1.a"), to(2), {}}}}}},
         Entry{QStringLiteral("Überblick 概要"),
               PDFBuilder::toDestinationByAction(builder.destination(2)),
               {}},
         Entry{QStringLiteral("nowhere"), {}, {}}});
    for (int i = 0; i < 3; ++i) {
        PDFBuilder::Page page;
        page.mediaBox = QRectF(0, 0, 10, 10);
        builder.addPage(page);
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("outline.pdf"));
    ASSERT_TRUE(builder.write(path));

    FlashOutlinePDF outline;
    outline.loadOutlineFromPDF(PDFDocument::open(path));
    EXPECT_EQ(shape(outline.items()),
              QStringLiteral("A@1/1(A.1@2/2(A.1.a@3/3()))Überblick 概要@3/1()nowhere@0/1()"));
    EXPECT_EQ(outline.items()[0]->parent(), nullptr);
    EXPECT_EQ(outline.items()[0]->childItems()[0]->parent(), outline.items()[0].get());
}

TEST(FlashOutlinePDF, StaysEmptyWithoutBookmarks) {
    PDFBuilder builder;
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 10, 10);
    builder.addPage(page);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plain.pdf"));
    ASSERT_TRUE(builder.write(path));
    FlashOutlinePDF outline;
    outline.loadOutlineFromPDF(PDFDocument::open(path));
    outline.loadOutlineFromPDF(nullptr);
    EXPECT_TRUE(outline.items().empty());
}
