#include "pages/ImportPDFOperation.h"

#include "base/NotificationCenter.h"
#include "builder/PDFBuilder.h"
#include "support/RecordedLog.h"
#include "webbook/FolveroOutputWeb.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/stat.h>

namespace {

class ImportPDFOperationTest : public testing::Test {
protected:
    ImportPDFOperationTest() {
        PDFBuilder builder;
        for (int i = 0; i < 3; ++i)
            builder.addPage(PDFBuilder::page(
                {100, 100}, {},
                {PDFBuilder::link({10, 10, 20, 20}, PDFBuilder::toURL("https://example.org/"))}));
        builder.setOutline({{"Start"}});
        EXPECT_TRUE(builder.write(iPath));
    }

    std::shared_ptr<ImportPDFOperation> import(const QString& pages = "ALL",
                                               bool all = true) const {
        auto operation = std::make_shared<ImportPDFOperation>(iPath, pages, 144, 100);
        operation->setImportLinks(all);
        operation->setImportBookmarks(all);
        return operation;
    }

    // Does that at each step of the import, given its number.
    static NotificationCenter::Subscription atEachStep(std::function<void(int)> action) {
        return NotificationCenter::defaultCenter().addObserver(
            QString::fromUtf16(ImportProgressInfoMSG), nullptr,
            [action, step = 0](const Notification&) mutable { action(++step); });
    }

    // Writes into the file, as a copy over it does that keeps the time.
    void changeDocument() const {
        QFile file(iPath);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        struct stat info {};
        ::fstat(file.handle(), &info);
        file.write("#");
        file.close();
        const timespec times[]{info.st_atim, info.st_mtim};
        ::utimensat(AT_FDCWD, iPath.toUtf8().constData(), times, 0);
    }

    QTemporaryDir iFolder;
    const QString iPath = iFolder.filePath("three.pdf");
};

void expectNoResults(const ImportPDFOperation& operation) {
    EXPECT_FALSE(operation.flashPageSource());
    EXPECT_FALSE(operation.flashPagesAnnotation());
    EXPECT_FALSE(operation.flashOutline());
}

} // namespace

TEST_F(ImportPDFOperationTest, LeavesOutWhatWasNotAskedFor) {
    const auto operation = import("ALL", false);
    operation->main();
    ASSERT_TRUE(operation->flashPageSource());
    EXPECT_EQ(operation->flashPageSource()->normalPages().size(), 3U);
    EXPECT_FALSE(operation->flashPagesAnnotation());
    EXPECT_FALSE(operation->flashOutline());
    EXPECT_TRUE(operation->failures().isEmpty());
}

TEST_F(ImportPDFOperationTest, ReadsLinksAndBookmarksWhenAskedToAndReportsWhenItIsFinished) {
    const auto operation = import("2-3");
    bool wasFinished = false;
    operation->setFinishedObserver([&] { wasFinished = operation->isFinished(); });
    OperationQueue queue;
    queue.addOperation(operation);
    queue.waitFor(-1);
    EXPECT_TRUE(wasFinished);
    const auto pages = operation->flashPagesAnnotation()->pagesAnnotationsNode();
    EXPECT_EQ(std::distance(pages.begin(), pages.end()), 2);
    ASSERT_EQ(operation->flashOutline()->items().size(), 1U);
    EXPECT_EQ(operation->flashOutline()->items()[0]->caption(), "Start");
}

TEST_F(ImportPDFOperationTest, DropsThePagesWhenOneIsMissingAndStillListsPagesForLinks) {
    const RecordedLog log(Log::Level::error);
    const auto operation = import("2,9");
    operation->main();
    EXPECT_FALSE(operation->flashPageSource());
    ASSERT_EQ(log.texts().size(), 1);
    EXPECT_TRUE(log.texts()[0].startsWith("Run Import PDF Operation error,import pages:"));
    EXPECT_TRUE(operation->failures()[0].english().contains("page 9 does not exist"));
    const auto pages = operation->flashPagesAnnotation()->pagesAnnotationsNode();
    ASSERT_EQ(std::distance(pages.begin(), pages.end()), 2);
    EXPECT_FALSE(pages.first_child().first_child()); // no document is left to read links from
    EXPECT_TRUE(operation->flashOutline()->items().empty());
}

TEST_F(ImportPDFOperationTest, ReportsPagesThatCannotBeReadAndUsesTheOthers) {
    PDFBuilder builder;
    builder.setObject(builder.pageObject(builder.addMissingPage()),
                      "<< /Type /Pages /Count 1 /Kids [] >>");
    builder.addPage(PDFBuilder::page({100, 150}));
    builder.setInfo("Title", " A title ");
    ASSERT_TRUE(builder.write(iPath));
    const auto operation = import();
    operation->main();
    EXPECT_EQ(operation->book().pageSize, QSize(100, 150));
    EXPECT_EQ(operation->book().documentTitle, "A title");
    ASSERT_EQ(operation->failures().size(), 1);
    EXPECT_TRUE(operation->failures()[0].english().startsWith(iPath + ": links: page 1: "));
    for (const auto& [range, reason] : {std::pair{"1", ": none of the pages could be drawn ("},
                                        {"3-2", ": none of the pages asked for is in it"}}) {
        const auto empty = import(range, false);
        empty->main();
        ASSERT_EQ(empty->failures().size(), 1) << range;
        EXPECT_TRUE(empty->failures()[0].english().startsWith(iPath + reason)) << range;
    }
}

TEST_F(ImportPDFOperationTest, GivesPagesOfAnySizeOneThatPlayersCanComputeWith) {
    PDFBuilder builder;
    builder.addPage(PDFBuilder::page({0.4, 2'147'483'647}));
    ASSERT_TRUE(builder.write(iPath));
    const auto operation = import("ALL", false);
    operation->main();
    EXPECT_EQ(operation->book().pageSize, QSize(1, 25'000'000));
}

TEST_F(ImportPDFOperationTest, EmptiesItsResultsWhenCancelled) {
    const auto beforehand = import();
    beforehand->cancel();
    beforehand->main();
    expectNoResults(*beforehand);

    const auto underway = import();
    int steps = 0;
    const auto observer = atEachStep([&](int step) {
        steps = step;
        underway->cancel();
    });
    underway->main();
    EXPECT_EQ(steps, 1); // no further pages
    expectNoResults(*underway);
}

// The page range is read while the page source is made.
TEST_F(ImportPDFOperationTest, DrawsNothingWhenCancelledBeforeThereIsAPageSource) {
    const auto operation = import("1");
    Log::setWatcher([&](const Log::Record& record) {
        if (record.text == "range[0]=1")
            operation->cancel();
    });
    int steps = 0;
    const auto observer = atEachStep([&](int step) { steps = step; });
    operation->main();
    Log::setWatcher({});
    EXPECT_EQ(steps, 0);
    expectNoResults(*operation);
}

TEST_F(ImportPDFOperationTest, PassesFaultsOfOursOnWithoutResults) {
    const auto operation = import();
    const auto observer = atEachStep([](int /*step*/) { throw std::logic_error("fault"); });
    EXPECT_THROW(operation->main(), std::logic_error);
    expectNoResults(*operation);
    EXPECT_EQ(englishTexts(operation->failures()), QStringList{iPath + ": fault"});
}

TEST_F(ImportPDFOperationTest, GivesNoPagesOfADocumentThatIsChangedMeanwhile) {
    const auto operation = import();
    const auto observer = atEachStep([this](int /*step*/) { changeDocument(); });
    operation->main();
    EXPECT_FALSE(operation->flashPageSource());
    EXPECT_EQ(englishTexts(operation->failures()),
              QStringList{iPath + ": the file was changed after reading it had begun"});
    EXPECT_TRUE(operation->failures()[0].isTemporary());
}

// By a program for backups, for example.
TEST_F(ImportPDFOperationTest, TakesADocumentOfAnotherModeForTheSame) {
    const auto operation = import();
    const auto observer =
        atEachStep([this](int step) { ::chmod(iPath.toUtf8().constData(), 0600U + mode_t(step)); });
    operation->main();
    EXPECT_EQ(englishTexts(operation->failures()), QStringList());
    EXPECT_TRUE(operation->flashPageSource());
}

TEST_F(ImportPDFOperationTest, GivesNoBookWithoutPagesThatWereLost) {
    const auto operation = import();
    operation->setFilesOf(webFiles);
    operation->main();
    const WebPageFiles files = *operation->flashPageSource()->webFilesOf(2);
    for (const QString& lost : {files.picture, files.text}) {
        QFile::rename(lost, lost + ".lost");
        if (lost == files.text)
            QDir().mkdir(lost); // can't be read
        FolveroOutputWeb output(nullptr, nullptr, iFolder.path(), QString());
        output.setBook(operation->book());
        output.ouputTheBook();
        ASSERT_EQ(output.publishErrors().size(), 1);
        EXPECT_TRUE(output.publishErrors()[0].startsWith(lost + ": "))
            << output.publishErrors()[0].toStdString();
        QFile::rename(lost + ".lost", lost);
    }
}

TEST_F(ImportPDFOperationTest, GivesNoWebBookOfADocumentThatIsChangedAfterwards) {
    const auto operation = import();
    operation->main();
    FolveroOutputWeb output(nullptr, nullptr, iFolder.path(), QString());
    output.setBook(operation->book());
    changeDocument();
    output.ouputTheBook();
    ASSERT_EQ(output.publishErrors().size(), 1);
    EXPECT_TRUE(output.publishErrors()[0].startsWith(iPath + ": the file was"));
    EXPECT_TRUE(output.publishMessages()[0].isTemporary());
}
