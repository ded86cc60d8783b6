#pragma once

#include "util/FoldedText.h"

#include <QPersistentModelIndex>
#include <QWidget>

class QAbstractItemModel;
class QLabel;
class QLineEdit;
class QTreeView;

// A field that reduces the property editor to the settings that have all the words typed: in title,
// explanation, choices, or the title of their group. Letter case and accents do not matter.
class SettingsSearch : public QWidget {
    Q_OBJECT

public:
    // view: of a FlashTemplateModel, which it need not have yet; must outlive this.
    explicit SettingsSearch(QTreeView& view, QWidget* parent = nullptr);

    QLineEdit* field() const { return iField; }
    // Where one types next.
    void begin();
    // Call when the view has got its model.
    void follow(QAbstractItemModel& model);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void search();
    // Returns whether a row below the parent matches. context: folded titles of its groups.
    bool filter(const QModelIndex& parent, const QString& context);
    bool matches(const QString& text) const;
    void rememberExpanded(const QModelIndex& parent = {});
    void restoreExpanded();
    void showNothingFound(bool isEmpty);
    void goToSettings();
    void updateColors();

    QTreeView& iView;
    QLineEdit* iField;
    QAction* iMagnifier;
    QAction* iClear;
    QLabel* iNothing;
    TextFolder iFolder;
    QStringList iWords;
    QList<QPersistentModelIndex> iCollapsed; // before the search
    bool iIsSearching = false;
};
