#include "ui/SelectTemplateModels.h"

#include "ui/PlainText.h"
#include "ui/SelectTemplateWindowDelegate.h"
#include "ui/TemplateTexts.h"

TmplListModel::TmplListModel(SelectTemplateWindowDelegate& source, QObject* parent)
    : QAbstractListModel(parent), iSource(source) {}

void TmplListModel::reloadData() {
    beginResetModel();
    endResetModel();
}

int TmplListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : iSource.numberOfRowsInTableView();
}

QVariant TmplListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString name = iSource.objectValueForTableColumn(QString(), index.row());
    switch (role) {
    case Qt::DisplayRole:
        return TemplateTexts::templateName(name);
    case Qt::ToolTipRole:
        return PlainText::toolTip(iSource.failureOf(name));
    case Qt::AccessibleDescriptionRole:
    case failureRole:
        return iSource.failureOf(name);
    default:
        return {};
    }
}

TmplStylesModel::TmplStylesModel(SelectTemplateWindowDelegate& source, QObject* parent)
    : QAbstractListModel(parent), iSource(source) {}

void TmplStylesModel::reloadData() {
    beginResetModel();
    endResetModel();
}

int TmplStylesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : iSource.numberOfItemsInImageBrowser();
}

QVariant TmplStylesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const IKBTmplStyleItem& item = iSource.itemAtIndex(index.row());
    if (role == Qt::DisplayRole)
        return TemplateTexts::styleName(item.imageTitle());
    return role == Qt::DecorationRole ? QVariant(item.imageRepresentation()) : QVariant();
}
