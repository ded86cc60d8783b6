#include "desktop/WindowTexts.h"

#include <QWebEngineView>
#include <QtWidgets>

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

} // namespace

bool WindowTexts::isCaption(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
}

QStringList WindowTexts::contentOf(const QWidget& widget) {
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

// What lies in the preview is Chromium's own, and a menu bar without room keeps what it hides in a
// menu.
QList<const QWidget*> WindowTexts::widgetsOf(const QWidget& window) {
    const auto* hidden = window.findChild<QToolButton*>("qt_menubar_ext_button");
    QList<const QWidget*> widgets{&window};
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!qobject_cast<const QWebEngineView*>(widget->parent()) &&
            (!hidden || widget != hidden->menu()))
            widgets << widget;
    }
    return widgets;
}

QStringList WindowTexts::all(const QWidget& window) {
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
