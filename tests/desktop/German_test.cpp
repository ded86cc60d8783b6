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
        ASSERT_EQ(Translations::install({"de-DE"}), "de-DE");
        program = std::make_unique<BrisleafAppDelegate>();
        launch();
    }
    // The window's, the sheets', and those of all templates and styles.
    QStringList texts() const {
        QStringList all = WindowTexts::all(window());
        auto& chooser = program->selecteTmplWindow();
        for (const char* name : {"float", "desk", "gallery", "cinema", "deck"}) {
            chooser.prepairToTmpl(name);
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
        "\\P{L}*|0x[0-9a-f]{6}|F\\d+|OK|Sand|go go bay,hello world....just ok"));
    return pattern.match(caption).hasMatch();
}

} // namespace

TEST(Translations, FirstOfTheUsersLanguagesThatTheProgramSpeaksIsTaken) {
    const struct {
        QStringList languages;
        const char* taken;
        const char* captions;
    } cases[] = {
        {{"de-AT"}, "de-AT", "&Beenden Abbrechen"},
        {{"fr-FR", "de", "en"}, "de", "&Beenden Abbrechen"},
        {{"en-GB", "de"}, "en-GB", "&Quit Cancel"},
        {{"fr-FR"}, "", "&Quit Cancel"},
        {{"C"}, "", "&Quit Cancel"},
    };
    for (const auto& [languages, taken, captions] : cases) {
        EXPECT_EQ(Translations::install(languages), taken);
        EXPECT_EQ(QCoreApplication::translate("MainMenu", "&Quit") + ' ' +
                      QCoreApplication::translate("QPlatformTheme", "Cancel"),
                  captions);
        removeTranslations();
    }
}

TEST_F(German, NoTextIsLeftInEnglish) {
    launch();
    const QStringList english = texts();
    program.reset();
    launchInGerman();
    const QStringList german = texts();
    ASSERT_EQ(english.size(), german.size());
    QSet<QString> same;
    for (qsizetype i = 0; i < english.size(); ++i) {
        if (english[i] == german[i] && !mayBeTheSame(english[i]))
            same << english[i];
    }
    EXPECT_EQ(lines(same.values()), "");
    EXPECT_GT(german.filter(QRegularExpression("\\w{3}")).size(), 300);
}

TEST_F(German, NothingIsCutOff) {
    launchInGerman();
    EXPECT_EQ(lines(WindowTexts::cutOff(window())), "");
    for (QDialog* sheet : sheets()) {
        sheet->show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return WindowTexts::cutOff(*sheet).isEmpty(); }))
            << lines(WindowTexts::cutOff(*sheet));
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
    edit("mainbgImgPosition", "Mitte");
    EXPECT_EQ(value("mainbgImgPosition"), "Center");
    EXPECT_EQ(valueOf("mainbgImgPosition").data().toString(), "Mitte");
    EXPECT_EQ(window().toolTipBox->title(), "Lage des Bilds");
    EXPECT_EQ(window().toolTip->toPlainText(),
              "Wo das Bild liegt und wie es den Hintergrund füllt.");
    EXPECT_EQ(window().menu->undo->text(), "„Lage des Bilds“ &rückgängig machen");
    window().menu->toolBarItemApplyChange->trigger();
    EXPECT_EQ(configuration().textAt("BackgroundConfig/BackgroundImage/OuterBackgroundPosition"),
              "Center");
    press("RightToLeft");
    EXPECT_EQ(valueOf("RightToLeft").data(Qt::AccessibleTextRole).toString(),
              "Von rechts nach links: Ja");
    window().menu->undo->trigger();
    window().menu->undo->trigger();
    EXPECT_EQ(window().menu->redo->text(), "„Lage des Bilds“ &wiederherstellen");
    EXPECT_EQ(value("mainbgImgPosition"), "Scale to fit");
}

TEST_F(German, FailuresAreShownInGermanAndLoggedInEnglishAndTheBookStays) {
    launchInGerman();
    TestFiles::write(path("kaputt.pdf"), "no PDF at all");
    window().menu->importPDF->trigger();
    auto& sheet = program->importWindow().window();
    const auto failure = [&](const QString& name) {
        sheet.txtImportFile->setText(path(name));
        QTest::mouseClick(sheet.btnOK, Qt::LeftButton);
        EXPECT_TRUE(waitForImport());
        return sheet.lblFailure->text();
    };
    EXPECT_EQ(failure("kaputt.pdf"), path("kaputt.pdf: ist kein PDF-Dokument"));
    EXPECT_EQ(failure("fehlt.pdf"), path("fehlt.pdf: diese Datei gibt es nicht"));
    EXPECT_EQ(configuration().at("Ppts").children.size(), 12u);
    const QByteArray log =
        TestFiles::read(Folders::userApplicationSupport() + "/Tessamar/Folvero/Folvero.log");
    EXPECT_TRUE(log.contains("kaputt.pdf: is not a PDF document")) << log.toStdString();
    EXPECT_FALSE(log.contains("ist kein")) << log.toStdString();
}
