#include "pages/ImportPDFOperation.h"

#include "builder/PDFBuilder.h"
#include "output/FolveroOutputWeb.h"
#include "platform/NotificationCenter.h"
#include "support/RecordedLog.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class ImportPDFOperationTest : public testing::Test {
protected:
    void SetUp() override {
        PDFBuilder builder;
        for (int i = 0; i < 3; ++i) {
            PDFBuilder::Page page;
            page.mediaBox = QRectF(0, 0, 100, 100);
            page.annotations = {PDFBuilder::link(QRectF(10, 10, 20, 20),
                                                 PDFBuilder::toURL("https://example.org/"))};
            builder.addPage(page);
        }
        builder.setOutline({{QStringLiteral("Start"), {}, {}}});
        iPath = iFolder.filePath(QStringLiteral("three.pdf"));
        ASSERT_TRUE(builder.write(iPath));
    }

    // Writes into the file, as a copy over it does.
    void changeDocument() const {
        QFile file(iPath);
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write("% changed\n");
    }

    QTemporaryDir iFolder;
    QString iPath;
};

// Does that as soon as a page was drawn.
NotificationCenter::Subscription afterAPage(const std::function<void()>& action) {
    return NotificationCenter::defaultCenter().addObserver(
        QString::fromUtf16(ImportProgressInfoMSG), nullptr,
        [action](const Notification&) { action(); });
}

} // namespace

TEST_F(ImportPDFOperationTest, LeavesOutWhatWasNotAskedFor) {
    ImportPDFOperation operation(iPath, QStringLiteral("ALL"), 144, 100);
    operation.main();
    ASSERT_TRUE(operation.flashPageSource());
    EXPECT_EQ(operation.flashPageSource()->normalPages().size(), 3U);
    EXPECT_FALSE(operation.flashPagesAnnotation());
    EXPECT_FALSE(operation.flashOutline());
    EXPECT_TRUE(operation.failures().isEmpty());
}

TEST_F(ImportPDFOperationTest, ReadsLinksAndBookmarksWhenAskedToAndTellsWhenItIsFinished) {
    const auto operation =
        std::make_shared<ImportPDFOperation>(iPath, QStringLiteral("2-3"), 144, 100);
    operation->setImportLinks(true);
    operation->setImportBookmarks(true);
    bool finishedWhenTold = false;
    operation->setFinishedObserver([&] { finishedWhenTold = operation->isFinished(); });
    OperationQueue queue;
    queue.addOperation(operation);
    queue.waitUntilAllOperationsAreFinished();

    EXPECT_TRUE(finishedWhenTold);
    const auto pages = operation->flashPagesAnnotation()->pagesAnnotationsNode();
    EXPECT_EQ(std::distance(pages.begin(), pages.end()), 2);
    ASSERT_EQ(operation->flashOutline()->items().size(), 1U);
    EXPECT_EQ(operation->flashOutline()->items()[0]->caption(), QStringLiteral("Start"));
}

TEST_F(ImportPDFOperationTest, DropsThePagesWhenOneIsMissingAndStillListsPagesForLinks) {
    const RecordedLog log(Log::Level::error);
    ImportPDFOperation operation(iPath, QStringLiteral("2,9"), 144, 100);
    operation.setImportLinks(true);
    operation.setImportBookmarks(true);
    operation.main();
    EXPECT_FALSE(operation.flashPageSource());
    ASSERT_EQ(log.texts().size(), 1);
    EXPECT_TRUE(
        log.texts()[0].startsWith(QStringLiteral("Run Import PDF Operation error,import pages:")));
    EXPECT_TRUE(
        operation.failures()[0].english().contains(QStringLiteral("page 9 does not exist")));

    const auto pages = operation.flashPagesAnnotation()->pagesAnnotationsNode();
    ASSERT_EQ(std::distance(pages.begin(), pages.end()), 2);
    EXPECT_FALSE(pages.first_child().first_child()); // no document is left to read links from
    EXPECT_TRUE(operation.flashOutline()->items().empty());
}

TEST_F(ImportPDFOperationTest, EmptiesItsResultsWhenCancelled) {
    ImportPDFOperation beforehand(iPath, QStringLiteral("ALL"), 144, 100);
    beforehand.cancel();
    beforehand.main();
    EXPECT_FALSE(beforehand.flashPageSource());

    ImportPDFOperation underway(iPath, QStringLiteral("ALL"), 144, 100);
    underway.setImportLinks(true);
    underway.setImportBookmarks(true);
    const auto observer = afterAPage([&] { underway.cancel(); });
    underway.main();
    EXPECT_FALSE(underway.flashPageSource());
    EXPECT_FALSE(underway.flashPagesAnnotation());
    EXPECT_FALSE(underway.flashOutline());
}

TEST_F(ImportPDFOperationTest, GivesNoPagesOfADocumentThatIsChangedMeanwhile) {
    const RecordedLog log(Log::Level::error);
    ImportPDFOperation operation(iPath, QStringLiteral("ALL"), 144, 100);
    const auto observer = afterAPage([this] { changeDocument(); });
    operation.main();
    EXPECT_FALSE(operation.flashPageSource());
    ASSERT_EQ(operation.failures().size(), 1);
    EXPECT_EQ(operation.failures()[0].english(),
              iPath + QStringLiteral(": the file was changed after reading it had begun"));
    EXPECT_TRUE(operation.failures()[0].isTemporary());
}

TEST_F(ImportPDFOperationTest, GivesNoWebBookOfADocumentThatIsChangedAfterwards) {
    const RecordedLog log(Log::Level::error);
    ImportPDFOperation operation(iPath, QStringLiteral("ALL"), 144, 100);
    operation.main();
    FolveroOutputWeb output(operation.flashPageSource(), nullptr, iFolder.path(), QString());
    output.setProgress([this](int, int) { changeDocument(); });
    output.ouputTheBook();
    ASSERT_EQ(output.publishErrors().size(), 1);
    EXPECT_TRUE(output.publishErrors()[0].startsWith(iPath + QStringLiteral(": the file was")));
    EXPECT_TRUE(output.publishMessages()[0].isTemporary());
}
