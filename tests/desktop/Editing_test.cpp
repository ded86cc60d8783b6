#include "desktop/DesktopProgram.h"
#include "system/Bundle.h"

namespace {

class Editing : public DesktopProgram {
protected:
    void SetUp() override { launch(); }

    void apply() const { window().menu->toolBarItemApplyChange->trigger(); }
    int blinkPhase() const { return window().menu->toolBarItemApplyChange->data().toInt(); }
    QString published(const QString& path) const { return configuration().textAt(path); }
    // Marks the page, so that the next one can be told from it.
    void markPreview() const { evaluate("window.isOld = true"); }
    bool waitForNewPreview(const QString& condition) const {
        return waitForPreview("!window.isOld && " + condition);
    }
};

} // namespace

TEST_F(Editing, ValuesOfEveryTypeReachTheBookWhenApplied) {
    fileToOpen = path("ground.png");
    ASSERT_TRUE(
        QFile::copy(Bundle::resourcePath() + "/AppFiles/Templates/float/icon.png", *fileToOpen));
    color = QColor(0x12, 0x34, 0x56);
    edit("TutorialTitle", "Tea & cake");
    edit("topMargin", "40");
    edit("mainbgImgPosition", "Center");
    for (const char* key : {"RightToLeft", "bgBeginColor", "mainbgImgUrl"})
        press(key);
    EXPECT_EQ(published("Properties/TutorialTitle"), "") << "nothing was applied yet";

    markPreview();
    apply();
    EXPECT_EQ(published("Properties/TutorialTitle"), "Tea & cake");
    EXPECT_EQ(published("Properties/Top"), "40");
    EXPECT_EQ(published("Properties/RightToLeft"), "YES");
    const QString background = "BackgroundConfig/";
    EXPECT_EQ(published(background + "BackgroundColor/OuterGradiantColorA"), "0x123456");
    const QString image = background + "BackgroundImage/";
    EXPECT_EQ(published(image + "OuterBackgroundPosition"), "Center");
    EXPECT_TRUE(published(image + "OuterBackgroundFile").endsWith(".png"));
    EXPECT_TRUE(waitForNewPreview("document.body.textContent.includes('Tea & cake')"));
    EXPECT_TRUE(waitForPreview("getComputedStyle(document.querySelector('.outer'))"
                               ".backgroundImage.includes('rgb(18, 52, 86)')"));
}

TEST_F(Editing, ManyEditsBlinkUntilTheyAreApplied) {
    EXPECT_FALSE(program->isChangePending());
    edit("logoFile", path("gone.png"));
    apply();
    EXPECT_TRUE(window().messages->message().contains("gone.png"));
    edit("topMargin", "12");
    EXPECT_FALSE(program->isChangePending()) << "the value is what it was";
    edit("topMargin", "13");
    edit("leftMargin", "14");
    EXPECT_TRUE(program->isChangePending());
    const auto blinks = [this] {
        return QTest::qWaitFor([this, old = blinkPhase()] { return blinkPhase() == (old + 1) % 3; },
                               500);
    };
    EXPECT_TRUE(blinks());
    apply();
    EXPECT_FALSE(program->isChangePending());
    EXPECT_FALSE(blinks());
}

TEST_F(Editing, EditsAreUndoneAndMadeAgain) {
    edit("topMargin", "40");
    press("RightToLeft");
    const QString whole = value("RightToLeft");
    EXPECT_EQ(window().menu->undo->text(), "&Undo “Right to left”");
    window().menu->undo->trigger();
    EXPECT_NE(value("RightToLeft"), whole);
    EXPECT_EQ(value("topMargin"), "40");
    window().menu->undo->trigger();
    EXPECT_EQ(valueOf("topMargin").data().toString(), "12");
    EXPECT_FALSE(window().menu->undo->isEnabled());
    EXPECT_EQ(window().menu->redo->text(), "&Redo “Top margin”");
    EXPECT_EQ(window().toolTipBox->title(), "Top margin");
    EXPECT_TRUE(window().toolTip->toPlainText().contains("pixels")) << "what it does";
    window().menu->redo->trigger();
    EXPECT_EQ(value("topMargin"), "40");
    apply();
    EXPECT_EQ(published("Properties/Top"), "40");
}

TEST_F(Editing, SettingsGoToAFileAndComeBack) {
    const auto save = [this](const QString& name) {
        fileToSave = path(name);
        window().menu->exportSettings->trigger();
    };
    const auto load = [this](const std::optional<QString>& file) {
        fileToOpen = file;
        window().menu->importSettings->trigger();
        return published("Properties/Top");
    };
    edit("topMargin", "77");
    save("mine");
    window().menu->undo->trigger();
    EXPECT_EQ(load(path("mine.txt")), "77");
    EXPECT_FALSE(program->isChangePending());
    window().menu->undo->trigger();
    EXPECT_EQ(value("topMargin"), "12");
    EXPECT_EQ(load(std::nullopt), "12") << "a cancelled panel refreshes the preview as well";
    load(path("missing.txt"));
    EXPECT_TRUE(window().messages->message().contains("missing.txt cannot be read"));
    TestFiles::write(path("letter.txt"), "a=b\nDear Ann,");
    EXPECT_EQ(load(path("letter.txt")), "12");
    EXPECT_TRUE(window().messages->message().contains("letter.txt contains no settings"));
    save("no/such/folder/mine.txt");
    EXPECT_TRUE(window().messages->message().contains("no/such/folder/mine.txt"));

    TestFiles::write(path("mine.txt"), "of another book");
    save("mine");
    EXPECT_EQ(TestFiles::read(path("mine.txt")), "of another book");
    EXPECT_EQ(losses.filter("mine.txt").size(), 1);
    replaces = true;
    save("mine");
    EXPECT_NE(TestFiles::read(path("mine.txt")), "of another book");
}

TEST_F(Editing, AnotherStyleKeepsEditsAndIsUndone) {
    const QString width = value("pageWidth"), ground = value("bgEndColor");
    edit("topMargin", "40");
    QTest::mouseClick(window().btnFloat, Qt::LeftButton);
    auto& chooser = program->selecteTmplWindow();
    EXPECT_TRUE(chooser.window().isVisible());
    chooser.prepairToTmpl("desk");
    ASSERT_GT(chooser.numberOfItemsInImageBrowser(), 2);
    markPreview();
    const QString style = chooser.itemAtIndex(2).styleName();
    chooser.cellWasDoubleClickedAtIndex(2);
    EXPECT_EQ(program->flashTmpl()->tmplName(), "desk");
    EXPECT_EQ(program->flashTmpl()->styleName(), style);
    EXPECT_EQ(window().btnFloat->text(), "Desk");
    EXPECT_EQ(value("pageWidth"), width);
    EXPECT_EQ(published("Properties/Top"), "40");
    const QString ofStyle = value("bgEndColor");
    EXPECT_NE(ofStyle, ground);
    EXPECT_FALSE(program->isChangePending());
    EXPECT_TRUE(waitForNewPreview("true"));
    window().menu->selectTemplate->trigger();
    EXPECT_TRUE(chooser.selectedStyle().endsWith("/desk/" + style + "/shot.jpg"));
    chooser.onCancel();

    window().menu->undo->trigger();
    EXPECT_EQ(window().btnFloat->text(), "Float");
    EXPECT_EQ(value("bgEndColor"), ground);
    EXPECT_EQ(published("Properties/Top"), "40");
    window().menu->undo->trigger();
    EXPECT_EQ(valueOf("topMargin").data().toString(), "12") << "edits before it are undone as well";
    for (int i = 0; i < 2; ++i)
        window().menu->redo->trigger();
    EXPECT_EQ(program->flashTmpl()->styleName(), style);
    EXPECT_EQ(value("bgEndColor"), ofStyle);
    EXPECT_EQ(value("topMargin"), "40");
}
