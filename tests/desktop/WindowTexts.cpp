#include "desktop/WindowTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>
#include <QWebEngineView>

namespace {

void addActions(const QList<QAction*>& actions, QStringList& texts) {
    for (const QAction* action : actions)
        texts << action->text() << action->iconText() << action->toolTip()
              << action->shortcut().toString(QKeySequence::NativeText);
}

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

// What is particular to a kind of widget. What a field holds is the user's own.
void addContent(const QWidget& widget, QStringList& texts) {
    const bool isCaption =
        qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
    if (isCaption)
        texts << widget.property("text").toString();
    if (qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QMenu*>(&widget))
        texts << widget.property("title").toString();
    for (const char* name : {"placeholderText", "plainText"})
        texts << widget.property(name).toString();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        addRows(*box->model(), {}, texts);
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    if (!view || !view->model())
        return;
    for (int column = 0; column < view->model()->columnCount(); ++column)
        texts << view->model()->headerData(column, Qt::Horizontal).toString();
    addRows(*view->model(), {}, texts);
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
    const bool isCaption =
        qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
        qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QMenuBar*>(&widget);
    // Styles are a pixel out in the height of what has a frame.
    return !isCaption || (widget.width() >= widget.sizeHint().width() &&
                          widget.height() + 1 >= widget.sizeHint().height());
}

} // namespace

QStringList WindowTexts::all(const QWidget& window) {
    QStringList texts;
    for (const QWidget* widget : widgetsOf(window)) {
        texts << widget->windowTitle() << widget->toolTip() << widget->whatsThis()
              << widget->accessibleName();
        addContent(*widget, texts);
        addActions(widget->actions(), texts);
    }
    return texts;
}

QStringList WindowTexts::cutOff(const QWidget& window) {
    QStringList found;
    for (const QWidget* widget : widgetsOf(window)) {
        if (widget->window() != &window || !widget->isVisible() || hasRoom(*widget))
            continue;
        QStringList content;
        addContent(*widget, content);
        found << QString("%1 “%2”").arg(widget->metaObject()->className(), content.join(u'|'));
    }
    return found;
}

QStringList WindowTexts::clashingMnemonics(const QWidget& window) {
    QStringList clashes;
    for (const auto* menu : window.findChildren<QMenu*>())
        addClashes(textsOf(menu->actions()), menu->title(), clashes);
    for (const auto* bar : window.findChildren<QMenuBar*>())
        addClashes(textsOf(bar->actions()), "menu bar", clashes);
    QStringList captions;
    for (const QWidget* widget : widgetsOf(window)) {
        const bool isCaption =
            qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget);
        if (isCaption && widget->window() == &window)
            addContent(*widget, captions);
    }
    addClashes(captions, window.windowTitle(), clashes);
    return clashes;
}
