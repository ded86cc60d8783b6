#include "app/desktop/StyleSaver.h"
#include "desktop/DesktopProgram.h"
#include "template/StyleFolders.h"
#include "ui/NameWindow.h"

namespace {

// The user's own styles, in the program with its library.
class OwnStylesTest : public DesktopProgram {
protected:
    // Types the name into the sheet; what it says about it, null when it has taken it.
    static QString take(NameWindow& sheet, const QString& name) {
        sheet.txtName->setText(name);
        QTest::mouseClick(sheet.btnOK, Qt::LeftButton);
        return sheet.isVisible() ? sheet.lblFailure->text() + "" : QString();
    }
    QString saveAs(const QString& name) const {
        window().menu->saveStyle->trigger();
        return take(program->styleSaver().nameWindow(), name);
    }
    QString style() const { return program->flashTmpl()->styleName(); }
    static QString file(const QString& name) {
        return StyleFolders::ownFor("float", name) + "/tmplSetting.txt";
    }
    SelectTemplateWindowDelegate& chooser() const { return program->selecteTmplWindow(); }
    bool select(const QString& name) const {
        auto* list = chooser().window().iImgBrowserView;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            if (index.data() == name) {
                list->setCurrentIndex(index);
                return true;
            }
        }
        return false;
    }
    void choose(const QString& name) const {
        window().menu->selectTemplate->trigger();
        EXPECT_TRUE(select(name)) << name.toStdString();
        QTest::mouseClick(chooser().window().btnOK, Qt::LeftButton);
    }
    QString notice() const { return chooser().window().findChild<QLabel*>("notice")->text(); }
};

} // namespace

TEST_F(OwnStylesTest, AreSavedAndChosenLikeThoseOfTheLibrary) {
    launch();
    edit("topMargin", "40");
    EXPECT_TRUE(saveAs("Garden").contains("“Garden”")) << "the template has one";
    EXPECT_TRUE(program->styleSaver().nameWindow().btnOK->isDefault()) << "Return tries again";
    EXPECT_FALSE(take(program->styleSaver().nameWindow(), "a/b").isNull());
    EXPECT_TRUE(take(program->styleSaver().nameWindow(), " Mine ").isNull());
    EXPECT_EQ(style(), "Mine");
    EXPECT_FALSE(QImage(StyleFolders::ownFor("float", "Mine") + "/shot.jpg").isNull());
    EXPECT_FALSE(TestFiles::read(file("Mine")).contains("pageWidth"));
    EXPECT_FALSE(window().menu->resetSettings->isEnabled()) << "these are the style's values now";
    choose("Garden");
    EXPECT_EQ(value("topMargin"), "12");
    choose("Mine");
    EXPECT_EQ(configuration().textAt("Properties/Top"), "40");
    window().menu->undo->trigger();
    EXPECT_EQ(style() + value("topMargin"), "Garden12");
    window().menu->redo->trigger();
    EXPECT_EQ(style() + value("topMargin"), "Mine40");

    const QByteArray saved = TestFiles::read(file("Mine"));
    edit("topMargin", "50");
    EXPECT_TRUE(saveAs("Mine").isEmpty());
    EXPECT_TRUE(program->styleSaver().nameWindow().isVisible() && losses.size() == 1);
    EXPECT_EQ(TestFiles::read(file("Mine")), saved) << "the answer was no";
    replaces = true;
    EXPECT_TRUE(take(program->styleSaver().nameWindow(), "Mine").isNull());
    EXPECT_TRUE(TestFiles::read(file("Mine")).contains("topMargin=50"));
}

TEST_F(OwnStylesTest, AreRenamedAndDeletedWhileABookHasThem) {
    launch();
    edit("topMargin", "40");
    saveAs("Mine");
    saveAs("Other");
    TestFiles::write(file("Broken"), "no settings");
    window().menu->selectTemplate->trigger();
    ASSERT_TRUE(select("Garden"));
    EXPECT_FALSE(chooser().window().btnRename->isEnabled() ||
                 chooser().window().btnDelete->isEnabled());
    ASSERT_TRUE(select("Broken"));
    EXPECT_TRUE(notice().contains("Broken/tmplSetting.txt")) << notice().toStdString();
    EXPECT_FALSE(chooser().window().btnOK->isEnabled());
    ASSERT_TRUE(select("Other"));
    QTest::mouseClick(chooser().window().btnRename, Qt::LeftButton);
    EXPECT_TRUE(take(chooser().nameWindow(), "Mine").contains("“Mine”"));
    EXPECT_TRUE(take(chooser().nameWindow(), "Else").isNull());
    EXPECT_EQ(style(), "Else");
    EXPECT_TRUE(chooser().selectedStyle().endsWith("/Else/shot.jpg"));

    bool answer = false;
    chooser().setAskToDelete([&](const QString&, const QString&) { return answer; });
    chooser().onDelete();
    EXPECT_TRUE(QFile::exists(file("Else")));
    answer = true;
    chooser().onDelete();
    EXPECT_FALSE(select("Else") || QFile::exists(file("Else")));
    EXPECT_EQ(style() + value("topMargin"), "40") << "the book keeps its values";
    EXPECT_TRUE(window().menu->resetSettings->isEnabled());
}

TEST_F(OwnStylesTest, AreDeletedAlsoWithoutTheirSettings) {
    launch();
    edit("topMargin", "40");
    saveAs("Mine");
    const QDir styles(QFileInfo(StyleFolders::ownFor("float", "Mine")).path());
    ASSERT_TRUE(QFile::remove(file("Mine")) && styles.mkdir("Empty"));
    TestFiles::write(styles.filePath("Notes/plan.txt"), "not ours");
    chooser().setAskToDelete([](const QString&, const QString&) { return true; });
    window().menu->selectTemplate->trigger();
    EXPECT_FALSE(select("Notes"));
    for (const char* name : {"Mine", "Empty"}) {
        ASSERT_TRUE(select(name)) << name;
        EXPECT_TRUE(notice().contains(file(name))) << notice().toStdString();
        EXPECT_FALSE(chooser().window().btnOK->isEnabled());
        QTest::mouseClick(chooser().window().btnDelete, Qt::LeftButton);
        EXPECT_FALSE(select(name) || styles.exists(name)) << name;
    }
    TestFiles::write(file("Notes"), "no settings");
    chooser().onRefresh();
    window().menu->selectTemplate->trigger();
    ASSERT_TRUE(select("Notes"));
    chooser().onDelete();
    EXPECT_FALSE(select("Notes"));
    EXPECT_TRUE(styles.exists("Notes/plan.txt")) << "which somebody else has put there";
}

TEST_F(OwnStylesTest, AreKeptByProjectsWhereTheyAreMissing) {
    launch();
    choose("Garden");
    const QString ground = value("bgEndColor");
    edit("topMargin", "40");
    saveAs("Mine");
    edit("topMargin", "12");
    fileToSave = path("book.folvero");
    window().menu->saveProject->trigger();
    for (const bool isMissing : {false, true}) {
        if (isMissing)
            QDir(StyleFolders::own()).removeRecursively();
        window().menu->newProject->trigger();
        EXPECT_NE(value("bgEndColor"), ground);
        program->openFile(path("book.folvero"));
        EXPECT_EQ(style(), "Mine");
        EXPECT_EQ(value("bgEndColor"), ground);
        EXPECT_EQ(value("topMargin"), "12");
    }
}

TEST_F(OwnStylesTest, AreNotSavedWhereNothingCanBeWritten) {
    launch();
    TestFiles::write(StyleFolders::own(), "a file");
    EXPECT_TRUE(saveAs("Mine").contains(StyleFolders::own()));
    EXPECT_TRUE(style().isEmpty());
}
