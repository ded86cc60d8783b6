#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/PasswordWindow.h"

#include "app/AppSettings.h"
#include "builder/PDFBuilder.h"
#include "support/OfficeStandIn.h"
#include "support/TemplateLibrary.h"

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The sheet with a document of some pages, the first 300 by 400 points.
class ImportSheet : public testing::Test {
protected:
    ImportSheet() {
        auto& settings = AppSettings::shareInstance();
        settings.setImportPageRangeType(0);
        settings.setImportPageRange("");
        settings.setImportQualityLevel(0);
        settings.setImportLinks(0);
        settings.setImportBookmark(0);
        settings.setOutputType(OutputWindow::htmlBook);
    }

    QString path(int pages) {
        const QString file = iFolder.filePath(u"%1.pdf"_s.arg(pages));
        TestFiles::write(file, PDFBuilder::blank(pages, {300, 400}));
        return file;
    }

    void open() {
        sheet = std::make_unique<ImportWindowDelegate>();
        sheet->beginSheet([this](int code) { ended << code; });
    }
    ImportWindow& window() { return sheet->window(); }
    void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void choosePages(int type) { window().pageRangeType->button(type)->click(); }
    void startImport(const QString& file) {
        window().txtImportFile->setText(file);
        click(window().btnOK);
    }
    bool waitForIdle() {
        return QTest::qWaitFor([&] { return !sheet->isImporting(); }, 20000);
    }
    bool import(const QString& file) {
        startImport(file);
        return waitForIdle();
    }

    std::unique_ptr<ImportWindowDelegate> sheet;
    QList<int> ended;

private:
    QTemporaryDir iFolder;
};

} // namespace

TEST_F(ImportSheet, ImportsAllPagesAndEndsWithOne) {
    AppSettings::shareInstance().setOutputType(OutputWindow::webBook);
    open();
    EXPECT_TRUE(window().lblInfo->isHidden() && window().prgBar->isHidden());
    window().txtPageRange->setText("2");
    startImport(path(5));
    EXPECT_FALSE(window().btnOK->isEnabled() || window().txtImportFile->isEnabled());
    EXPECT_TRUE(window().btnCancel->isEnabled());
    EXPECT_TRUE(window().prgBar->isVisible() && window().prgBar->maximum() == 0);
    ASSERT_TRUE(waitForIdle());
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_FALSE(window().isVisible());
    ASSERT_TRUE(sheet->flashPageSource());
    EXPECT_EQ(sheet->flashPageSource()->pages().size(), 5U);
    EXPECT_TRUE(sheet->flashPageSource()->pagesWithout(PageFiles::web).empty())
        << "as published last";
    AppSettings& settings = AppSettings::shareInstance();
    EXPECT_EQ(QSize(settings.PageWidth(), settings.PageHeight()), QSize(300, 400));
    EXPECT_EQ(sheet->flashPagesAnnotations(), nullptr);
}

TEST_F(ImportSheet, TakesTypedPagesLinksAndBookmarksAndShowsThemNextTime) {
    open();
    EXPECT_FALSE(window().txtPageRange->isEnabled());
    choosePages(ImportWindow::typedPages);
    EXPECT_TRUE(window().txtPageRange->isEnabled());
    window().txtPageRange->setText("1,3");
    window().importQuality->setCurrentIndex(4);
    for (QCheckBox* box : {window().btnImportLinks, window().btnImportBookMark})
        box->setChecked(true);
    ASSERT_TRUE(import(path(5)));
    ASSERT_TRUE(sheet->flashPageSource());
    EXPECT_EQ(sheet->flashPageSource()->pages().size(), 2U);
    EXPECT_TRUE(sheet->flashPagesAnnotations());
    AppSettings::shareInstance().loadSettings();
    open();
    EXPECT_EQ(window().txtImportFile->text(), path(5));
    EXPECT_EQ(window().pageRangeType->checkedId(), ImportWindow::typedPages);
    EXPECT_EQ(window().txtPageRange->text(), "1,3");
    EXPECT_EQ(window().importQuality->currentIndex(), 4);
    EXPECT_TRUE(window().btnImportLinks->isChecked() && window().btnImportBookMark->isChecked());
}

TEST_F(ImportSheet, SplitsDoublePagesUnlessAskedNotTo) {
    const QString file = path(2);
    PDFBuilder pdf;
    pdf.addPage(PDFBuilder::page({300, 400}));
    pdf.addPage(PDFBuilder::page({600, 400}));
    ASSERT_TRUE(pdf.write(file));
    open();
    ASSERT_TRUE(import(file));
    EXPECT_TRUE(sheet->book().document->cut(1).part == PageCut::Part::left);
    sheet->setRightToLeft(true);
    ASSERT_TRUE(import(file));
    EXPECT_TRUE(sheet->book().document->cut(1).part == PageCut::Part::right);
    window().spreads->setCurrentIndex(int(Spreads::keep));
    ASSERT_TRUE(import(file));
    EXPECT_EQ(sheet->book().document->pageCount(), 2);
}

TEST_F(ImportSheet, HasAQualityForEachChoice) {
    QList<int> qualities;
    for (int level = -1; level < 6; ++level)
        qualities << ImportWindowDelegate::qualityForLevel(level);
    EXPECT_EQ(qualities, QList<int>({100, 100, 85, 65, 45, 25, 100}));
}

TEST_F(ImportSheet, AFailureIsShownAndTheSheetStaysForAnotherTry) {
    open();
    ASSERT_TRUE(import(path(5)));
    window().open();
    ended.clear();
    const auto expectFailure = [&](const QString& file) {
        ASSERT_TRUE(import(file));
        EXPECT_EQ(sheet->flashPageSource(), nullptr) << "nothing of the earlier import remains";
        const QLabel& message = *window().lblFailure;
        EXPECT_TRUE(message.isVisible() && !message.text().isEmpty());
        EXPECT_TRUE(window().btnOK->isEnabled());
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return message.height() >= message.heightForWidth(message.width()); }));
        EXPECT_GE(window().btnOK->height(), window().btnOK->minimumSizeHint().height());
    };
    for (const QString& file : {QString("/no such folder ").repeated(60), QString("")})
        expectFailure(file);
    choosePages(ImportWindow::typedPages);
    window().txtPageRange->setText("99");
    expectFailure(path(2));
    choosePages(ImportWindow::allPages);
    EXPECT_TRUE(ended.isEmpty());
    ASSERT_TRUE(import(path(2)));
    EXPECT_EQ(ended, QList<int>{1});
}

TEST_F(ImportSheet, AsksForThePasswordOfAProtectedDocumentUntilItIsRightOrCancelled) {
    const QString file = path(1);
    PDFBuilder pdf;
    pdf.addPage({});
    pdf.encrypt("gr\xFCn", "owner");
    ASSERT_TRUE(pdf.write(file));
    open();
    PasswordWindow& question = sheet->passwordWindow();
    const auto answer = [&](const QString& typed) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return question.isVisible(); }, 20000));
        EXPECT_EQ(question.txtPassword->text(), "");
        EXPECT_FALSE(question.btnOK->isEnabled());
        question.txtPassword->setText(typed);
        click(typed.isNull() ? question.btnCancel : question.btnOK);
        EXPECT_FALSE(question.isVisible());
    };
    startImport(file);
    answer("green");
    answer({});
    EXPECT_FALSE(question.lblFailure->isHidden()) << "the answer was wrong";
    EXPECT_FALSE(sheet->isImporting());
    EXPECT_EQ(sheet->flashPageSource(), nullptr);
    EXPECT_TRUE(ended.isEmpty() && window().lblFailure->isHidden());
    startImport(file);
    answer(u"grün"_s);
    EXPECT_TRUE(question.lblFailure->isHidden());
    ASSERT_TRUE(waitForIdle());
    EXPECT_EQ(ended, QList<int>{1});
    const auto source = sheet->flashPageSource();
    source->makeFiles(PageFiles::web, {1}, std::atomic<bool>(false), [](int) {});
    EXPECT_TRUE(source->pagesWithout(PageFiles::web).empty()) << "the pages keep the password";
    window().open();
    ASSERT_TRUE(import(file)) << "it is asked for once";
}

TEST_F(ImportSheet, AsksForThePasswordOfOneOfSeveralDocuments) {
    const QTemporaryDir folder;
    const QStringList files{path(2), folder.filePath("report.docx"), path(1)};
    PDFBuilder pdf;
    pdf.addPage({});
    pdf.encrypt("green", "owner");
    ASSERT_TRUE(pdf.write(files.last()));
    TestFiles::write(files[1], "words");
    const OfficeStandIn office;
    office.makes(path(4));
    open();
    sheet->importFiles(files);
    EXPECT_EQ(window().lblOthers->text(), "and report.docx, 1.pdf");
    PasswordWindow& question = sheet->passwordWindow();
    for (const QString& typed : {u"red"_s, u"green"_s}) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return question.isVisible(); }, 20000));
        EXPECT_TRUE(question.lblQuestion->text().contains("1.pdf"));
        EXPECT_EQ(question.lblFailure->isHidden(), typed == "red");
        question.txtPassword->setText(typed);
        click(question.btnOK);
    }
    ASSERT_TRUE(waitForIdle());
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(sheet->flashPageSource()->pages().size(), 7U);
    EXPECT_EQ(office.runs(), 1) << "not once for each password";
    EXPECT_TRUE(window().lblOthers->isHidden()) << "the next import is of one file";
}

// With programs that stand in for LibreOffice.
TEST_F(ImportSheet, ConvertsDocumentsOfOfficeProgramsAndCanBeCancelledMeanwhile) {
    const QTemporaryDir folder;
    const QString report = folder.filePath("report.docx");
    TestFiles::write(report, "words");
    const OfficeStandIn office;
    open();
    ASSERT_TRUE(import(report));
    EXPECT_TRUE(window().lblFailure->text().contains("report.docx: needs LibreOffice"));
    office.does("touch '" + report.toUtf8() + ".begun'; sleep 100");
    startImport(report);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(report + ".begun"); }, 20000));
    click(window().btnCancel);
    ASSERT_TRUE(waitForIdle());
    EXPECT_TRUE(ended.isEmpty() && window().lblFailure->isHidden());
    office.makes(path(3));
    ASSERT_TRUE(import(report));
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(sheet->flashPageSource()->pages().size(), 3U);
    EXPECT_EQ(AppSettings::shareInstance().lastImportedFile(), report);
}

TEST_F(ImportSheet, CancellingAnImportKeepsTheSheetAndCancellingAgainClosesIt) {
    open();
    startImport(path(400));
    click(window().btnCancel);
    ASSERT_TRUE(waitForIdle());
    EXPECT_TRUE(ended.isEmpty());
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(window().lblFailure->isHidden()) << "a cancelled import is no failure";
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(ended, QList<int>{0});
    EXPECT_FALSE(window().isVisible());
}

TEST_F(ImportSheet, OnlyTheLastOfTwoImportsCounts) {
    open();
    startImport(path(400));
    click(window().btnCancel);
    startImport(path(3));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !ended.isEmpty(); }, 20000));
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(sheet->flashPageSource()->pages().size(), 3U);
}

TEST_F(ImportSheet, MayBeDestroyedWhileItImports) {
    open();
    startImport(path(400));
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return window().lblInfo->text().startsWith("Importing:"); }, 20000));
    EXPECT_TRUE(window().lblTimeLeft->text().contains(" %"));
    sheet.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(ended.isEmpty());
}

TEST_F(ImportSheet, AsksForAFileAndOpensIt) {
    open();
    std::optional<QString> answer = "/a/b.pdf";
    QString opened;
    sheet->setFilePanel([&](const QString&, const QStringList&) { return answer; });
    sheet->setFileOpener([&](const QString& file) { opened = file; });
    click(window().btnBrowseFile);
    answer = std::nullopt;
    click(window().btnBrowseFile);
    EXPECT_EQ(window().txtImportFile->text(), "/a/b.pdf");
    click(window().btnOpenFile);
    EXPECT_EQ(opened, "/a/b.pdf");
}
