#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/Translations.h"
#include "desktop/DesktopProgram.h"
#include "desktop/WindowTexts.h"
#include "platform/Folders.h"
#include "support/TemplateLibrary.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"
#include "ui/SelectTemplateWindow.h"
#include "ui/SelectTemplateWindowDelegate.h"

#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QToolBar>
#include <QTranslator>
#include <gmock/gmock.h>

namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

std::string lines(const QStringList& texts) {
    return texts.join(u'\n').toStdString();
}

void removeTranslations() {
    const auto installed = qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly);
    qDeleteAll(installed);
}

// The program for a user who reads German.
class German : public DesktopProgram {
protected:
    ~German() override {
        program.reset();
        removeTranslations();
    }

    void launchInGerman() {
        ASSERT_EQ(Translations::install({text("de-DE")}), text("de-DE"));
        program = std::make_unique<BrisleafAppDelegate>();
        launch();
    }
    // The window's, the sheets', and those of all templates and styles.
    QStringList texts() const {
        QStringList all = WindowTexts::all(window());
        auto& chooser = program->selecteTmplWindow();
        for (const char* name : {"float", "desk", "gallery", "cinema", "deck"}) {
            chooser.prepairToTmpl(text(name));
            all << WindowTexts::all(chooser.window());
        }
        return all;
    }
    QList<QDialog*> sheets() const {
        return {&program->importWindow().window(), &program->ouputWindow().window(),
                &program->selecteTmplWindow().window()};
    }
};

// What has no words, or the same ones in both languages: numbers, colours, keys, and a few words.
// The last one stands behind the fields of files and is never seen.
bool mayBeTheSame(const QString& caption) {
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        text("\\P{L}*|0x[0-9a-f]{6}|F\\d+|OK|Sand|go go bay,hello world....just ok")));
    return pattern.match(caption).hasMatch();
}

} // namespace

TEST(Translations, FirstOfTheUsersLanguagesThatTheProgramSpeaksIsTaken) {
    const auto install = [](const QStringList& languages) {
        const QString taken = Translations::install(languages);
        const QString caption = QCoreApplication::translate("MainMenu", "&Quit");
        const QString ofToolkit = QCoreApplication::translate("QPlatformTheme", "Cancel");
        removeTranslations();
        return QStringList{taken, caption, ofToolkit};
    };
    const QString quit = text("&Quit");
    const QString cancel = text("Cancel");
    const QString beenden = text("&Beenden");
    const QString abbrechen = text("Abbrechen");
    EXPECT_EQ(install({text("de-AT")}), (QStringList{text("de-AT"), beenden, abbrechen}));
    EXPECT_EQ(install({text("fr-FR"), text("de"), text("en")}),
              (QStringList{text("de"), beenden, abbrechen}));
    EXPECT_EQ(install({text("en-GB"), text("de")}), (QStringList{text("en-GB"), quit, cancel}));
    EXPECT_EQ(install({text("fr-FR")}), (QStringList{QString(), quit, cancel}));
    EXPECT_EQ(install({text("C")}), (QStringList{QString(), quit, cancel}));
}

TEST_F(German, NoTextIsLeftInEnglish) {
    launch();
    const QStringList english = texts();
    program.reset();
    launchInGerman();
    const QStringList german = texts();
    ASSERT_EQ(english.size(), german.size());
    QStringList same;
    for (qsizetype i = 0; i < english.size(); ++i) {
        if (english[i] == german[i] && !mayBeTheSame(english[i]) && !same.contains(english[i]))
            same << english[i];
    }
    EXPECT_EQ(lines(same), "");
    EXPECT_GT(german.filter(QRegularExpression(text("\\w{3}"))).size(), 300);
}

TEST_F(German, NothingIsCutOff) {
    launchInGerman();
    EXPECT_EQ(lines(WindowTexts::cutOff(window())), "");
    for (QDialog* sheet : sheets()) {
        sheet->show();
        QTest::qWait(20);
        EXPECT_EQ(lines(WindowTexts::cutOff(*sheet)), "");
        sheet->hide();
    }
    const auto* bar = window().findChild<QToolBar*>();
    for (QAction* action : bar->actions())
        EXPECT_TRUE(bar->widgetForAction(action)->isVisible()) << action->text().toStdString();
    const QAbstractItemView& settings = *window().outlineView;
    for (const int column : {0, 1})
        EXPECT_LE(settings.sizeHintForColumn(column),
                  window().outlineView->header()->sectionSize(column));
}

TEST_F(German, LettersOfMenusAndSheetsAreUnique) {
    launch();
    for (const bool inGerman : {false, true}) {
        if (inGerman) {
            program.reset();
            launchInGerman();
        }
        EXPECT_EQ(lines(WindowTexts::clashingMnemonics(window())), "");
        for (const QDialog* sheet : sheets())
            EXPECT_EQ(lines(WindowTexts::clashingMnemonics(*sheet)), "");
    }
}

TEST_F(German, SettingsAreShownInGermanAndKeptAsTheyAre) {
    launchInGerman();
    edit(text("mainbgImgPosition"), text("Mitte"));
    EXPECT_EQ(value(text("mainbgImgPosition")), text("Center"));
    EXPECT_EQ(valueOf(text("mainbgImgPosition")).data().toString(), text("Mitte"));
    EXPECT_EQ(window().toolTipBox->title(), text("Lage des Bilds"));
    EXPECT_EQ(window().toolTip->toPlainText(),
              text("Wo das Bild liegt und wie es den Hintergrund füllt."));
    EXPECT_EQ(window().menu->undo->text(), text("„Lage des Bilds“ &rückgängig machen"));
    window().menu->toolBarItemApplyChange->trigger();
    EXPECT_EQ(
        configuration().textAt(text("BackgroundConfig/BackgroundImage/OuterBackgroundPosition")),
        text("Center"));
    press(text("RightToLeft"));
    EXPECT_EQ(valueOf(text("RightToLeft")).data(Qt::AccessibleTextRole).toString(),
              text("Von rechts nach links: Ja"));
    window().menu->undo->trigger();
    window().menu->undo->trigger();
    EXPECT_EQ(window().menu->redo->text(), text("„Lage des Bilds“ &wiederherstellen"));
    EXPECT_EQ(value(text("mainbgImgPosition")), text("Scale to fit"));
}

TEST_F(German, FailuresAreToldInGermanAndLoggedInEnglish) {
    launchInGerman();
    const QString broken = path(text("kaputt.pdf"));
    TestFiles::write(broken, "no PDF at all");
    window().menu->importPDF->trigger();
    auto& sheet = program->importWindow().window();
    const auto failure = [&](const QString& file) {
        sheet.txtImportFile->setText(file);
        QTest::mouseClick(sheet.btnOK, Qt::LeftButton);
        EXPECT_TRUE(waitForImport());
        return sheet.lblFailure->text();
    };
    EXPECT_EQ(failure(broken), broken + text(": ist kein PDF-Dokument"));
    const QString missing = path(text("fehlt.pdf"));
    EXPECT_EQ(failure(missing), missing + text(": diese Datei gibt es nicht"));
    const QByteArray log =
        TestFiles::read(Folders::userApplicationSupport() + text("/Tessamar/Folvero/Folvero.log"));
    EXPECT_TRUE(log.contains("kaputt.pdf: is not a PDF document")) << log.toStdString();
    EXPECT_FALSE(log.contains("ist kein")) << log.toStdString();
}
