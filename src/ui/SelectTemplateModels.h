#pragma once

#include <QAbstractListModel>

class SelectTemplateWindowDelegate;

// The template chooser's two lists as Qt models over the sheet's delegate, which must outlive them.

// One row per template; names are capitalised.
class TmplListModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit TmplListModel(SelectTemplateWindowDelegate& source, QObject* parent = nullptr);

    // Why a template can't be used; a null text when it can.
    static constexpr int failureRole = Qt::UserRole;

    void reloadData();
    SelectTemplateWindowDelegate& source() const { return iSource; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    SelectTemplateWindowDelegate& iSource;
};

// One row per style of the selected template, with its picture as decoration.
class TmplStylesModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit TmplStylesModel(SelectTemplateWindowDelegate& source, QObject* parent = nullptr);

    void reloadData();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    SelectTemplateWindowDelegate& iSource;
};
