#include "app/desktop/Appearance.h"
#include "app/desktop/BorderedStyle.h"
#include "desktop/ColorContrast.h"
#include "desktop/DesktopProgram.h"
#include "desktop/DrawnTexts.h"
#include "desktop/Views.h"

#include <algorithm>

namespace {

// Letters with strokes of whole pixels.
constexpr int scale = 3;
constexpr double readable = 4.5;

// Of what stands out most in a part of a picture against the colour that it has most of.
double contrast(const QImage& picture, const QRect& part) {
    QHash<QRgb, int> colors;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            ++colors[picture.pixel(x, y)];
    }
    const QRgb ground = std::max_element(colors.cbegin(), colors.cend()).key();
    double best = 1;
    for (auto it = colors.cbegin(); it != colors.cend(); ++it)
        best = std::max(best, ColorContrast::between(it.key(), ground));
    return best;
}

QImage enlarged(QWidget& view) {
    QImage picture(view.size() * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    view.render(&picture);
    return picture;
}

// What can't be used may be faint, and an editor covers what it edits.
bool isToBeRead(const DrawnText& drawn, const QWidget& view) {
    const QPoint middle = drawn.place.center().toPoint();
    const QWidget& widget = *drawn.widget;
    const QWidget* above = view.childAt(middle);
    const bool isCovered = above && above != &widget && widget.isAncestorOf(above);
    const auto* menu = qobject_cast<const QMenu*>(&widget);
    const QAction* action = menu ? menu->actionAt(menu->mapFrom(&view, middle)) : nullptr;
    return widget.isEnabled() && !isCovered && (!action || action->isEnabled()) &&
           !drawn.text.trimmed().isEmpty();
}

// Where its widget shows it; empty for a line that is scrolled half out of sight.
QRect seenPart(const DrawnText& drawn, const QWidget& view) {
    const QRectF room(drawn.widget->mapTo(&view, QPoint()), drawn.widget->size());
    const QRectF seen = drawn.place & room & QRectF(view.rect());
    if (seen.height() < drawn.place.height() * 0.7)
        return {};
    return QRectF(seen.topLeft() * scale, seen.size() * scale).toRect();
}

QStringList unreadable(QWidget& view) {
    const QImage picture = enlarged(view);
    QStringList found;
    for (const DrawnText& drawn : DrawnText::in(view)) {
        const QRect part = seenPart(drawn, view) & picture.rect();
        if (part.isEmpty() || !isToBeRead(drawn, view))
            continue;
        if (const double got = contrast(picture, part); got < readable)
            found << QString("%1 “%2” has %3")
                         .arg(drawn.widget->metaObject()->className(), drawn.text)
                         .arg(got, 0, 'f', 2);
    }
    return found;
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

class Contrast : public Views, public testing::WithParamInterface<Appearance::Choice> {};

} // namespace

TEST_P(Contrast, EveryTextCanBeRead) {
    std::size_t texts = 0;
    const auto look = [&texts](const std::string& name, QWidget& view) {
        EXPECT_EQ(unreadable(view).join('\n').toStdString(), "") << name;
        texts += DrawnText::in(view).size();
    };
    visit({GetParam() == Appearance::dark ? "dark" : "light", "en", GetParam()}, look);
    EXPECT_GT(texts, 1000u);
}

INSTANTIATE_TEST_SUITE_P(All, Contrast, testing::Values(Appearance::light, Appearance::dark));

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
