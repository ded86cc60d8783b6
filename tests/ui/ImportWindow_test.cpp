#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"

#include "app/AppSettings.h"
#include "builder/PDFBuilder.h"
#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

// The sheet with a document of some pages, the first 300 by 400 points.
class ImportSheet : public testing::Test {
protected:
    ImportSheet() {
        auto& settings = AppSettings::shareInstance();
        settings.setImportPageRangeType(0);
        settings.setImportPageRange(text(""));
        settings.setImportQualityLevel(0);
        settings.setImportLinks(0);
        settings.setImportBookmark(0);
        settings.setLastImportedFile(path(5));
    }

    QString path(int pages) {
        const QString file = iFolder.filePath(text("%1.pdf").arg(pages));
        TestFiles::write(file, PDFBuilder::blank(pages, {300, 400}));
        return file;
    }

    ImportWindowDelegate& open() {
        sheet = std::make_unique<ImportWindowDelegate>();
        sheet->beginSheet([this](int code) { ended << code; });
        return *sheet;
    }
    ImportWindow& window() { return sheet->window(); }
    void click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    bool waitForIdle() {
        return QTest::qWaitFor([&] { return !sheet->isImporting(); }, 20000);
    }

    std::unique_ptr<ImportWindowDelegate> sheet;
    QList<int> ended;

private:
    QTemporaryDir iFolder;
};

} // namespace

TEST_F(ImportSheet, ShowsTheChoicesOfLastTime) {
    auto& settings = AppSettings::shareInstance();
    settings.setImportPageRangeType(1);
    settings.setImportPageRange(text("2-4"));
    settings.setImportQualityLevel(3);
    settings.setImportLinks(1);
    open();
    EXPECT_EQ(window().txtImportFile->text(), settings.lastImportedFile());
    EXPECT_EQ(window().pageRangeType->checkedId(), 1);
    EXPECT_EQ(window().txtPageRange->text(), text("2-4"));
    EXPECT_TRUE(window().txtPageRange->isEnabled());
    EXPECT_EQ(window().importQuality->currentIndex(), 3);
    EXPECT_EQ(window().importQuality->count(), 5);
    EXPECT_TRUE(window().btnImportLinks->isChecked());
    EXPECT_FALSE(window().btnImportBookMark->isChecked());
    EXPECT_TRUE(window().lblInfo->isHidden() && window().prgBar->isHidden());
    window().pageRangeType->button(ImportWindow::allPages)->click();
    EXPECT_FALSE(window().txtPageRange->isEnabled());
}

TEST_F(ImportSheet, ImportsAllPagesAndEndsWithOne) {
    open();
    window().txtPageRange->setText(text("2"));
    click(window().btnOK);
    EXPECT_TRUE(sheet->isImporting());
    EXPECT_FALSE(window().btnOK->isEnabled() || window().txtImportFile->isEnabled());
    EXPECT_TRUE(window().btnCancel->isEnabled());
    EXPECT_TRUE(window().prgBar->isVisible());
    ASSERT_TRUE(waitForIdle());
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_FALSE(window().isVisible());
    ASSERT_TRUE(sheet->flashPageSource());
    EXPECT_EQ(sheet->flashPageSource()->pages().size(), 5U);
    EXPECT_EQ(sheet->pageWidth(), 300);
    EXPECT_EQ(sheet->pageHeight(), 400);
    EXPECT_EQ(AppSettings::shareInstance().PageWidth(), 300);
    EXPECT_EQ(sheet->flashPagesAnnotations(), nullptr);
}

TEST_F(ImportSheet, TakesTypedPagesLinksAndBookmarksAndRemembersThem) {
    const RecordedLog log;
    open();
    window().pageRangeType->button(ImportWindow::typedPages)->click();
    window().txtPageRange->setText(text("1,3"));
    window().importQuality->setCurrentIndex(4);
    window().btnImportLinks->setChecked(true);
    window().btnImportBookMark->setChecked(true);
    click(window().btnOK);
    ASSERT_TRUE(waitForIdle());
    ASSERT_TRUE(sheet->flashPageSource());
    EXPECT_EQ(sheet->flashPageSource()->pages().size(), 2U);
    EXPECT_TRUE(sheet->flashPagesAnnotations());
    EXPECT_TRUE(log.texts().contains(text("page range is:1,3")));
    AppSettings stored;
    EXPECT_EQ(stored.importPageRangeType(), 1);
    EXPECT_EQ(stored.importPageRange(), text("1,3"));
    EXPECT_EQ(stored.importQualityLevel(), 4);
    EXPECT_EQ(stored.importLinks(), 1);
    EXPECT_EQ(stored.importBookmark(), 1);
}

TEST_F(ImportSheet, HasAQualityForEachChoice) {
    const int qualities[] = {100, 85, 65, 45, 25, 100};
    for (int level = 0; level < 6; ++level)
        EXPECT_EQ(ImportWindowDelegate::qualityForLevel(level), qualities[level]);
    EXPECT_EQ(ImportWindowDelegate::qualityForLevel(-1), 100);
}

TEST_F(ImportSheet, AFailureIsToldAndTheSheetStaysForAnotherTry) {
    const QString good = path(2);
    const RecordedLog log(Log::Level::warn);
    open();
    click(window().btnOK);
    ASSERT_TRUE(waitForIdle());
    window().open();
    ended.clear();
    for (const QString& bad : {text("/no/such/file.pdf"), text("")}) {
        window().txtImportFile->setText(bad);
        click(window().btnOK);
        ASSERT_TRUE(waitForIdle());
        EXPECT_TRUE(window().isVisible());
        EXPECT_EQ(sheet->flashPageSource(), nullptr) << "nothing of the earlier import remains";
        EXPECT_EQ(sheet->pageWidth(), 0);
        EXPECT_TRUE(window().lblFailure->isVisible());
        EXPECT_FALSE(window().lblFailure->text().isEmpty());
        EXPECT_TRUE(window().btnOK->isEnabled());
    }
    window().txtImportFile->setText(good);
    window().pageRangeType->button(ImportWindow::typedPages)->click();
    window().txtPageRange->setText(text("99"));
    click(window().btnOK);
    ASSERT_TRUE(waitForIdle());
    EXPECT_TRUE(window().lblFailure->isVisible() && !window().lblFailure->text().isEmpty());
    window().pageRangeType->button(ImportWindow::allPages)->click();
    EXPECT_TRUE(log.texts().contains(text("import pdf failed...")));
    EXPECT_TRUE(ended.isEmpty());
    click(window().btnOK);
    ASSERT_TRUE(waitForIdle());
    EXPECT_EQ(ended, QList<int>{1});
}

TEST_F(ImportSheet, CancellingAnImportKeepsTheSheetAndCancellingAgainClosesIt) {
    AppSettings::shareInstance().setLastImportedFile(path(400));
    open();
    click(window().btnOK);
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
    const QString small = path(3);
    AppSettings::shareInstance().setLastImportedFile(path(400));
    open();
    click(window().btnOK);
    click(window().btnCancel);
    window().txtImportFile->setText(small);
    click(window().btnOK);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !ended.isEmpty(); }, 20000));
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(sheet->flashPageSource()->pages().size(), 3U);
}

TEST_F(ImportSheet, ShowsProgressOnlyWhileItImports) {
    open();
    const auto post = [](int page) {
        NotificationCenter::defaultCenter().post(
            QString::fromUtf16(ImportProgressInfoMSG), nullptr,
            {{text("pageIndex"), page}, {text("totalPage"), 9}});
        QTest::qWait(10);
    };
    post(1);
    EXPECT_EQ(window().lblInfo->text(), text(""));
    sheet->enableButtons(false);
    post(2);
    EXPECT_EQ(window().lblInfo->text(), text("Importing:2/9"));
    sheet->enableButtons(true);
    post(3);
    EXPECT_EQ(window().lblInfo->text(), text("Importing:2/9"));
}

TEST_F(ImportSheet, MayBeDestroyedWhileItImports) {
    AppSettings::shareInstance().setLastImportedFile(path(400));
    open();
    click(window().btnOK);
    QTest::qWait(30);
    sheet.reset();
    QTest::qWait(30);
    EXPECT_TRUE(ended.isEmpty());
}

TEST_F(ImportSheet, AsksForAFileAndOpensIt) {
    open();
    std::optional<QString> answer = text("/a/b.pdf");
    QStringList types;
    QString opened;
    sheet->setFilePanel([&](const QString&, const QStringList& allowed) {
        types = allowed;
        return answer;
    });
    sheet->setFileOpener([&](const QString& file) { opened = file; });
    click(window().btnBrowseFile);
    EXPECT_EQ(types, QStringList{text("pdf")});
    EXPECT_EQ(window().txtImportFile->text(), text("/a/b.pdf"));
    answer = std::nullopt;
    click(window().btnBrowseFile);
    EXPECT_EQ(window().txtImportFile->text(), text("/a/b.pdf"));
    click(window().btnOpenFile);
    EXPECT_EQ(opened, text("/a/b.pdf"));
}

TEST_F(ImportSheet, LongMessageTakesNoRoomFromTheControls) {
    open();
    window().txtImportFile->setText(text("/no such folder ").repeated(60));
    click(window().btnOK);
    ASSERT_TRUE(waitForIdle());
    QTest::qWait(20);
    const QLabel& message = *window().lblFailure;
    EXPECT_GE(message.height(), message.heightForWidth(message.width()));
    for (const QWidget* control : std::initializer_list<QWidget*>{
             window().txtImportFile, window().importQuality, window().btnOK})
        EXPECT_GE(control->height(), control->minimumSizeHint().height());
}
