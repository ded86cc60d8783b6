#pragma once

#include "ui/FlashTemplateOutlineDelegate.h"

#include <QAbstractItemModel>

// The property editor's rows and columns as the toolkit's views want them. The outline delegate
// knows what is in them and outlives the model.
class FlashTemplateModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { key = 0, value = 1 };

    explicit FlashTemplateModel(FlashTemplateOutlineDelegate& source, QObject* parent = nullptr);

    // To be called when the template has changed; the rows are others then.
    void reloadData();
    // To be called when values have changed from outside.
    void reloadValues();

    FlashTemplateOutlineDelegate& source() const { return iSource; }
    // nullptr for an index of no row.
    static FlashTemplateProperty* item(const QModelIndex& index);
    static QString columnName(const QModelIndex& index);
    // The value of the property with that key, at whatever depth; invalid when there is none.
    QModelIndex valueForKey(const QString& propertyKey, const QModelIndex& parent = {}) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // In the edit role: what a cell delivers.
    bool setData(const QModelIndex& index, const QVariant& object, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void reloadValuesBelow(const QModelIndex& parent);
    // As the user reads it: templates speak English.
    QVariant displayText(const QModelIndex& index) const;
    QString accessibleText(const QModelIndex& index) const;
    static QString accessibleValue(const FlashTemplateProperty& property);

    FlashTemplateOutlineDelegate& iSource;
};
