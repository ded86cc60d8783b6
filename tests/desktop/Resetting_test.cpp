#include "desktop/DesktopProgram.h"
#include "ui/FlashTemplateModel.h"
#include "ui/ResetMark.h"

namespace {

// Settings that differ from those of the template, and the way back.
class Resetting : public DesktopProgram {
protected:
    void SetUp() override { launch(); }

    QString spoken(const QString& key) const {
        return valueOf(key).data(Qt::AccessibleTextRole).toString();
    }
    bool isAnyChanged() const { return window().menu->resetSettings->isEnabled(); }
    void clickMark(const QString& key) const {
        auto& view = *window().outlineView;
        const QRect title = view.visualRect(valueOf(key).siblingAtColumn(0));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, ResetMark::rectIn(title).center());
    }
};

} // namespace

TEST_F(Resetting, SignBesideAChangedSettingSetsItBack) {
    EXPECT_FALSE(isAnyChanged());
    edit("topMargin", "40");
    EXPECT_EQ(spoken("topMargin"), "Top margin: 40, changed");
    EXPECT_EQ(spoken("leftMargin"), "Left margin: 12");
    clickMark("leftMargin");
    clickMark("topMargin");
    EXPECT_EQ(value("topMargin"), "12");
    EXPECT_FALSE(isAnyChanged());
    window().menu->undo->trigger();
    EXPECT_EQ(value("topMargin"), "40");
    EXPECT_TRUE(isAnyChanged());
    window().menu->undo->trigger();
    EXPECT_FALSE(window().menu->undo->isEnabled()) << "a click where there is no sign is no step";
}

TEST_F(Resetting, KeyAndMenuResetOneGroupOrAllInOneStep) {
    const QString usual = value("mainColor");
    for (const char* key : {"topMargin", "leftMargin", "SlideInterval"})
        edit(key, "33");
    edit("mainColor", "0x010203");
    QTest::keyClick(window().outlineView, Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(value("mainColor"), usual);
    window().outlineView->setCurrentIndex(valueOf("topMargin").parent());
    window().menu->resetSetting->trigger();
    EXPECT_EQ(window().menu->undo->text(), "&Undo reset of “Window”");
    EXPECT_EQ(value("topMargin") + value("leftMargin") + value("SlideInterval"), "121233");
    window().menu->undo->trigger();
    EXPECT_EQ(value("topMargin") + value("leftMargin"), "3333");
    window().menu->resetSettings->trigger();
    EXPECT_EQ(value("topMargin") + value("leftMargin") + value("SlideInterval"), "12124");
    window().menu->undo->trigger();
    EXPECT_EQ(value("SlideInterval"), "33");
    EXPECT_TRUE(program->isChangePending());
}

TEST_F(Resetting, WhatStyleAndDocumentSayIsTheDefault) {
    press("RightToLeft");
    EXPECT_TRUE(isAnyChanged());
    press("RightToLeft");
    EXPECT_FALSE(isAnyChanged()) << "the same in another spelling";
    auto& chooser = program->selecteTmplWindow();
    chooser.prepairToTmpl("float");
    window().menu->selectTemplate->trigger();
    chooser.cellWasDoubleClickedAtIndex(chooser.numberOfItemsInImageBrowser() - 1);
    EXPECT_FALSE(isAnyChanged()) << program->flashTmpl()->styleName().toStdString();
    const QString usual = value("bgBeginColor");
    edit("bgBeginColor", "0x010203");
    program->importFile(pdf(2));
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(value("pageWidth"), "300");
    edit("pageWidth", "310");
    window().menu->resetSettings->trigger();
    EXPECT_EQ(value("pageWidth"), "300");
    EXPECT_EQ(value("bgBeginColor"), usual);
}
