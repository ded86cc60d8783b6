#include "desktop/DesktopProgram.h"

namespace {

// What the book in the preview looks like while changes wait to be applied.
class LivePreview : public DesktopProgram {
protected:
    void SetUp() override {
        launch();
        // Books have no margins in small windows.
        window().resize(1400, 1000);
        evaluate("window.isOld = true");
    }

    // Whether the loaded page comes to it without being loaded again.
    bool openPageShows(const QString& condition) const {
        return waitForPreview("window.isOld && " + condition);
    }
    static QString backgroundHas(const char* color) {
        return QString("getComputedStyle(document.querySelector('.outer')).background"
                       ".includes('%1')")
            .arg(color);
    }
    QString marginIs(int pixels) const {
        return QString("document.querySelector('#folvero').style.getPropertyValue('--margin-top')"
                       " === '%1px'")
            .arg(pixels);
    }
};

} // namespace

TEST_F(LivePreview, ChangesAreSeenAtOnceAndNothingIsWritten) {
    const QByteArray before =
        TestFiles::read(program->flashPreviewFolder() + "/files/UserConfig.bin");
    color = QColor(0x12, 0x34, 0x56);
    press("bgBeginColor");
    edit("topMargin", "44");
    edit("TutorialTitle", "Tea & \"cake\"");
    press("showPrint");
    press("RightToLeft");
    EXPECT_TRUE(openPageShows(backgroundHas("rgb(18, 52, 86)")));
    EXPECT_TRUE(openPageShows(marginIs(44)));
    EXPECT_TRUE(openPageShows("document.body.textContent.includes('Tea & \"cake\"')"));
    EXPECT_TRUE(openPageShows("document.querySelector('[data-does=print]').hidden"));
    EXPECT_TRUE(program->isChangePending());
    EXPECT_EQ(TestFiles::read(program->flashPreviewFolder() + "/files/UserConfig.bin"), before);

    for (int edits = 0; edits < 4; ++edits)
        window().menu->undo->trigger();
    EXPECT_TRUE(openPageShows(marginIs(12)));
    EXPECT_TRUE(openPageShows("!document.querySelector('[data-does=print]').hidden"));
}

TEST_F(LivePreview, ValuesThatAreDraggedOrTypedAreSeenBeforeTheyAreChosen) {
    usesColorPanel = true;
    const QString before = value("bgBeginColor");
    for (const bool isChosen : {false, true}) {
        QTimer::singleShot(0, &window(), [&] {
            auto* panel = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(panel);
            panel->setCurrentColor(QColor(1, 2, 3));
            EXPECT_TRUE(openPageShows(backgroundHas("rgb(1, 2, 3)")));
            panel->setCurrentColor(QColor(0x65, 0x43, 0x21));
            EXPECT_TRUE(openPageShows(backgroundHas("rgb(101, 67, 33)")));
            EXPECT_EQ(value("bgBeginColor"), before);
            EXPECT_FALSE(program->isChangePending());
            isChosen ? panel->accept() : panel->reject();
        });
        press("bgBeginColor");
        EXPECT_TRUE(openPageShows((isChosen ? "" : "!") + backgroundHas("rgb(101, 67, 33)")));
        EXPECT_EQ(program->isChangePending(), isChosen);
    }
    EXPECT_EQ(value("bgBeginColor"), "0x654321");

    auto* view = window().outlineView;
    view->edit(valueOf("topMargin"));
    auto* field = view->findChild<QLineEdit*>();
    ASSERT_TRUE(field);
    field->selectAll();
    QTest::keyClicks(field, "44");
    EXPECT_TRUE(openPageShows(marginIs(44)));
    EXPECT_EQ(value("topMargin"), "12");
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(openPageShows(marginIs(12)));
}

TEST_F(LivePreview, ChangesThatWaitAreShownAgainWhenThePageIsReloaded) {
    edit("topMargin", "44");
    ASSERT_TRUE(openPageShows(marginIs(44)));
    window().menu->reloadPreview->trigger();
    EXPECT_TRUE(waitForPreview("!window.isOld && " + marginIs(44)));
    EXPECT_EQ(configuration().textAt("Properties/Top"), "12");
}

TEST_F(LivePreview, FramesInThePageCannotChangeIt) {
    EXPECT_TRUE(evaluate("window.folveroPreview !== undefined").toBool());
    evaluate("document.body.append(Object.assign(document.createElement('iframe'),"
             " {srcdoc: '<p>', onload() { window.inFrame = typeof"
             " this.contentWindow.folveroPreview; }}))");
    EXPECT_TRUE(openPageShows("window.inFrame === 'undefined'"));
}
