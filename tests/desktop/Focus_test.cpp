#include "app/desktop/Appearance.h"
#include "desktop/ColorContrast.h"
#include "desktop/DesktopProgram.h"

namespace {

// What stands out from what is around it.
constexpr double visible = 3;

// How many pixels a control changes so that they can be seen when it gets the keyboard.
int pixelsOfFocus(QWidget& control, QWidget& other) {
    other.setFocus();
    QTest::qWait(20);
    const QImage without = control.grab().toImage();
    control.setFocus(Qt::TabFocusReason);
    QTest::qWait(20);
    const QImage with = control.grab().toImage();
    const QRgb ground = control.palette().color(QPalette::Window).rgb();
    int pixels = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            const QRgb now = with.pixel(x, y);
            const bool isSeen = ColorContrast::between(now, ground) >= visible ||
                                ColorContrast::between(now, without.pixel(x, y)) >= visible;
            pixels += now != without.pixel(x, y) && isSeen ? 1 : 0;
        }
    }
    return pixels;
}

bool takesKeyboard(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus &&
           !widget.inherits("QQuickWidget") && !widget.inherits("QWebEngineView") &&
           !widget.inherits("QPlainTextEdit");
}

class Focus : public DesktopProgram {
protected:
    // One of each kind in the window.
    static void check(QWidget& in, const std::string& how) {
        in.show();
        in.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&in));
        // As after the first Tab.
        in.setAttribute(Qt::WA_KeyboardFocusChange);
        QList<QWidget*> controls;
        for (auto* widget : in.findChildren<QWidget*>()) {
            if (takesKeyboard(*widget) && widget->window() == &in)
                controls << widget;
        }
        ASSERT_GT(controls.size(), 1);
        QHash<QString, bool> seen;
        for (QWidget* control : controls) {
            const QString kind = control->metaObject()->className() + control->objectName();
            if (std::exchange(seen[kind], true))
                continue;
            QWidget& other = control == controls[0] ? *controls[1] : *controls[0];
            EXPECT_GE(pixelsOfFocus(*control, other), control->fontMetrics().height())
                << kind.toStdString() << ", " << how;
        }
    }
};

} // namespace

TEST_F(Focus, IsSeenOnEveryKindOfControl) {
    launch();
    program->selecteTmplWindow().prepairToTmpl("float");
    for (const auto choice : {Appearance::dark, Appearance::light}) {
        window().menu->appearance->actions().at(choice)->trigger();
        const std::string how = choice == Appearance::dark ? "dark" : "light";
        check(window(), how);
        for (QDialog* sheet : std::initializer_list<QDialog*>{
                 &program->importWindow().window(), &program->ouputWindow().window(),
                 &program->selecteTmplWindow().window()}) {
            check(*sheet, how);
            sheet->hide();
        }
    }
}
