#include "desktop/DesktopProgram.h"

namespace {

class PreviewSizes : public DesktopProgram {
protected:
    void SetUp() override {
        launch();
        window().resize(1100, 800);
    }

    QToolButton& button(const QString& text) const {
        for (auto* made :
             window().findChild<QWidget*>("previewBar")->findChildren<QToolButton*>()) {
            if (made->text() == text)
                return *made;
        }
        throw std::out_of_range(text.toStdString());
    }
    // Whether the page has a window of that size, give or take a pixel of rounding.
    bool pageHas(int width, int height) const {
        return waitForPreview(
            QString("Math.abs(innerWidth - %1) < 3 && Math.abs(innerHeight - %2) < 3")
                .arg(width)
                .arg(height));
    }
};

} // namespace

TEST_F(PreviewSizes, ThePageHasTheWindowOfTheDeviceHoweverSmallItIsDrawn) {
    const QWidget& view = *window().webView;
    const QWidget& stage = *view.parentWidget();
    const std::tuple<const char*, int, int> sizes[] = {
        {"Desktop", 1440, 900}, {"Tablet", 820, 1180}, {"Phone", 390, 844}, {"Turn", 844, 390}};
    for (const auto& [text, width, height] : sizes) {
        button(text).click();
        EXPECT_TRUE(pageHas(width, height)) << text;
        EXPECT_TRUE(stage.rect().contains(view.geometry())) << text;
        EXPECT_LE((stage.rect().center() - view.geometry().center()).manhattanLength(), 2) << text;
    }
    window().resize(1500, 1100);
    EXPECT_TRUE(pageHas(844, 390));
    EXPECT_EQ(view.size(), QSize(844, 390)) << "not enlarged";
    window().menu->reloadPreview->trigger();
    EXPECT_TRUE(pageHas(844, 390));
    button("Window").click();
    EXPECT_EQ(view.geometry(), stage.rect());
    EXPECT_FALSE(button("Turn").isEnabled());
}

TEST_F(PreviewSizes, AreRemembered) {
    button("Tablet").click();
    program.reset();
    program = std::make_unique<BrisleafAppDelegate>();
    launch();
    EXPECT_TRUE(button("Tablet").isChecked());
    EXPECT_TRUE(pageHas(820, 1180));
}
