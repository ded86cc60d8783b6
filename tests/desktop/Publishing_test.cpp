#include "app/desktop/ResultBar.h"
#include "desktop/DesktopProgram.h"
#include "ui/SettingsSearch.h"

namespace {

class Publishing : public DesktopProgram {
protected:
    void launch() {
        DesktopProgram::launch();
        program->ouputWindow().setQuestions(
            {[](const QString&) { return std::nullopt; },
             [](const QString&, const QString&) { return false; },
             [](const QString&, const QString&) { return false; }, [](const QString&) {},
             [](const QString&, const QString& cause) { ADD_FAILURE() << cause.toStdString(); }});
    }
    OutputWindow& sheet() const { return program->ouputWindow().window(); }
    bool waitForBook() const {
        return waitUntil([this] { return !sheet().isVisible(); });
    }
    static void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    static QString copied() { return QGuiApplication::clipboard()->text(); }
};

} // namespace

TEST_F(Publishing, ShortcutOpensTheSheetAlsoFromATextField) {
    launch();
    QLineEdit* field = window().search->field();
    field->setFocus();
    ASSERT_TRUE(waitUntil([field] { return field->hasFocus(); }));
    // Fields claim this on all platforms, Ctrl+E on some.
    window().menu->exportFlipBook->setShortcut(QKeySequence::SelectAll);
    QTest::keySequence(field, QKeySequence::SelectAll);
    EXPECT_TRUE(sheet().isVisible());
    program->ouputWindow().onCancel();
    QTest::keyClick(field, Qt::Key_E);
    EXPECT_EQ(field->text(), "e") << "other keys are the field's";
}

TEST_F(Publishing, BarAfterwardsOpensCopiesAndPublishesAgain) {
    launch();
    const ResultBar& bar = *window().result;
    EXPECT_FALSE(bar.isVisible());
    program->OnExportFlipBook();
    sheet().txtOutputFolder->setText(path("out"));
    sheet().txtTitle->setText("Tea");
    sheet().mOutputType->button(OutputWindow::webBook)->click();
    sheet().txtAddress->setText("https://example.org/tea/");
    click(sheet().btnPublish);
    ASSERT_TRUE(waitForBook() && bar.isVisible());
    click(bar.btnOpen);
    click(bar.btnShowFolder);
    EXPECT_EQ(opened, QStringList({path("out/index.html"), path("out")}));
    click(bar.btnCopyLink);
    EXPECT_EQ(copied(), "https://example.org/tea/");
    click(bar.btnCopyEmbed);
    EXPECT_TRUE(copied().startsWith("<iframe src=\"https://example.org/tea/\" title=\"Tea\""));
    ASSERT_TRUE(QDir(path("out")).removeRecursively());
    click(bar.btnAgain);
    ASSERT_TRUE(waitForBook() && bar.isVisible());
    EXPECT_TRUE(QFile::exists(path("out/index.html")));

    program->OnExportFlipBook();
    EXPECT_FALSE(bar.isVisible()) << "while another book may come";
    sheet().mOutputType->button(OutputWindow::htmlBook)->click();
    click(sheet().btnPublish);
    ASSERT_TRUE(waitForBook() && bar.isVisible());
    EXPECT_FALSE(bar.btnCopyLink->isVisible() || bar.btnCopyEmbed->isVisible());
    window().menu->newProject->trigger();
    EXPECT_FALSE(bar.isVisible()) << "of the earlier book";
}
