#include "app/desktop/Translations.h"
#include "desktop/DesktopProgram.h"
#include "ui/Panels.h"

#include <QWebEngineView>

namespace {

void addRows(const QAbstractItemModel& model, const QModelIndex& parent, QStringList& texts) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole),
                                   int(Qt::AccessibleTextRole), int(Qt::AccessibleDescriptionRole)})
                texts << index.data(role).toString();
        }
        addRows(model, model.index(row, 0, parent), texts);
    }
}

bool isCaption(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
}

// What is particular to a kind of widget. What a field holds is the user's own.
QStringList contentOf(const QWidget& widget) {
    QStringList texts{widget.property("placeholderText").toString(),
                      widget.property("plainText").toString()};
    if (isCaption(widget))
        texts << widget.property("text").toString();
    if (qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QMenu*>(&widget))
        texts << widget.property("title").toString();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        addRows(*box->model(), {}, texts);
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    if (!view || !view->model())
        return texts;
    for (int column = 0; column < view->model()->columnCount(); ++column)
        texts << view->model()->headerData(column, Qt::Horizontal).toString();
    addRows(*view->model(), {}, texts);
    return texts;
}

// Without what comes and goes: what lies in the preview is Chromium's own, and a menu bar without
// room keeps what it hides in a menu.
QList<const QWidget*> widgetsOf(const QWidget& window) {
    const auto* hidden = window.findChild<QToolButton*>("qt_menubar_ext_button");
    QList<const QWidget*> widgets{&window};
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!qobject_cast<const QWebEngineView*>(widget->parent()) &&
            (!hidden || widget != hidden->menu()))
            widgets << widget;
    }
    return widgets;
}

void addClashes(const QStringList& captions, const QString& place, QStringList& clashes) {
    QHash<QString, QString> taken;
    for (const QString& caption : captions) {
        const QString letter = QKeySequence::mnemonic(caption).toString();
        if (!letter.isEmpty() && taken.contains(letter))
            clashes << place + ": " + taken[letter] + " / " + caption;
        taken[letter] = caption;
    }
}

QStringList textsOf(const QList<QAction*>& actions) {
    QStringList texts;
    for (const QAction* action : actions)
        texts << action->text();
    return texts;
}

bool hasRoom(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->wordWrap())
        return label->height() >= label->heightForWidth(label->width());
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        return field->fontMetrics().horizontalAdvance(field->placeholderText()) + 8 <=
               field->width();
    const bool hasHint = isCaption(widget) || qobject_cast<const QComboBox*>(&widget) ||
                         qobject_cast<const QMenuBar*>(&widget);
    // Styles are a pixel out in the height of what has a frame.
    return !hasHint || (widget.width() >= widget.sizeHint().width() &&
                        widget.height() + 1 >= widget.sizeHint().height());
}

// All texts of the window's widgets, menus and lists, in an order that does not depend on the
// language.
QStringList allTexts(const QWidget& window) {
    QStringList texts;
    for (const QWidget* widget : widgetsOf(window)) {
        texts << widget->windowTitle() << widget->toolTip() << widget->whatsThis()
              << widget->accessibleName() << contentOf(*widget);
        for (const QAction* action : widget->actions())
            texts << action->text() << action->iconText() << action->toolTip()
                  << action->shortcut().toString(QKeySequence::NativeText);
    }
    return texts;
}

// Labels, buttons and titles of a visible window that have less room than they ask for.
QStringList cutOff(const QWidget& window) {
    QStringList found;
    for (const QWidget* widget : widgetsOf(window)) {
        if (widget->window() == &window && widget->isVisible() && !hasRoom(*widget))
            found << widget->metaObject()->className() + contentOf(*widget).join(u'|');
    }
    return found;
}

// Letters that stand for more than one thing in a menu of the window, or in the window itself.
QStringList clashingMnemonics(const QWidget& window) {
    QStringList clashes;
    for (const auto* menu : window.findChildren<QMenu*>())
        addClashes(textsOf(menu->actions()), menu->title(), clashes);
    for (const auto* bar : window.findChildren<QMenuBar*>())
        addClashes(textsOf(bar->actions()), "menu bar", clashes);
    QStringList captions;
    for (const QWidget* widget : widgetsOf(window)) {
        if (isCaption(*widget) && widget->window() == &window)
            captions << contentOf(*widget);
    }
    addClashes(captions, window.windowTitle(), clashes);
    return clashes;
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
        ASSERT_EQ(Translations::install({"de-DE"}), "de-DE");
        program = std::make_unique<BrisleafAppDelegate>();
        launch();
    }
    // The window's, the sheets', and those of all templates and styles.
    QStringList texts() const {
        QStringList all = allTexts(window());
        auto& chooser = program->selecteTmplWindow();
        for (const char* name : {"float", "desk", "gallery", "cinema", "deck"}) {
            chooser.prepairToTmpl(name);
            all << allTexts(chooser.window());
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
        "\\P{L}*|0x[0-9a-f]{6}|F\\d+|OK|Sand|Tablet|go go bay,hello world....just ok"));
    return pattern.match(caption).hasMatch();
}

} // namespace

TEST(Translations, FirstOfTheUsersLanguagesThatTheProgramSpeaksIsTaken) {
    const std::tuple<QStringList, const char*, const char*> cases[] = {
        {{"de-AT"}, "de-AT", "&Beenden Abbrechen"},
        {{"is-IS", "de", "en"}, "de", "&Beenden Abbrechen"},
        {{"en-GB", "de"}, "en-GB", "&Quit Cancel"},
        {{"fr-CA"}, "fr-CA", "&Quitter Annuler"},
        {{"is-IS"}, "", "&Quit Cancel"},
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

TEST_F(German, NothingIsCutOffAndLettersAreUnique) {
    launch();
    for (const QDialog* sheet : sheets())
        EXPECT_EQ(lines(clashingMnemonics(window()) + clashingMnemonics(*sheet)), "");
    program.reset();
    launchInGerman();
    EXPECT_EQ(lines(cutOff(window())), "");
    for (QDialog* sheet : sheets()) {
        EXPECT_EQ(lines(clashingMnemonics(window()) + clashingMnemonics(*sheet)), "");
        sheet->show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return cutOff(*sheet).isEmpty(); }))
            << lines(cutOff(*sheet));
        sheet->hide();
    }
    QTimer::singleShot(0, [] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        EXPECT_EQ(lines(cutOff(*box)), "");
        box->reject();
    });
    Panels::askForText("?", "?");
    const QTreeView& settings = *window().outlineView;
    for (const int column : {0, 1})
        EXPECT_LE(static_cast<const QAbstractItemView&>(settings).sizeHintForColumn(column),
                  settings.header()->sectionSize(column));
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
