#pragma once

#include <QObject>
#include <vector>

class FlashTemplateModel;
class FlashTemplateProperty;
class MainMenu;
class PropertyHistory;
class QModelIndex;
class QPoint;
class QTreeView;

// Sets settings back to their defaults: one, those of a group, or all, each as one step of the
// history, from the menu, by key, by the context menu, and by the sign beside a setting.
class SettingsReset : public QObject {
    Q_OBJECT

public:
    // All must outlive it.
    SettingsReset(QTreeView& view, FlashTemplateModel& model, PropertyHistory& history,
                  const MainMenu& menu);

    // A group: the settings in it. An invalid index: all.
    void reset(const QModelIndex& index);

private:
    void showMenu(const QPoint& at);
    void updateActions();
    QModelIndex current() const;

    QTreeView& iView;
    FlashTemplateModel& iModel;
    PropertyHistory& iHistory;
    const MainMenu& iMenu;
};
