#pragma once

#include "ui/IKBTmplStyleItem.h"

#include <QAbstractListModel>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

// The template chooser's two lists as Qt models over data that must outlive them. Call reloadData()
// when it has changed.

// One row per template, from the paths of their folders; names are capitalised.
class TmplListModel : public QAbstractListModel {
    Q_OBJECT

public:
    // Why the template of that name can't be used; a null text when it can.
    using Failure = std::function<QString(const QString& name)>;
    static constexpr int failureRole = Qt::UserRole;

    TmplListModel(const QStringList& paths, Failure failureOf, QObject* parent);

    void reloadData();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const QStringList& iPaths;
    Failure iFailureOf;
};

// One row per style of the selected template, with its picture as decoration.
class TmplStylesModel : public QAbstractListModel {
    Q_OBJECT

public:
    using Items = std::vector<std::unique_ptr<IKBTmplStyleItem>>;

    TmplStylesModel(const Items& items, QObject* parent);

    void reloadData();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const Items& iItems;
};
