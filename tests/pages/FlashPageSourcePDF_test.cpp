#include "pages/FlashPageSourcePDF.h"

#include "base/NotificationCenter.h"
#include "base/PlatformException.h"
#include "builder/PDFBuilder.h"
#include "support/BookReader.h"
#include "support/PixelCheck.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class FlashPageSourcePDFTest : public testing::Test {
protected:
    // A document whose pages are filled with gray, page N at N tenths.
    void fill(int pages) {
        for (int number = 1; number <= pages; ++number)
            builder.addPage(PDFBuilder::page({100, 150}, QByteArray::number(number / 10.0) +
                                                             " g 0 0 100 150 re f"));
    }

    QString path() {
        const QString path = iFolder.filePath("book.pdf");
        EXPECT_TRUE(QFile::exists(path) || builder.write(path));
        return path;
    }

    std::unique_ptr<FlashPageSourcePDF> source(const QString& pages = "ALL", int quality = 100) {
        return std::make_unique<FlashPageSourcePDF>(path(), pages, 144, quality);
    }

    PDFBuilder builder;

private:
    QTemporaryDir iFolder;
};

std::vector<int> numbers(const FlashPageSource::Pages& pages) {
    std::vector<int> result;
    for (const auto& page : pages)
        result.push_back(page->pageIndex());
    return result;
}

QString folderOf(const FlashPageSourcePDF& source) {
    return source.toPageConverter()->converterWorkFolder();
}

} // namespace

TEST_F(FlashPageSourcePDFTest, DrawsTheChosenPagesUnderTheirNumbersInOrder) {
    fill(5);
    QStringList progress;
    const auto subscription = NotificationCenter::defaultCenter().addObserver(
        QString::fromUtf16(ImportProgressInfoMSG), nullptr, [&](const Notification& message) {
            progress << QString("%1 %2/%3")
                            .arg(message.userInfo["type"].toString(),
                                 message.userInfo["pageIndex"].toString(),
                                 message.userInfo["totalPage"].toString());
        });
    const auto pages = source("4,2");
    pages->generatePages();
    pages->setStop(true);
    pages->generateNormalPages();
    EXPECT_TRUE(pages->normalPages().empty());
    pages->setStop(false);
    pages->generateNormalPages();
    EXPECT_EQ(progress, (QStringList{"geneatePage 1/2", "geneatePage 2/2", "geneateNormalPage 1/2",
                                     "geneateNormalPage 2/2"}));
    pages->generateNormalPages();
    EXPECT_EQ(numbers(pages->pages()), (std::vector{2, 4}));
    EXPECT_EQ(numbers(pages->normalPages()), (std::vector{2, 4}));
    EXPECT_EQ(pages->getPageAtIndex(1)->pageIndex(), 4);
    EXPECT_EQ(pages->getNormalPageAtIndex(1), nullptr);

    EXPECT_EQ(QDir(folderOf(*pages)).entryList(QDir::Files), (QStringList{"2.jpg", "4.jpg"}));
    const QImage page(pages->getNormalPageAtIndex(4)->pageFilePath());
    EXPECT_EQ(page.size(), QSize(200, 300));
    EXPECT_TRUE(page.isGrayscale());
    EXPECT_TRUE(isNear(colourAt(page, 0.5, 0.5), QColor(102, 102, 102)));
    pages->setStop(true);
    EXPECT_EQ(pages->getNormalPageAtIndex(4), nullptr);
}

// At once, or later for those that are wanted and not there yet.
TEST_F(FlashPageSourcePDFTest, MakesTheFilesForWebBooksToo) {
    fill(3);
    const auto classic = source();
    classic->generatePages();
    classic->generateNormalPages();
    EXPECT_EQ(classic->pagesWithout(PageFiles::web), (std::vector{1, 2, 3}));
    EXPECT_TRUE(classic->pagesWithout(PageFiles::classic).empty());
    const auto web = source();
    web->toPageConverter()->setFilesOf(
        [](int page) { return page == 3 ? PageFiles::classic : PageFiles::web; });
    web->generatePages();
    web->generateNormalPages();
    EXPECT_EQ(web->pagesWithout(PageFiles::web), std::vector{3});
    EXPECT_EQ(web->pagesWithout(PageFiles::classic), (std::vector{1, 2}));
    QFile::remove(folderOf(*web) + "/2.text");

    std::vector<int> progress;
    const std::atomic<bool> stop{false};
    for (const auto& pages : {&classic, &web}) {
        for (const PageFiles kind : {PageFiles::web, PageFiles::classic}) {
            (*pages)->makeFiles(kind, (*pages)->pagesWithout(kind), stop,
                                [&](int done) { progress.push_back(done); });
            EXPECT_TRUE((*pages)->pagesWithout(kind).empty());
        }
    }
    EXPECT_EQ(progress, (std::vector{1, 2, 3, 1, 2, 1, 2}));
    const auto files = BookReader::contentsBeneath(folderOf(*classic));
    EXPECT_EQ(files.size(), 15U);
    EXPECT_EQ(files, BookReader::contentsBeneath(folderOf(*web)));
}

TEST_F(FlashPageSourcePDFTest, DrawsInThisProcessWithoutWorkers) {
    fill(2);
    PDFToSWFPageConverter converter(path(), std::make_shared<DrawablePDF>(path()), 100);
    converter.setFilesOf(webFiles);
    const QString page = converter.generatePage(2);
    EXPECT_TRUE(QFile::exists(WebPageFiles(converter.converterWorkFolder(), 2).text));
    EXPECT_EQ(page, converter.converterWorkFolder() + "/2.png");
    EXPECT_EQ(QImage(page).size(), QSize(200, 300));
    QDir(converter.converterWorkFolder()).removeRecursively();
    EXPECT_THROW(converter.generatePage(1), PlatformException);
    EXPECT_TRUE(converter.failedPages().empty());
}

TEST_F(FlashPageSourcePDFTest, DeletesItsWorkFolderWhenItGoes) {
    fill(1);
    auto pages = source();
    pages->generatePages();
    const QString folder = folderOf(*pages);
    ASSERT_TRUE(QFileInfo::exists(folder));
    pages.reset();
    EXPECT_FALSE(QFileInfo::exists(folder));
}

// Saturated colours that meet in thin lines look dull with half of their resolution.
TEST_F(FlashPageSourcePDFTest, KeepsTheResolutionOfColoursWhereItShows) {
    QByteArray lines = "0 0 1 rg 0 0 100 100 re f 1 0 0 rg ";
    for (int y = 1; y < 100; y += 2)
        lines += "0 " + QByteArray::number(y) + " 100 0.5 re f ";
    for (const QByteArray& content : {QByteArray(), QByteArray("1 0 0 rg 0 0 50 100 re f"), lines})
        builder.addPage(PDFBuilder::page({100, 100}, content));
    // First quantizer, number of components, sampling of the first.
    const auto encoded = [&](int quality) {
        const auto pages = source("ALL", quality);
        pages->generatePages();
        QByteArrayList kinds;
        for (const auto& page : pages->pages()) {
            const QByteArray jpeg = TestFiles::read(page->pageFilePath());
            const qsizetype tables = jpeg.indexOf("\xff\xdb");
            const qsizetype frame = jpeg.indexOf("\xff\xc0");
            kinds << (jpeg.mid(tables + 5, 1) + jpeg.mid(frame + 9, 1) + jpeg.mid(frame + 11, 1))
                         .toHex();
        }
        return kinds.join(' ');
    };
    EXPECT_EQ(encoded(100), "030111 030322 030311");
    for (const int quality : {99, 25})
        EXPECT_EQ(encoded(quality), "200111 200322 200322");
}
