#include "ui/SelectTemplateModels.h"

#include "system/Files.h"
#include "template/StyleFolders.h"
#include "ui/PlainText.h"
#include "ui/TemplateTexts.h"

TmplListModel::TmplListModel(const QStringList& paths, Failure failureOf, QObject* parent)
    : QAbstractListModel(parent), iPaths(paths), iFailureOf(std::move(failureOf)) {}

void TmplListModel::reloadData() {
    beginResetModel();
    endResetModel();
}

int TmplListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(iPaths.size());
}

QVariant TmplListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString name = Files::lastPathComponent(iPaths.at(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return TemplateTexts::templateName(name);
    case Qt::ToolTipRole:
        return PlainText::toolTip(iFailureOf(name));
    case Qt::AccessibleDescriptionRole:
    case failureRole:
        return iFailureOf(name);
    default:
        return {};
    }
}

TmplStylesModel::TmplStylesModel(const Items& items, QObject* parent)
    : QAbstractListModel(parent), iItems(items) {}

void TmplStylesModel::reloadData() {
    beginResetModel();
    endResetModel();
}

int TmplStylesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(iItems.size());
}

QVariant TmplStylesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const IKBTmplStyleItem& item = *iItems.at(std::size_t(index.row()));
    const bool isOwn = StyleFolders::isOwn(item.imageID());
    if (role == Qt::DisplayRole)
        return isOwn ? item.imageTitle() : TemplateTexts::styleName(item.imageTitle());
    if (role == Qt::AccessibleDescriptionRole && isOwn)
        return tr("A style of your own");
    return role == Qt::DecorationRole ? QVariant(item.imageRepresentation()) : QVariant();
}
