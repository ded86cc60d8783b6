#include "app/desktop/Translations.h"
#include "desktop/DesktopProgram.h"
#include "desktop/WindowTexts.h"
#include "ui/PagesWindowDelegate.h"

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
};

// What has no words, or the same ones in both languages: numbers, colours, keys, and a few words.
// The last one stands behind the fields of files and is never seen.
bool mayBeTheSame(const QString& caption) {
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        "\\P{L}*|0x[0-9a-f]{6}|F\\d+|OK|Sand|Tablet|go go bay,hello world....just ok"));
    return pattern.match(caption).hasMatch();
}

} // namespace

TEST(Translations, FirstOfTheUsersLanguagesThatTheProgramSpeaksIsTaken) {
    const std::tuple<QStringList, const char*, const char*> cases[] = {
        {{"de-AT"}, "de-AT", "&Beenden Abbrechen 2 Seiten"},
        {{"is-IS", "de", "en"}, "de", "&Beenden Abbrechen 2 Seiten"},
        {{"en-GB", "de"}, "en-GB", "&Quit Cancel 2 pages"},
        {{"fr-CA"}, "fr-CA", "&Quitter Annuler 2 pages"},
        {{"is-IS"}, "en", "&Quit Cancel 2 pages"},
        {{"C"}, "en", "&Quit Cancel 2 pages"},
    };
    for (const auto& [languages, taken, captions] : cases) {
        EXPECT_EQ(Translations::install(languages), taken);
        EXPECT_EQ(QCoreApplication::translate("MainMenu", "&Quit") + ' ' +
                      QCoreApplication::translate("QPlatformTheme", "Cancel") + ' ' +
                      PagesWindowDelegate::tr("%n page(s)", nullptr, 2),
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

TEST_F(German, SettingsAreShownInGermanAndKeptAsTheyAre) {
    launchInGerman();
    edit("mainbgImgPosition", "Mitte");
    EXPECT_EQ(value("mainbgImgPosition"), "Center");
    EXPECT_EQ(valueOf("mainbgImgPosition").data().toString(), "Mitte");
    EXPECT_EQ(window().toolTipBox->title(), "Lage des Bilds");
    EXPECT_EQ(window().menu->undo->text(), "„Lage des Bilds“ &rückgängig machen");
    window().menu->toolBarItemApplyChange->trigger();
    EXPECT_EQ(configuration().textAt("BackgroundConfig/BackgroundImage/OuterBackgroundPosition"),
              "Center");
    press("RightToLeft");
    EXPECT_EQ(valueOf("RightToLeft").data(Qt::AccessibleTextRole).toString(),
              "Von rechts nach links: Ja, geändert");
}

TEST_F(German, FailuresAreShownInGermanAndLoggedInEnglish) {
    launchInGerman();
    TestFiles::write(path("kaputt.pdf"), "no PDF at all");
    window().menu->importPDF->trigger();
    auto& sheet = program->importWindow().window();
    sheet.txtImportFile->setText(path("kaputt.pdf"));
    QTest::mouseClick(sheet.btnOK, Qt::LeftButton);
    EXPECT_TRUE(waitForImport());
    EXPECT_EQ(sheet.lblFailure->text(),
              path("kaputt.pdf: ist kein PDF-Dokument\nWählen Sie ein anderes Dokument."));
    const QByteArray log =
        TestFiles::read(Folders::userApplicationSupport() + "/Tessamar/Folvero/Folvero.log");
    EXPECT_TRUE(log.contains("kaputt.pdf: is not a PDF document")) << log.toStdString();
}
