#include "app/desktop/Appearance.h"
#include "app/desktop/BorderedStyle.h"
#include "desktop/ColorContrast.h"
#include "desktop/DesktopProgram.h"

#include <algorithm>

namespace {

// Of what stands out most in a picture against the colour that it has most of.
double contrast(const QImage& picture) {
    QHash<QRgb, int> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++colors[picture.pixel(x, y)];
    }
    const QRgb ground = std::max_element(colors.cbegin(), colors.cend()).key();
    double best = 1;
    for (const QRgb color : colors.keys())
        best = std::max(best, ColorContrast::between(color, ground));
    return best;
}

// Without its edge, where there may be a frame.
QImage inside(QWidget& widget, const QRect& rect) {
    return widget.grab(rect.adjusted(4, 4, -4, -4)).toImage();
}

QImage chosen(QAbstractItemView& view) {
    return inside(*view.viewport(), view.visualRect(view.currentIndex()));
}

QImage chosenInPopup(QComboBox& list) {
    list.showPopup();
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.view()->isVisible(); }));
    const QImage picture = chosen(*list.view());
    list.hidePopup();
    return picture;
}

// The brightest line of an empty control against its own ground, in a dark window.
int lineContrast(QWidget& control) {
    BorderedStyle style;
    control.setStyle(&style);
    control.setPalette(Appearance::palette(true));
    control.resize(60, 24);
    const QImage image = control.grab().toImage();
    int brightest = 0;
    for (int x = 0; x < image.width(); ++x)
        brightest = std::max(brightest, image.pixelColor(x, image.height() / 2).lightness());
    control.setStyle(nullptr);
    return brightest - Appearance::palette(true).color(QPalette::Window).lightness();
}

class Contrast : public DesktopProgram {
protected:
    QHash<QString, QImage> highlights() {
        QHash<QString, QImage> all;
        auto* settings = window().outlineView;
        for (const QString key : {"topMargin", "mainbgImgPosition", "RightToLeft"}) {
            const QModelIndex value = valueOf(key);
            all[key] = chosen(*settings);
            all[key + " title"] =
                inside(*settings->viewport(), settings->visualRect(value.siblingAtColumn(0)));
        }
        settings->edit(valueOf("mainbgImgPosition"));
        all["choices of a setting"] = chosenInPopup(*settings->findChild<QComboBox*>());
        window().menu->importPDF->trigger();
        auto& import = program->importWindow();
        all["quality"] = chosenInPopup(*import.window().importQuality);
        import.onCancelAction();
        program->onSelectTemplate();
        auto& chooser = program->selecteTmplWindow();
        all["templates"] = chosen(*chooser.window().iTableViewTmpls);
        const QImage style = chosen(*chooser.window().iImgBrowserView);
        all["styles"] = style.copy(style.rect().adjusted(0, style.height() - 24, 0, 0));
        chooser.onCancel();
        auto& menu = *window().menuBar()->actions().first()->menu();
        menu.popup({});
        menu.setActiveAction(window().menu->importPDF);
        all["menu"] = inside(menu, menu.actionGeometry(window().menu->importPDF));
        menu.close();
        return all;
    }
};

} // namespace

TEST_F(Contrast, ChosenLineOfEveryListCanBeRead) {
    // Letters with strokes of whole pixels.
    const QFont usual = QApplication::font();
    QApplication::setFont(QFont(usual.family(), 20, QFont::Bold));
    launch();
    const auto choices = window().menu->appearance->actions();
    for (const auto choice : {Appearance::dark, Appearance::light}) {
        choices.at(choice)->trigger();
        const auto all = highlights();
        for (auto it = all.cbegin(); it != all.cend(); ++it)
            EXPECT_GE(contrast(it.value()), 4.5) << it.key().toStdString() << ", " << choice;
    }
    QApplication::setFont(usual);
}

TEST(Appearance, HasAColourForEveryRole) {
    for (const bool isDark : {true, false}) {
        const QPalette palette = Appearance::palette(isDark);
        for (const auto group : {QPalette::Active, QPalette::Disabled}) {
            for (int role = 0; role < QPalette::NoRole; ++role)
                EXPECT_TRUE(palette.color(group, QPalette::ColorRole(role)).isValid()) << role;
        }
        const QString sheet = Appearance::styleSheet(isDark);
        EXPECT_FALSE(sheet.isEmpty() || sheet.contains(u'@') || sheet.contains("#000000"));
    }
}

// As the session bus calls it.
TEST(Appearance, FollowsTheSystem) {
    Appearance appearance;
    appearance.setChoice(Appearance::system);
    const std::tuple<const char*, const char*, uint, bool> changes[] = {
        {"org.freedesktop.appearance", "color-scheme", 1, true},
        {"org.freedesktop.appearance", "contrast", 0, true},
        {"org.gnome.desktop.interface", "color-scheme", 0, true},
        {"org.freedesktop.appearance", "color-scheme", 2, false}};
    for (const auto& [group, key, value, isDark] : changes) {
        QMetaObject::invokeMethod(&appearance, "systemSettingChanged", Q_ARG(QString, group),
                                  Q_ARG(QString, key), Q_ARG(QDBusVariant, QDBusVariant(value)));
        EXPECT_EQ(QApplication::palette().window().color().lightness() < 128, isDark) << key;
    }
}

TEST(BorderedStyle, EmptyControlsCanBeSeenInADarkWindow) {
    QCheckBox box;
    QRadioButton radio;
    QLineEdit field;
    for (QWidget* control : std::initializer_list<QWidget*>{&box, &radio, &field})
        EXPECT_GT(lineContrast(*control), 45) << control->metaObject()->className();
}
