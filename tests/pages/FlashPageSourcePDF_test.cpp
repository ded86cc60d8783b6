#include "pages/FlashPageSourcePDF.h"

#include "builder/PDFBuilder.h"
#include "platform/NotificationCenter.h"
#include "platform/PlatformException.h"
#include "support/PixelCheck.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <thread>

namespace {

constexpr int dpi = 144;
constexpr int best = 100;

// A document whose pages are filled with gray, page N at N tenths.
class FlashPageSourcePDFTest : public testing::Test {
protected:
    QString document(int pages) {
        PDFBuilder builder;
        for (int number = 1; number <= pages; ++number) {
            PDFBuilder::Page page;
            page.mediaBox = QRectF(0, 0, 100, 150);
            page.content = QByteArray::number(number / 10.0) + " g 0 0 100 150 re f";
            builder.addPage(page);
        }
        return write(builder);
    }

    QString write(const PDFBuilder& builder) {
        const QString path = iFolder.filePath(QStringLiteral("book.pdf"));
        EXPECT_TRUE(builder.write(path));
        return path;
    }

    QTemporaryDir iFolder;
};

std::vector<int> numbers(const FlashPageSource::Pages& pages) {
    std::vector<int> result;
    for (const auto& page : pages)
        result.push_back(page->pageIndex());
    return result;
}

} // namespace

TEST_F(FlashPageSourcePDFTest, DrawsTheChosenPagesUnderTheirNumbersInOrder) {
    QStringList progress;
    const auto subscription = NotificationCenter::defaultCenter().addObserver(
        QString::fromUtf16(ImportProgressInfoMSG), nullptr, [&](const Notification& message) {
            progress << QStringLiteral("%1 %2/%3")
                            .arg(message.userInfo[QStringLiteral("type")].toString(),
                                 message.userInfo[QStringLiteral("pageIndex")].toString(),
                                 message.userInfo[QStringLiteral("totalPage")].toString());
        });
    FlashPageSourcePDF source(document(5), QStringLiteral("4,2"), dpi, best);
    source.generatePages();
    source.generateNormalPages();
    source.generateNormalPages();

    EXPECT_EQ(numbers(source.pages()), (std::vector{2, 4}));
    EXPECT_EQ(numbers(source.normalPages()), (std::vector{2, 4}));
    EXPECT_EQ(progress.mid(0, 4),
              QStringList({QStringLiteral("geneatePage 1/2"), QStringLiteral("geneatePage 2/2"),
                           QStringLiteral("geneateNormalPage 1/2"),
                           QStringLiteral("geneateNormalPage 2/2")}));
    EXPECT_EQ(source.getPageAtIndex(1)->pageIndex(), 4);
    EXPECT_EQ(source.getNormalPageAtIndex(1), nullptr);

    const QString folder = source.toPageConverter()->converterWorkFolder();
    EXPECT_EQ(QDir(folder).entryList(QDir::Files),
              QStringList({QStringLiteral("2.jpg"), QStringLiteral("4.jpg")}));
    const QImage page(source.getNormalPageAtIndex(4)->pageFilePath());
    EXPECT_EQ(page.size(), QSize(200, 300));
    EXPECT_TRUE(page.isGrayscale());
    EXPECT_TRUE(isNear(colourAt(page, 0.5, 0.5), QColor(102, 102, 102)));
}

TEST_F(FlashPageSourcePDFTest, UsesAReadyPageFileInsteadOfDrawing) {
    FlashPageSourcePDF source(document(3), QStringLiteral("ALL"), dpi, best);
    const QString ready =
        source.toPageConverter()->converterWorkFolder() + QStringLiteral("/2.swf");
    QFile file(ready);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    source.generatePages();
    EXPECT_EQ(source.getPageAtIndex(1)->pageFilePath(), ready);
    EXPECT_FALSE(QFileInfo::exists(source.toPageConverter()->converterWorkFolder() +
                                   QStringLiteral("/2.jpg")));
    EXPECT_TRUE(QFileInfo::exists(source.getPageAtIndex(2)->pageFilePath()));
}

TEST_F(FlashPageSourcePDFTest, DeletesItsWorkFolderWhenItGoes) {
    QString folder;
    {
        FlashPageSourcePDF source(document(1), QStringLiteral("ALL"), dpi, best);
        source.generatePages();
        folder = source.toPageConverter()->converterWorkFolder();
        ASSERT_TRUE(QFileInfo::exists(folder));
    }
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST_F(FlashPageSourcePDFTest, ThrowsForAPageThatTheDocumentLacks) {
    FlashPageSourcePDF source(document(2), QStringLiteral("1-3"), dpi, best);
    EXPECT_THROW(source.generatePages(), PlatformException);
    EXPECT_EQ(source.pages().size(), 2U);
}

TEST_F(FlashPageSourcePDFTest, ListsAPageThatCannotBeDrawnAndGoesOn) {
    PDFBuilder builder;
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 100, 100);
    builder.addPage(page);
    // An empty branch that counts as a page: the engine finds none when it comes to it.
    const int second = builder.addPage(page);
    builder.setObject(builder.pageObject(second), "<< /Type /Pages /Count 1 /Kids [] >>");
    builder.addPage(page);
    FlashPageSourcePDF source(write(builder), QStringLiteral("ALL"), dpi, best);
    source.generatePages();
    ASSERT_EQ(source.pages().size(), 3U);
    EXPECT_FALSE(QFileInfo::exists(source.pages()[1]->pageFilePath()));
    EXPECT_TRUE(QFileInfo::exists(source.pages()[2]->pageFilePath()));
    const auto& failed = source.toPageConverter()->failedPages();
    ASSERT_EQ(failed.size(), 1U);
    EXPECT_EQ(failed[0].page, 2);
    EXPECT_FALSE(failed[0].reason.isNull());
}

TEST_F(FlashPageSourcePDFTest, StaysEmptyWithoutADocument) {
    FlashPageSourcePDF source(iFolder.filePath(QStringLiteral("none.pdf")), QStringLiteral("ALL"),
                              dpi, best);
    source.generatePages();
    EXPECT_TRUE(source.pages().empty());
    EXPECT_EQ(source.toPageConverter()->PDFDoc(), nullptr);
    EXPECT_TRUE(source.openError().english().contains(QStringLiteral("none.pdf: no such file")));
}

TEST_F(FlashPageSourcePDFTest, CompressesStronglyBelowTheBestQuality) {
    PDFBuilder builder;
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 300, 300);
    page.fonts["F1"] = "Helvetica";
    page.content = "BT /F1 12 Tf 14 TL 10 280 Td " +
                   QByteArray("(The quick brown fox jumps over the lazy dog) Tj T* ").repeated(18) +
                   "ET";
    builder.addPage(page);
    const QString path = write(builder);
    const auto size = [&](int quality) {
        FlashPageSourcePDF source(path, QStringLiteral("ALL"), dpi, quality);
        source.generatePages();
        return QFileInfo(source.pages()[0]->pageFilePath()).size();
    };
    const qint64 whole = size(100);
    EXPECT_LT(size(80) * 2, whole);
    EXPECT_EQ(size(80), size(25));
}

// A page that would draw for hours: forms nested so that each draws the next ten times.
TEST_F(FlashPageSourcePDFTest, StopsInTheMiddleOfAPage) {
    PDFBuilder builder;
    int form =
        builder.addStream("/Type /XObject /Subtype /Form /BBox [0 0 100 100]", "0 0 100 100 re f");
    for (int depth = 0; depth < 12; ++depth) {
        form = builder.addStream("/Type /XObject /Subtype /Form /BBox [0 0 100 100] "
                                 "/Resources << /XObject << /F " +
                                     PDFBuilder::reference(form) + " >> >>",
                                 QByteArray("/F Do ").repeated(10));
    }
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 100, 100);
    page.xObjects["F"] = form;
    page.content = "/F Do";
    builder.addPage(page);
    builder.addPage(page);

    FlashPageSourcePDF source(write(builder), QStringLiteral("ALL"), dpi, best);
    std::thread stopper([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        source.setStop(true);
    });
    source.generatePages();
    stopper.join();
    ASSERT_EQ(source.toPageConverter()->failedPages().size(), 1U);
    EXPECT_TRUE(source.toPageConverter()->failedPages()[0].reason.english().contains(
        QStringLiteral("stopped")));
    EXPECT_EQ(source.pages().size(), 1U); // the second page was not begun
}
