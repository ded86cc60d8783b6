#include "ui/SelectTemplateWindow.h"
#include "ui/SelectTemplateWindowDelegate.h"

#include "support/TemplateLibrary.h"

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

QImage picture(const QColor& color) {
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

// The sheet over a library with the templates "desk", which has the styles "Night" and "Plain", the
// latter without a picture, and "float", which has "Blank" and "Sky".
class TemplateChooser : public testing::Test {
protected:
    TemplateChooser() {
        library.addTemplate("desk");
        library.addTemplate("float");
        addStyle("desk", "Night", Qt::darkBlue);
        library.addStyle("desk", "Plain", "");
        addStyle("float", "Blank", Qt::white);
        addStyle("float", "Sky", Qt::cyan);
    }

    void addStyle(const QString& tmpl, const QString& style, const QColor& color) {
        library.addStyle(tmpl, style, "");
        EXPECT_TRUE(picture(color).save(shot(tmpl, style)));
    }
    QString shot(const QString& tmpl, const QString& style) const {
        return library.stylePath(tmpl, style) + "/shot.jpg";
    }

    // With the style of the book selected, if there is one.
    void open(const QString& tmpl, const QString& style = {}) {
        ended.clear();
        sheet = std::make_unique<SelectTemplateWindowDelegate>();
        sheet->prepairToTmpl(tmpl,
                             style.isNull() ? style : library.stylePath(tmpl.toLower(), style));
        sheet->beginSheet([this](int code) { ended << code; });
    }
    SelectTemplateWindow& window() { return sheet->window(); }
    QListView& list() { return *window().iTableViewTmpls; }
    QListView& styles() { return *window().iImgBrowserView; }
    QString notice() { return window().findChild<QLabel*>("notice")->text(); }
    bool hasNotice() { return window().findChild<QWidget*>("noticeRow")->isVisible(); }

    // What the user sees in a list, and what is selected in it.
    static QStringList shown(const QListView& view) {
        QStringList names;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            if (!view.isRowHidden(row))
                names << view.model()->index(row, 0).data().toString();
        }
        return names;
    }
    static QString selected(const QListView& view) {
        const QModelIndexList rows = view.selectionModel()->selectedIndexes();
        return rows.size() == 1 ? rows.first().data().toString() : QString();
    }
    static void click(QListView& view, const QString& name) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, centre(view, name));
    }
    static void doubleClick(QListView& view, const QString& name) {
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, centre(view, name));
    }
    static QPoint centre(const QListView& view, const QString& name) {
        const auto found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, name, 1,
                                               Qt::MatchExactly);
        return found.isEmpty() ? QPoint(-1, -1) : view.visualRect(found.first()).center();
    }

    TemplateLibrary library;
    std::unique_ptr<SelectTemplateWindowDelegate> sheet;
    QList<int> ended;
};

} // namespace

TEST_F(TemplateChooser, ListsTemplatesAndSelectsTheOneOfTheBookWithItsStyle) {
    open("FLOAT", "Sky");
    EXPECT_EQ(shown(list()), QStringList({"Desk", "Float"}));
    EXPECT_EQ(selected(list()), "Float");
    EXPECT_EQ(shown(styles()), QStringList({"Blank", "Sky"}));
    EXPECT_EQ(selected(styles()), "Sky");
    EXPECT_TRUE(window().btnOK->isEnabled());
    EXPECT_FALSE(hasNotice());
}

TEST_F(TemplateChooser, WaitsForAStyleBeforeItEndsWithTheOneThatWasClicked) {
    open("float");
    EXPECT_FALSE(window().btnOK->isEnabled());
    EXPECT_TRUE(sheet->selectedStyle().isNull());
    sheet->onOK();
    EXPECT_TRUE(ended.isEmpty());
    click(list(), "Desk");
    EXPECT_EQ(shown(styles()), QStringList({"Night", "Plain"}));
    EXPECT_FALSE(window().btnOK->isEnabled());
    click(styles(), "Plain");
    QTest::mouseClick(window().btnOK, Qt::LeftButton);
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(sheet->selectedStyle(), shot("desk", "Plain"));
}

TEST_F(TemplateChooser, TakesADoubleClickAsOKAndCancelAsNone) {
    open("desk");
    click(styles(), "Plain");
    doubleClick(styles(), "Plain");
    EXPECT_EQ(ended, QList<int>{1});
    open("desk");
    QTest::mouseClick(window().btnCancel, Qt::LeftButton);
    EXPECT_EQ(ended, QList<int>{0});
    EXPECT_FALSE(window().isVisible());
}

TEST_F(TemplateChooser, WorksWithTheKeysAlone) {
    open("float", "Blank");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(QApplication::focusWidget(), &list());
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(selected(list()), "Desk");
    QTest::keyClick(&list(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &styles());
    QTest::keyClick(&styles(), Qt::Key_Space);
    EXPECT_EQ(selected(styles()), "Night");
    QTest::keyClick(&styles(), Qt::Key_Right);
    QTest::keyClick(&styles(), Qt::Key_Return);
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(sheet->selectedStyle(), shot("desk", "Plain"));
    open("float");
    QTest::keyClick(&styles(), Qt::Key_Return);
    EXPECT_TRUE(ended.isEmpty());
    QTest::keyClick(&styles(), Qt::Key_Escape);
    EXPECT_EQ(ended, QList<int>{0});
}

TEST_F(TemplateChooser, KeepsTheStylesThroughARefreshUntilAnotherTemplateIsSelected) {
    open("float", "Sky");
    library.addTemplate("album");
    addStyle("float", "Aurora", Qt::green);
    QTest::mouseClick(window().btnRefresh, Qt::LeftButton);
    EXPECT_EQ(shown(list()), QStringList({"Album", "Desk", "Float"}));
    EXPECT_EQ(selected(list()), "Float");
    EXPECT_EQ(shown(styles()), QStringList({"Blank", "Sky"}));
    click(list(), "Album");
    EXPECT_TRUE(shown(styles()).isEmpty());
    EXPECT_TRUE(window().lblNoStyles->isVisible());
    click(list(), "Float");
    EXPECT_EQ(shown(styles()), QStringList({"Aurora", "Blank", "Sky"}));
    EXPECT_EQ(selected(styles()), "Sky");
    EXPECT_FALSE(window().lblNoStyles->isVisible());
}

TEST_F(TemplateChooser, NamesBrokenTemplatesAndDoesNotTakeThem) {
    library.addFile("AppFiles/Templates/empty/icon.png", "x");
    addStyle("empty", "Style", Qt::red);
    library.addTemplateFile("torn", "<template><info><htmlPath>a</htmlPath></info>");
    open("float", "Sky");
    EXPECT_EQ(shown(list()), QStringList({"Desk", "Empty", "Float", "Torn"}));
    EXPECT_TRUE(hasNotice());
    EXPECT_TRUE(notice().contains("“Empty”") && notice().contains("“Torn”"));
    EXPECT_TRUE(window().btnOK->isEnabled());
    click(list(), "Empty");
    EXPECT_FALSE(notice().contains("Torn"));
    click(styles(), "Style");
    EXPECT_EQ(selected(styles()), "Style");
    EXPECT_FALSE(window().btnOK->isEnabled());
    doubleClick(styles(), "Style");
    EXPECT_TRUE(ended.isEmpty());
    for (const char* name : {"empty", "torn"})
        library.addTemplate(name);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keyClick(&styles(), Qt::Key_F5);
    EXPECT_FALSE(hasNotice());
    EXPECT_TRUE(window().btnOK->isEnabled());
    for (const char* name : {"b1", "b2", "b3", "b4", "b5"})
        library.addTemplateFile(name, "<template>");
    QTest::keyClick(&styles(), Qt::Key_F5);
    EXPECT_TRUE(notice().contains("“B3”") && !notice().contains("“B4”"));
    EXPECT_TRUE(notice().endsWith("\n2 more cannot be used."));
}

TEST_F(TemplateChooser, HidesTheFoldersThatTemplatesAndStylesAreMadeOf) {
    library.addFile("AppFiles/Templates/desk/images/wood.jpg", "x");
    library.addFile("AppFiles/Styles/desk/Night/stars/star.png", "x");
    open("desk");
    EXPECT_EQ(shown(list()), QStringList({"Desk", "Float"}));
    EXPECT_EQ(shown(styles()), QStringList({"Night", "Plain"}));
    EXPECT_FALSE(hasNotice());
}

TEST_F(TemplateChooser, FillsTheWidthThatTheScrollBarLeaves) {
    for (int i = 0; i < 40; ++i)
        library.addStyle("desk", "Style " + QString::number(i), "");
    open("desk", "Night");
    const auto y = [this](int i) { return styles().visualRect(styles().model()->index(i, 0)).y(); };
    for (const int width : {700, 777, 860}) {
        window().resize(width, 500);
        QTest::qWait(0);
        int columns = 1;
        while (y(columns) == y(0))
            ++columns;
        const int left = styles().viewport()->width() - columns * styles().gridSize().width();
        EXPECT_TRUE(left > 0 && left <= columns) << width << ' ' << columns << ' ' << left;
    }
}

TEST_F(TemplateChooser, SaysThatATemplateOrTheLibraryIsGone) {
    open("gone");
    EXPECT_TRUE(selected(list()).isNull());
    EXPECT_TRUE(notice().contains("“Gone” is not in the library"));
    QDir(library.path() + "/AppFiles/Templates").removeRecursively();
    QTest::mouseClick(window().btnRefresh, Qt::LeftButton);
    EXPECT_TRUE(shown(list()).isEmpty());
    EXPECT_TRUE(window().lblNoTmpls->isVisible());
}
