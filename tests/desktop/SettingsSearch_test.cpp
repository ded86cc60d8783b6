#include "app/desktop/Translations.h"
#include "desktop/DesktopProgram.h"
#include "ui/FlashTemplateModel.h"
#include "ui/SettingsSearch.h"

namespace {

class Searching : public DesktopProgram {
protected:
    ~Searching() override {
        program.reset();
        qDeleteAll(qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly));
    }

    QLineEdit& field() const { return *window().search->field(); }
    QTreeView& view() const { return *window().outlineView; }
    QModelIndex group(int row) const { return program->outline().index(row, 0); }
    QStringList search(const QString& text) const {
        field().setText(text);
        return shown();
    }
    // Keys of the settings that can be seen by scrolling.
    QStringList shown() const {
        QStringList keys;
        QModelIndex index = view().model()->index(0, 0);
        if (view().isRowHidden(0, {}))
            index = view().indexBelow(index);
        for (; index.isValid(); index = view().indexBelow(index)) {
            if (!view().model()->hasChildren(index))
                keys << FlashTemplateModel::item(index)->key();
        }
        return keys;
    }
};

const QStringList margins{"topMargin", "bottomMargin", "leftMargin", "rightMargin"};

} // namespace

TEST_F(Searching, OnlySettingsThatHaveAllWordsStay) {
    launch();
    const QStringList all = shown();
    EXPECT_GT(all.size(), 40);
    window().menu->findSetting->trigger();
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(search("MARGIN"), margins);
    EXPECT_EQ(search("outer passes"), QStringList{"bgEndColor"}) << "group and title";
    EXPECT_EQ(search("buttons print"), QStringList{"showPrint"});
    EXPECT_TRUE(search("bottom right").contains("mainbgImgPosition")) << "a choice";
    EXPECT_EQ(search("  "), all);

    EXPECT_EQ(search("no such thing"), QStringList());
    auto* nothing = view().findChild<QLabel*>("nothingFound");
    EXPECT_TRUE(nothing->isVisible());
    EXPECT_EQ(field().accessibleDescription(), "No setting has “no such thing”.");
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_EQ(shown(), all);
    EXPECT_FALSE(nothing->isVisible());
    EXPECT_TRUE(field().hasFocus());
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_TRUE(view().hasFocus());
}

TEST_F(Searching, GroupsAreOpenedForItAndClosedAgain) {
    launch();
    view().collapse(group(2));
    view().collapse(group(3));
    ASSERT_FALSE(search("outer").isEmpty());
    ASSERT_EQ(search("margin"), margins);
    QTest::keyClick(&field(), Qt::Key_Down);
    QTest::keyClick(&view(), Qt::Key_F2);
    auto* editor = view().findChild<QLineEdit*>();
    ASSERT_TRUE(editor) << "the keyboard goes on to the first that was found";
    EXPECT_EQ(editor->accessibleName(), "Top margin");
    field().clear();
    EXPECT_FALSE(view().isExpanded(group(3)));
    EXPECT_TRUE(view().isExpanded(group(2))) << "the setting that is edited stays in view";
}

TEST_F(Searching, AnotherTemplateIsSearchedAsWell) {
    launch();
    ASSERT_EQ(search("margin"), margins);
    auto& chooser = program->selecteTmplWindow();
    chooser.prepairToTmpl("desk");
    window().menu->selectTemplate->trigger();
    chooser.cellWasDoubleClickedAtIndex(0);
    EXPECT_TRUE(waitUntil([this] { return shown() == margins; }));
}

TEST_F(Searching, TheUsersLanguageIsSearched) {
    Translations::install({"de"});
    program = std::make_unique<BrisleafAppDelegate>();
    launch();
    EXPECT_EQ(search("rand"), search("RÄND"));
    EXPECT_EQ(search("ausserer beginnt"), QStringList{"bgBeginColor"});
}
