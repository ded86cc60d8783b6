#pragma once

#include "ui/FlashTemplateOutlineDelegate.h"

#include <QAbstractItemModel>
#include <vector>

class TemplateDefaults;

// The property editor's rows and columns as a Qt model over the outline delegate, which must
// outlive it.
class FlashTemplateModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { key = 0, value = 1 };

    explicit FlashTemplateModel(FlashTemplateOutlineDelegate& source, QObject* parent = nullptr);

    // Call when the template has changed; all rows are invalid then.
    void reloadData();
    // Call when values have been changed from outside.
    void reloadValues();
    // What values are compared with; must outlive this. Without it none counts as changed.
    void setDefaults(const TemplateDefaults* defaults) { iDefaults = defaults; }

    // Properties whose value is not the default: the index's own and those below it, at any depth;
    // of all for an invalid index.
    std::vector<FlashTemplateProperty*> changedIn(const QModelIndex& index) const;
    QString defaultValue(const FlashTemplateProperty& property) const;
    // A value as one says it, in the user's language.
    static QString shownValue(const FlashTemplateProperty& property, const QString& value);

    FlashTemplateOutlineDelegate& source() const { return iSource; }
    // nullptr for an invalid index.
    static FlashTemplateProperty* item(const QModelIndex& index);
    static QString columnName(const QModelIndex& index);
    // The index of the value of the property with that key, at any depth; invalid when there is
    // none.
    QModelIndex valueForKey(const QString& propertyKey, const QModelIndex& parent = {}) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // In the edit role: a value delivered by a cell.
    bool setData(const QModelIndex& index, const QVariant& object, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void reloadValuesBelow(const QModelIndex& parent);
    // The text in the user's language; templates are in English.
    QVariant displayText(const QModelIndex& index) const;
    QString accessibleText(const QModelIndex& index) const;
    bool isChanged(const FlashTemplateProperty& property) const;
    void addChanged(const QModelIndex& index, std::vector<FlashTemplateProperty*>& changed) const;

    FlashTemplateOutlineDelegate& iSource;
    const TemplateDefaults* iDefaults = nullptr;
};
