#include "desktop/DrawnTexts.h"
#include "desktop/Views.h"
#include "desktop/WindowTexts.h"

using WindowTexts::contentOf;
using WindowTexts::isCaption;
using WindowTexts::widgetsOf;

namespace {

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

// What a field holds can be longer than it.
bool sticksOut(const DrawnText& drawn, const QWidget& view) {
    if (qobject_cast<const QLineEdit*>(drawn.widget))
        return false;
    const QRectF room(drawn.widget->mapTo(&view, QPoint()), drawn.widget->size());
    return drawn.place.left() < room.left() - 1 || drawn.place.right() > room.right() + 1;
}

// What a list, a menu or a style has shortened, or draws where it can't be seen.
QStringList shortened(QWidget& view) {
    const QString known = WindowTexts::all(view).join(u'\n').remove(u'&');
    QStringList found;
    for (const DrawnText& drawn : DrawnText::in(view)) {
        const bool isElided = drawn.text.contains(u'…') && !known.contains(drawn.text);
        if (isElided || sticksOut(drawn, view))
            found << drawn.widget->metaObject()->className() + (u'|' + drawn.text);
    }
    return found;
}

std::string lines(const QStringList& texts) {
    return texts.join(u'\n').toStdString();
}

class Languages : public Views, public testing::WithParamInterface<const char*> {};

} // namespace

TEST_P(Languages, NothingIsCutOffAndLettersAreUnique) {
    visit({GetParam(), GetParam()}, [](const std::string& name, QWidget& view) {
        // Qt's own, and on most desktops the system's.
        if (qobject_cast<QFileDialog*>(&view) || qobject_cast<QColorDialog*>(&view))
            return;
        EXPECT_EQ(lines(cutOff(view) + shortened(view)), "") << name;
        EXPECT_EQ(lines(clashingMnemonics(view)), "") << name;
        EXPECT_TRUE(view.width() <= 1024 && view.height() <= 700)
            << name << ": " << view.width() << " x " << view.height();
    });
}

INSTANTIATE_TEST_SUITE_P(All, Languages, testing::Values("en", "de", "es", "fr", "it"),
                         [](const auto& language) { return std::string(language.param); });
