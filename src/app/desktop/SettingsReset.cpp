#include "app/desktop/SettingsReset.h"

#include "app/desktop/MainMenu.h"
#include "app/desktop/PropertyHistory.h"
#include "base/NotificationCenter.h"
#include "ui/FlashTemplateModel.h"
#include "ui/PropertyCellDelegate.h"
#include "ui/TemplateTexts.h"

#include <QMenu>
#include <QTreeView>

namespace {

QString titleOf(const QModelIndex& index) {
    return TemplateTexts::shown(FlashTemplateModel::item(index)->title());
}

} // namespace

SettingsReset::SettingsReset(QTreeView& view, FlashTemplateModel& model, PropertyHistory& history,
                             const MainMenu& menu)
    : iView(view), iModel(model), iHistory(history), iMenu(menu) {
    connect(menu.resetSetting, &QAction::triggered, this, [this] {
        if (current().isValid())
            reset(current());
    });
    connect(menu.resetSettings, &QAction::triggered, this, [this] { reset({}); });
    connect(qobject_cast<PropertyCellDelegate*>(view.itemDelegate()),
            &PropertyCellDelegate::resetClicked, this, &SettingsReset::reset);
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            &SettingsReset::updateActions);
    connect(&model, &QAbstractItemModel::dataChanged, this, &SettingsReset::updateActions);
    connect(&model, &QAbstractItemModel::modelReset, this, &SettingsReset::updateActions);
    view.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&view, &QWidget::customContextMenuRequested, this, &SettingsReset::showMenu);
}

QModelIndex SettingsReset::current() const {
    return iView.currentIndex().siblingAtColumn(FlashTemplateModel::key);
}

void SettingsReset::reset(const QModelIndex& index) {
    const std::vector<FlashTemplateProperty*> changed = iModel.changedIn(index);
    if (changed.empty())
        return;
    QString name; // by default that of the setting
    if (!index.isValid())
        //: Stands in "Undo %1".
        name = tr("reset of all settings");
    else if (iModel.hasChildren(index))
        //: Stands in "Undo %1"; %1 is the title of a group of settings.
        name = tr("reset of “%1”").arg(titleOf(index));
    for (FlashTemplateProperty* property : changed)
        property->setValue(iModel.defaultValue(*property));
    iHistory.recordEdits(name);
    iModel.reloadValues();
    for (FlashTemplateProperty* property : changed)
        NotificationCenter::defaultCenter().post(
            QString::fromUtf16(FlashTmplProValueChangedNotification), property);
}

void SettingsReset::showMenu(const QPoint& at) {
    const QModelIndex index = iView.indexAt(at).siblingAtColumn(FlashTemplateModel::key);
    if (index.isValid())
        iView.setCurrentIndex(index.siblingAtColumn(FlashTemplateModel::value));
    QMenu menu(&iView);
    const auto add = [&](const QString& text, const QModelIndex& what) {
        auto* action = menu.addAction(text);
        action->setEnabled(!iModel.changedIn(what).empty());
        connect(action, &QAction::triggered, this,
                [this, kept = QPersistentModelIndex(what)] { reset(kept); });
        return action;
    };
    if (index.isValid()) {
        //: %1 is the title of a setting or of a group of settings.
        auto* one = add(tr("&Reset “%1”").arg(titleOf(index)), index);
        one->setShortcut(iMenu.resetSetting->shortcut());
        if (index.parent().isValid())
            //: %1 is the title of a group of settings.
            add(tr("Reset the &group “%1”").arg(titleOf(index.parent())), index.parent());
    }
    add(tr("Reset &all settings"), {});
    menu.exec(iView.viewport()->mapToGlobal(at));
}

void SettingsReset::updateActions() {
    iMenu.resetSetting->setEnabled(current().isValid() && !iModel.changedIn(current()).empty());
    iMenu.resetSettings->setEnabled(!iModel.changedIn({}).empty());
}
