#include "ui/FlashTemplateModel.h"

#include "template/TemplateDefaults.h"
#include "ui/PlainText.h"
#include "ui/TemplateTexts.h"

#include <QFont>

FlashTemplateModel::FlashTemplateModel(FlashTemplateOutlineDelegate& source, QObject* parent)
    : QAbstractItemModel(parent), iSource(source) {}

void FlashTemplateModel::reloadData() {
    beginResetModel();
    endResetModel();
}

void FlashTemplateModel::reloadValues() {
    reloadValuesBelow({});
}

void FlashTemplateModel::reloadValuesBelow(const QModelIndex& parent) {
    const int rows = rowCount(parent);
    if (rows == 0)
        return;
    Q_EMIT dataChanged(index(0, key, parent), index(rows - 1, value, parent));
    for (int row = 0; row < rows; ++row)
        reloadValuesBelow(index(row, key, parent));
}

bool FlashTemplateModel::isChanged(const FlashTemplateProperty& property) const {
    return iDefaults && iDefaults->isChanged(property);
}

QString FlashTemplateModel::defaultValue(const FlashTemplateProperty& property) const {
    return iDefaults ? iDefaults->valueFor(property) : property.defaultValue();
}

void FlashTemplateModel::addChanged(const QModelIndex& index,
                                    std::vector<FlashTemplateProperty*>& changed) const {
    if (index.isValid() && isChanged(*item(index)))
        changed.push_back(item(index));
    for (int row = 0; row < rowCount(index); ++row)
        addChanged(this->index(row, key, index), changed);
}

std::vector<FlashTemplateProperty*> FlashTemplateModel::changedIn(const QModelIndex& index) const {
    std::vector<FlashTemplateProperty*> changed;
    addChanged(index.siblingAtColumn(key), changed);
    return changed;
}

FlashTemplateProperty* FlashTemplateModel::item(const QModelIndex& index) {
    return static_cast<FlashTemplateProperty*>(index.internalPointer());
}

QString FlashTemplateModel::columnName(const QModelIndex& index) {
    return index.column() == key ? QStringLiteral("key") : QStringLiteral("value");
}

QModelIndex FlashTemplateModel::valueForKey(const QString& propertyKey,
                                            const QModelIndex& parent) const {
    for (int row = 0; row < rowCount(parent); ++row) {
        const QModelIndex title = index(row, key, parent);
        if (item(title)->key() == propertyKey)
            return title.siblingAtColumn(value);
        if (const QModelIndex below = valueForKey(propertyKey, title); below.isValid())
            return below;
    }
    return {};
}

QModelIndex FlashTemplateModel::index(int row, int column, const QModelIndex& parent) const {
    FlashTemplateProperty* child = iSource.child(row, item(parent));
    return child && column >= 0 && column <= value ? createIndex(row, column, child)
                                                   : QModelIndex();
}

QModelIndex FlashTemplateModel::parent(const QModelIndex& index) const {
    FlashTemplateProperty* enclosing = index.isValid() ? item(index)->parent() : nullptr;
    if (!enclosing)
        return {};
    const int count = iSource.numberOfChildrenOfItem(enclosing->parent());
    for (int row = 0; row < count; ++row) {
        if (iSource.child(row, enclosing->parent()) == enclosing)
            return createIndex(row, key, enclosing);
    }
    return {};
}

int FlashTemplateModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : iSource.numberOfChildrenOfItem(item(parent));
}

int FlashTemplateModel::columnCount(const QModelIndex& /*parent*/) const {
    return value + 1;
}

QVariant FlashTemplateModel::displayText(const QModelIndex& index) const {
    const QVariant text = iSource.objectValueForTableColumn(columnName(index), item(index));
    const bool isWord = index.column() == key || item(index)->propertyType() == pt_list;
    return isWord ? TemplateTexts::shown(text.toString()) : text;
}

QString FlashTemplateModel::shownValue(const FlashTemplateProperty& property,
                                       const QString& value) {
    switch (property.propertyType()) {
    case pt_list:
        return TemplateTexts::shown(value);
    case pt_bool:
        return StringUtil::valueAsBool(value) ? tr("Yes") : tr("No");
    default:
        return value;
    }
}

// The keyboard focus stays in the value column, so a value's accessible text includes its setting's
// name.
QString FlashTemplateModel::accessibleText(const QModelIndex& index) const {
    const FlashTemplateProperty& property = *item(index);
    const QString title = displayText(index.siblingAtColumn(key)).toString();
    if (index.column() == key || property.propertyType() == pt_composite)
        return title;
    //: What a screen reader says: the name of a setting and its value.
    const QString text = tr("%1: %2").arg(title, shownValue(property, property.value()));
    //: What a screen reader says of a setting that is not as the template has it; %1 is its name
    //: and value.
    return isChanged(property) ? tr("%1, changed").arg(text) : text;
}

QVariant FlashTemplateModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const bool isGroup = item(index)->propertyType() == pt_composite;
    switch (role) {
    case Qt::DisplayRole:
        return displayText(index);
    case Qt::EditRole:
        return iSource.objectValueForTableColumn(columnName(index), item(index));
    case Qt::ToolTipRole:
        return PlainText::toolTip(TemplateTexts::shown(item(index)->desc()));
    case Qt::AccessibleDescriptionRole:
        return TemplateTexts::shown(item(index)->desc());
    case Qt::FontRole: {
        QFont font;
        font.setBold(isGroup && index.column() == key);
        return font;
    }
    case Qt::AccessibleTextRole:
        return accessibleText(index);
    default:
        return {};
    }
}

bool FlashTemplateModel::setData(const QModelIndex& index, const QVariant& object, int role) {
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    iSource.setObjectValue(object, columnName(index), item(index));
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags FlashTemplateModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    const bool isEdited = index.column() == value && item(index)->propertyType() != pt_composite &&
                          !item(index)->readOnly();
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return isEdited ? flags | Qt::ItemIsEditable : flags;
}

QVariant FlashTemplateModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == key ? tr("Property") : tr("Value");
}
