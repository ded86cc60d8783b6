#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "desktop/DesktopProgram.h"
#include "platform/Bundle.h"
#include "support/TemplateLibrary.h"
#include "ui/SelectTemplateWindow.h"
#include "ui/SelectTemplateWindowDelegate.h"

#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

class Editing : public DesktopProgram {
protected:
    void SetUp() override { launch(); }

    void apply() const { window().menu->toolBarItemApplyChange->trigger(); }
    int blinkPhase() const { return window().menu->toolBarItemApplyChange->data().toInt(); }
    QString published(const char* path) const { return configuration().textAt(text(path)); }
    // Marks the page, so that the next one can be told from it.
    void markPreview() const { evaluate(text("window.isOld = true")); }
    bool waitForNewPreview(const QString& condition) const {
        return waitForPreview(text("!window.isOld && (%1)").arg(condition));
    }
};

} // namespace

TEST_F(Editing, ValuesOfEveryTypeReachTheBookWhenApplied) {
    fileToOpen = path(text("ground.png"));
    ASSERT_TRUE(QFile::copy(Bundle::resourcePath() + text("/AppFiles/Templates/float/icon.png"),
                            *fileToOpen));
    color = QColor(0x12, 0x34, 0x56);
    edit(text("TutorialTitle"), text("Tea & cake"));
    edit(text("topMargin"), text("40"));
    edit(text("mainbgImgPosition"), text("Center"));
    press(text("RightToLeft"));
    press(text("bgBeginColor"));
    press(text("mainbgImgUrl"));
    EXPECT_EQ(published("Properties/TutorialTitle"), text("")) << "nothing was applied yet";

    markPreview();
    apply();
    EXPECT_EQ(published("Properties/TutorialTitle"), text("Tea & cake"));
    EXPECT_EQ(published("Properties/Top"), text("40"));
    EXPECT_EQ(published("Properties/RightToLeft"), text("YES"));
    const QString background = text("BackgroundConfig/");
    EXPECT_EQ(configuration().textAt(background + text("BackgroundColor/OuterGradiantColorA")),
              text("0x123456"));
    const BookElement image = configuration().at(background + text("BackgroundImage"));
    EXPECT_EQ(image.textAt(text("OuterBackgroundPosition")), text("Center"));
    EXPECT_TRUE(image.textAt(text("OuterBackgroundFile")).endsWith(text(".png")));
    EXPECT_TRUE(waitForNewPreview(text("document.body.textContent.includes('Tea & cake')")));
    const QString outer = evaluate(text("getComputedStyle(document.querySelector('.outer'))"
                                        ".backgroundImage"))
                              .toString();
    EXPECT_TRUE(outer.contains(text("rgb(18, 52, 86)"))) << outer.toStdString();
}

TEST_F(Editing, ManyEditsBlinkUntilTheyAreApplied) {
    EXPECT_FALSE(program->isChangePending());
    edit(text("topMargin"), text("12"));
    EXPECT_FALSE(program->isChangePending()) << "the value is what it was";
    edit(text("topMargin"), text("13"));
    edit(text("leftMargin"), text("14"));
    EXPECT_TRUE(program->isChangePending());
    const int before = blinkPhase();
    EXPECT_TRUE(QTest::qWaitFor([&] { return blinkPhase() == (before + 1) % 3; }));
    apply();
    EXPECT_FALSE(program->isChangePending());
    const int after = blinkPhase();
    QTest::qWait(500);
    EXPECT_EQ(blinkPhase(), after);
}

TEST_F(Editing, ExplainsTheSelectedSetting) {
    valueOf(text("topMargin"));
    EXPECT_EQ(window().toolTipBox->title(), text("Top margin"));
    EXPECT_FALSE(window().toolTip->toPlainText().isEmpty());
}

TEST_F(Editing, EditsAreUndoneAndMadeAgain) {
    edit(text("topMargin"), text("40"));
    press(text("RightToLeft"));
    const QString whole = value(text("RightToLeft"));
    window().menu->undo->trigger();
    EXPECT_NE(value(text("RightToLeft")), whole);
    EXPECT_EQ(value(text("topMargin")), text("40"));
    window().menu->undo->trigger();
    EXPECT_EQ(value(text("topMargin")), text("12"));
    EXPECT_EQ(valueOf(text("topMargin")).data().toString(), text("12"));
    EXPECT_FALSE(window().menu->undo->isEnabled());
    window().menu->redo->trigger();
    EXPECT_EQ(value(text("topMargin")), text("40"));
    apply();
    EXPECT_EQ(published("Properties/Top"), text("40"));
}

TEST_F(Editing, SettingsGoToAFileAndComeBack) {
    edit(text("topMargin"), text("77"));
    fileToSave = path(text("mine"));
    window().menu->exportSettings->trigger();
    ASSERT_TRUE(QFileInfo::exists(path(text("mine.txt"))));
    window().menu->undo->trigger();
    fileToOpen = path(text("mine.txt"));
    window().menu->importSettings->trigger();
    EXPECT_EQ(published("Properties/Top"), text("77"));
    EXPECT_FALSE(program->isChangePending());
    window().menu->undo->trigger();
    EXPECT_EQ(value(text("topMargin")), text("12"));
    // A cancelled panel refreshes the preview as well.
    fileToOpen = std::nullopt;
    window().menu->importSettings->trigger();
    EXPECT_EQ(published("Properties/Top"), text("12"));
    fileToSave = path(text("no/such/folder/mine.txt"));
    window().menu->exportSettings->trigger();
    EXPECT_TRUE(window().messages->message().contains(text("no/such/folder/mine.txt")));
}

TEST_F(Editing, FileOfSettingsIsNotReplacedUnasked) {
    const auto save = [this](bool isReplaced) {
        replaces = isReplaced;
        fileToSave = path(text("mine"));
        window().menu->exportSettings->trigger();
        return TestFiles::read(path(text("mine.txt")));
    };
    TestFiles::write(path(text("mine.txt")), "of another book");
    EXPECT_EQ(save(false), "of another book");
    EXPECT_EQ(losses.size(), 1);
    EXPECT_TRUE(losses.value(0).contains(text("mine.txt")));
    EXPECT_NE(save(true), "of another book");
}

TEST_F(Editing, AnotherStyleKeepsThePageSizeAndClearsTheHistory) {
    const QString width = value(text("pageWidth"));
    edit(text("topMargin"), text("40"));
    QTest::mouseClick(window().btnFloat, Qt::LeftButton);
    auto& chooser = program->selecteTmplWindow();
    EXPECT_TRUE(chooser.window().isVisible());
    chooser.prepairToTmpl(text("desk"));
    ASSERT_GT(chooser.numberOfItemsInImageBrowser(), 2);
    markPreview();
    const QString style = chooser.itemAtIndex(2).styleName();
    chooser.cellWasDoubleClickedAtIndex(2);
    EXPECT_EQ(program->flashTmpl()->tmplName(), text("desk"));
    EXPECT_EQ(program->flashTmpl()->styleName(), style);
    EXPECT_EQ(window().btnFloat->text(), text("Desk"));
    EXPECT_EQ(value(text("pageWidth")), width);
    EXPECT_FALSE(window().menu->undo->isEnabled());
    EXPECT_FALSE(program->isChangePending());
    EXPECT_TRUE(waitForNewPreview(text("true")));
}
