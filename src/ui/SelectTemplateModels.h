#pragma once

#include <QAbstractListModel>

class SelectTemplateWindowDelegate;

// The chooser's two lists as the toolkit's views want them. The sheet's delegate knows what is in
// them and outlives them.

// One row a template; the names are shown with capitals.
class TmplListModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit TmplListModel(SelectTemplateWindowDelegate& source, QObject* parent = nullptr);

    // Why a template can't be used, in words; a null text when it can.
    static constexpr int failureRole = Qt::UserRole;

    void reloadData();
    SelectTemplateWindowDelegate& source() const { return iSource; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    SelectTemplateWindowDelegate& iSource;
};

// One row a style of the template that is shown, its picture as the decoration.
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
