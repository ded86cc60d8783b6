#include "ui/SelectTemplateWindow.h"
#include "ui/SelectTemplateWindowDelegate.h"

#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"

#include <QBuffer>
#include <QDir>
#include <QFontMetricsF>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

QByteArray picture(const QColor& color, const char* format) {
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format, 100);
    return bytes;
}

// The sheet over a library with the templates "desk", which has the styles "Night" and "Plain", the
// latter without a picture, and "float", which has "Blank" and "Sky".
class TemplateChooser : public testing::Test {
protected:
    TemplateChooser() {
        library.addTemplate(text("desk"));
        library.addTemplate(text("float"));
        addStyle("desk", "Night", Qt::darkBlue);
        library.addStyle(text("desk"), text("Plain"), "");
        addStyle("float", "Blank", Qt::white);
        addStyle("float", "Sky", Qt::cyan);
    }

    void addStyle(const char* tmpl, const char* style, const QColor& color) {
        library.addStyle(text(tmpl), text(style), "");
        library.addFile(text("AppFiles/Styles/%1/%2/shot.jpg").arg(text(tmpl), text(style)),
                        picture(color, "JPG"));
    }
    QString shot(const char* tmpl, const char* style) const {
        return library.stylePath(text(tmpl), text(style)) + text("/shot.jpg");
    }

    SelectTemplateWindowDelegate& open(const char* tmpl, const QString& style = QString()) {
        sheet = std::make_unique<SelectTemplateWindowDelegate>();
        sheet->prepairToTmpl(text(tmpl), style);
        sheet->beginSheet([this](int code) { ended << code; });
        return *sheet;
    }
    SelectTemplateWindow& window() { return sheet->window(); }
    QListView& list() { return *window().iTableViewTmpls; }
    QListView& styles() { return *window().iImgBrowserView; }
    QString notice() { return window().findChild<QLabel*>(text("notice"))->text(); }
    bool hasNotice() { return window().findChild<QWidget*>(text("noticeRow"))->isVisible(); }

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
    static void click(QListView& view, const char* name) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, centre(view, name));
    }
    static QPoint centre(const QListView& view, const char* name) {
        const auto found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole,
                                               text(name), 1, Qt::MatchExactly);
        return found.isEmpty() ? QPoint(-1, -1) : view.visualRect(found.first()).center();
    }

    TemplateLibrary library;
    std::unique_ptr<SelectTemplateWindowDelegate> sheet;
    QList<int> ended;
};

} // namespace

TEST_F(TemplateChooser, ListsTemplatesAndSelectsTheOneOfTheBookWithItsStyle) {
    open("FLOAT", library.stylePath(text("float"), text("Sky")));
    EXPECT_EQ(shown(list()), QStringList({text("Desk"), text("Float")}));
    EXPECT_EQ(selected(list()), text("Float"));
    EXPECT_EQ(shown(styles()), QStringList({text("Blank"), text("Sky")}));
    EXPECT_EQ(selected(styles()), text("Sky"));
    EXPECT_TRUE(window().btnOK->isEnabled());
    EXPECT_EQ(sheet->objectValueForTableColumn(text("any"), 1), text("float"));
    EXPECT_EQ(sheet->itemAtIndex(1).image().pixelColor(9, 9).blue(), 255);
    EXPECT_FALSE(hasNotice());
}

TEST_F(TemplateChooser, WaitsForAStyleBeforeItEndsWithTheOneThatWasClicked) {
    open("float");
    EXPECT_FALSE(window().btnOK->isEnabled());
    EXPECT_TRUE(sheet->selectedStyle().isNull());
    sheet->onOK();
    EXPECT_TRUE(ended.isEmpty());
    click(list(), "Desk");
    EXPECT_EQ(shown(styles()), QStringList({text("Night"), text("Plain")}));
    EXPECT_FALSE(window().btnOK->isEnabled());
    click(styles(), "Plain");
    QTest::mouseClick(window().btnOK, Qt::LeftButton);
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(sheet->selectedStyle(), shot("desk", "Plain"));
    EXPECT_EQ(sheet->selectedItemIndex(), 1U);
}

TEST_F(TemplateChooser, TakesADoubleClickAsOKAndCancelAsNone) {
    open("desk");
    click(styles(), "Plain");
    QTest::mouseDClick(styles().viewport(), Qt::LeftButton, {}, centre(styles(), "Plain"));
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(sheet->selectedItemIndex(), 1U);
    EXPECT_EQ(sheet->selectedStyle(), shot("desk", "Plain"));
    ended.clear();
    open("desk");
    QTest::mouseClick(window().btnCancel, Qt::LeftButton);
    EXPECT_EQ(ended, QList<int>{0});
    EXPECT_FALSE(window().isVisible());
}

TEST_F(TemplateChooser, WorksWithTheKeysAlone) {
    open("float", library.stylePath(text("float"), text("Blank")));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(QApplication::focusWidget(), &list());
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(selected(list()), text("Desk"));
    QTest::keyClick(&list(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &styles());
    QTest::keyClick(&styles(), Qt::Key_Space);
    EXPECT_EQ(selected(styles()), text("Night"));
    QTest::keyClick(&styles(), Qt::Key_Right);
    EXPECT_EQ(selected(styles()), text("Plain"));
    QTest::keyClick(&styles(), Qt::Key_Return);
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(sheet->selectedStyle(), shot("desk", "Plain"));
    ended.clear();
    open("float");
    QTest::keyClick(&styles(), Qt::Key_Return);
    EXPECT_TRUE(ended.isEmpty());
    QTest::keyClick(&styles(), Qt::Key_Escape);
    EXPECT_EQ(ended, QList<int>{0});
}

TEST_F(TemplateChooser, KeepsTheStylesThroughARefreshUntilAnotherTemplateIsSelected) {
    open("float", library.stylePath(text("float"), text("Sky")));
    library.addTemplate(text("album"));
    addStyle("float", "Aurora", Qt::green);
    QTest::mouseClick(window().btnRefresh, Qt::LeftButton);
    EXPECT_EQ(shown(list()), QStringList({text("Album"), text("Desk"), text("Float")}));
    EXPECT_EQ(selected(list()), text("Float"));
    EXPECT_EQ(shown(styles()), QStringList({text("Blank"), text("Sky")}));
    EXPECT_EQ(selected(styles()), text("Sky"));
    click(list(), "Album");
    EXPECT_TRUE(shown(styles()).isEmpty());
    EXPECT_TRUE(window().lblNoStyles->isVisible());
    click(list(), "Float");
    EXPECT_EQ(shown(styles()), QStringList({text("Aurora"), text("Blank"), text("Sky")}));
    EXPECT_EQ(selected(styles()), text("Sky"));
    EXPECT_FALSE(window().lblNoStyles->isVisible());
}

TEST_F(TemplateChooser, SaysWhichTemplatesAreBrokenAndDoesNotTakeThem) {
    const RecordedLog log;
    addStyle("empty", "Style", Qt::red);
    library.addFile(text("AppFiles/Templates/empty/icon.png"), picture(Qt::red, "PNG"));
    library.addTemplateFile(text("torn"), "<template><info><htmlPath>a</htmlPath></info>");
    open("float", library.stylePath(text("float"), text("Sky")));
    EXPECT_EQ(shown(list()),
              QStringList({text("Desk"), text("Empty"), text("Float"), text("Torn")}));
    EXPECT_TRUE(hasNotice());
    EXPECT_TRUE(notice().contains(text("“Empty” cannot be used. Its file flashTemplate.xml is")));
    EXPECT_TRUE(notice().contains(text("“Torn”")) && notice().contains(text("\"swfPath\"")));
    EXPECT_TRUE(window().btnOK->isEnabled());
    click(list(), "Empty");
    EXPECT_FALSE(notice().contains(text("Torn")));
    click(styles(), "Style");
    EXPECT_EQ(selected(styles()), text("Style"));
    EXPECT_FALSE(window().btnOK->isEnabled());
    QTest::mouseDClick(styles().viewport(), Qt::LeftButton, {}, centre(styles(), "Style"));
    EXPECT_TRUE(ended.isEmpty());
    library.addTemplate(text("empty"));
    library.addTemplate(text("torn"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keyClick(&styles(), Qt::Key_F5);
    EXPECT_FALSE(hasNotice());
    EXPECT_TRUE(window().btnOK->isEnabled());
}

TEST_F(TemplateChooser, HidesTheFoldersThatTemplatesAndStylesAreMadeOf) {
    library.addFile(text("AppFiles/Templates/desk/images/wood.jpg"), "x");
    library.addFile(text("AppFiles/Styles/desk/Night/stars/star.png"), "x");
    open("desk");
    EXPECT_EQ(sheet->numberOfRowsInTableView(), 3);
    EXPECT_EQ(shown(list()), QStringList({text("Desk"), text("Float")}));
    EXPECT_EQ(sheet->numberOfItemsInImageBrowser(), 3);
    EXPECT_EQ(shown(styles()), QStringList({text("Night"), text("Plain")}));
    EXPECT_FALSE(hasNotice());
    // Of several templates with the name the last is taken.
    library.addFile(text("AppFiles/Templates/float/Desk/wood.jpg"), "x");
    open("desk");
    EXPECT_EQ(selected(list()), text("Desk"));
    EXPECT_EQ(list().currentIndex().row(), 3);
    EXPECT_FALSE(list().isRowHidden(3));
}

TEST_F(TemplateChooser, TellsOfATemplateOrALibraryThatIsGone) {
    const RecordedLog log;
    open("gone");
    EXPECT_TRUE(selected(list()).isNull());
    EXPECT_TRUE(notice().contains(text("“Gone” is not in the library")));
    QDir(library.path() + text("/AppFiles/Templates")).removeRecursively();
    QTest::mouseClick(window().btnRefresh, Qt::LeftButton);
    EXPECT_TRUE(shown(list()).isEmpty());
    EXPECT_TRUE(window().lblNoTmpls->isVisible());
}

TEST_F(TemplateChooser, PaintsPicturesSelectionAndIcons) {
    library.addFile(text("AppFiles/Templates/desk/icon.png"), picture(Qt::magenta, "PNG"));
    open("desk", library.stylePath(text("desk"), text("Night")));
    const QImage pictures = styles().viewport()->grab().toImage();
    const QColor base = styles().palette().color(QPalette::Base);
    const QColor highlight = styles().palette().color(QPalette::Highlight);
    EXPECT_LT(
        pictures.pixelColor(styles().visualRect(styles().model()->index(0, 0)).center()).red(), 20);
    int framed = 0;
    for (int y = 0; y < pictures.height(); ++y)
        framed += pictures.pixelColor(centre(styles(), "Night").x(), y) == highlight ? 1 : 0;
    EXPECT_GE(framed, 4);
    EXPECT_EQ(pictures.pixelColor(pictures.width() - 3, pictures.height() - 3), base);
    const QImage rows = list().viewport()->grab().toImage();
    const QRect row = list().visualRect(list().model()->index(0, 0));
    EXPECT_EQ(row.height(), 35);
    EXPECT_EQ(rows.pixelColor(row.left() + 20, row.center().y()), QColor(Qt::magenta));
    EXPECT_EQ(rows.pixelColor(row.right() - 20, row.center().y()), highlight);
}

TEST(TemplateCell, LaysOutIconAndTitle) {
    SelectTmplItemCell cell(text("float"));
    const QFontMetricsF metrics(cell.font());
    const QRectF bounds(10, 50, 200, 35);
    EXPECT_EQ(cell.titleRectForBounds(bounds),
              QRectF(45, 51, metrics.horizontalAdvance(text("float")), metrics.height()));
    EXPECT_EQ(cell.titleRectForBounds(QRectF(0, 0, 80, 35)).width(), 9);
    EXPECT_EQ(cell.titleRectForBounds(QRectF(0, 0, 60, 35)).width(), 0);
    EXPECT_EQ(cell.imageRectForBounds(bounds), QRectF(1, 53, 32, 32));
    EXPECT_TRUE(cell.imageRectForBounds(QRectF(0, 0, 32.5, 35)).isEmpty());
    EXPECT_FALSE(cell.imageRectForBounds(QRectF(0, 0, 33, 35)).isEmpty());
}

TEST(TemplateCell, ReadsItsIconOnceAndCopiesItsPath) {
    TemplateLibrary library;
    library.addFile(text("icon.png"), picture(Qt::red, "PNG"));
    SelectTmplItemCell cell(text("float"));
    cell.setTmplIconFile(library.path() + text("/icon.png"));
    EXPECT_EQ(cell.itemImage().pixelColor(5, 5), QColor(Qt::red));
    library.addFile(text("icon.png"), picture(Qt::blue, "PNG"));
    QImage image(100, 35, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    cell.drawInteriorWithFrame(painter, QRectF(image.rect()));
    EXPECT_EQ(image.pixelColor(16, 18), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(16, 2), QColor(Qt::white));
    const auto copy = cell.copyWithZone();
    EXPECT_EQ(copy->title(), text("my god"));
    EXPECT_EQ(copy->tmplIconFile(), cell.tmplIconFile());
}

TEST(StyleItem, AnswersAnImageBrowser) {
    const IKBTmplStyleItem item(QImage(3, 2, QImage::Format_RGB32), text("/a/shot.jpg"), text("A"));
    EXPECT_EQ(item.imageUID(), text("/a/shot.jpg"));
    EXPECT_EQ(item.imageRepresentation().size(), QSize(3, 2));
    EXPECT_EQ(item.imageTitle(), text("A"));
}
