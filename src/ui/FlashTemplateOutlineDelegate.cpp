#include "ui/FlashTemplateOutlineDelegate.h"

#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "ui/FlashTmplColorCell.h"
#include "ui/FlashTmplFileCell.h"
#include "util/ColorCategory.h"

#include <QCoreApplication>

namespace {

const QString valueColumn = QStringLiteral("value");

bool isValueOf(const QString& column, FlashTemplateOutlineDelegate::Item item) {
    return item && column == valueColumn;
}

// Null when the index is not that of a choice.
QString acceptedText(const QVariant& object, const FlashTemplateProperty& property) {
    switch (property.propertyType()) {
    case pt_color:
        Log::system(QStringLiteral("color value is:%1").arg(object.toString()));
        return object.toString();
    case pt_list:
        return FlashTemplateOutlineDelegate::choices(property).value(object.toInt());
    case pt_bool:
        return object.toBool() ? QStringLiteral("YES") : QStringLiteral("NO");
    default:
        return object.toString();
    }
}

} // namespace

FlashTemplateOutlineDelegate::FlashTemplateOutlineDelegate()
    : iFilePanel(Panels::chooseFile), iColorPanel(Panels::chooseColor) {}

QStringList FlashTemplateOutlineDelegate::choices(const FlashTemplateProperty& property) {
    return property.valueSource().split(u',');
}

QStringList FlashTemplateOutlineDelegate::allowedTypes(const QString& valueSource) {
    QString filter = valueSource;
    filter.remove(u';');
    const QStringList parts = filter.split(u'|');
    return (parts.size() > 1 ? parts[1] : filter).split(QStringLiteral("*."));
}

int FlashTemplateOutlineDelegate::numberOfChildrenOfItem(Item item) const {
    if (!iFlashTmpl)
        return 0;
    return int(item ? item->childCount() : iFlashTmpl->properties().size());
}

FlashTemplateOutlineDelegate::Item FlashTemplateOutlineDelegate::child(int index,
                                                                       Item ofItem) const {
    if (index < 0 || index >= numberOfChildrenOfItem(ofItem))
        return nullptr;
    const auto& children = ofItem ? ofItem->childProperties() : iFlashTmpl->properties();
    return children[std::size_t(index)].get();
}

bool FlashTemplateOutlineDelegate::isItemExpandable(Item item) const {
    return iFlashTmpl && item && item->childCount() > 0;
}

QVariant FlashTemplateOutlineDelegate::objectValueForTableColumn(const QString& column,
                                                                 Item byItem) const {
    if (!iFlashTmpl || !byItem)
        return {};
    if (column.isNull() || column == QStringLiteral("key"))
        return byItem->title().isNull()
                   ? QCoreApplication::translate("FlashTemplateOutlineDelegate", "(Untitled)")
                   : byItem->title();
    if (column != valueColumn)
        return {};
    if (byItem->propertyType() == pt_file)
        return QStringLiteral("go go bay,hello world....just ok");
    if (byItem->propertyType() == pt_bool)
        return StringUtil::valueAsBool(byItem->value()) ? 1 : 0;
    return byItem->value().isNull()
               ? QCoreApplication::translate("FlashTemplateOutlineDelegate", "(Unknown)")
               : byItem->value();
}

std::unique_ptr<Cell> FlashTemplateOutlineDelegate::dataCellForTableColumn(const QString& column,
                                                                           Item item) {
    if (!isValueOf(column, item))
        return nullptr;
    switch (item->propertyType()) {
    case pt_list:
        return listCell(*item);
    case pt_bool:
        return std::make_unique<ButtonCell>(item->aTitle());
    default:
        return fieldCellForTableColumn(column, item);
    }
}

std::unique_ptr<TextFieldCell>
FlashTemplateOutlineDelegate::fieldCellForTableColumn(const QString& column, Item item) {
    if (!isValueOf(column, item))
        return nullptr;
    const QString value = item->value();
    switch (item->propertyType()) {
    case pt_color: {
        auto cell = std::make_unique<FlashTmplColorCell>(value);
        cell->setColor(MyColorOper::colorFromHexRGB(value));
        cell->setPro(item);
        cell->setInfoButtonAction([this](TextFieldCell& sender) {
            onSelectColor(static_cast<FlashTmplColorCell&>(sender));
        });
        return cell;
    }
    case pt_file: {
        auto cell = std::make_unique<FlashTmplFileCell>(value);
        cell->setPro(item);
        cell->setInfoButtonAction([this](TextFieldCell& sender) {
            onSelectFile(static_cast<FlashTmplFileCell&>(sender));
        });
        return cell;
    }
    default:
        return nullptr;
    }
}

std::unique_ptr<Cell>
FlashTemplateOutlineDelegate::listCell(const FlashTemplateProperty& property) const {
    auto cell = std::make_unique<PopUpButtonCell>(choices(property));
    // A known value selects the second item for now; the right one is selected before each display.
    if (cell->itemTitles().contains(property.value()))
        cell->selectItemAtIndex(1);
    return cell;
}

void FlashTemplateOutlineDelegate::willDisplayCell(Cell& cell, const QString& forTableColumn,
                                                   Item item) const {
    if (isValueOf(forTableColumn, item))
        cell.showValue(item->value());
}

void FlashTemplateOutlineDelegate::setObjectValue(const QVariant& object,
                                                  const QString& forTableColumn, Item byItem) {
    if (!isValueOf(forTableColumn, byItem))
        return;
    const QString value = acceptedText(object, *byItem);
    if (value.isNull() || byItem->value() == value)
        return;
    byItem->setValue(value);
    NotificationCenter::defaultCenter().post(
        QString::fromUtf16(FlashTmplProValueChangedNotification), byItem);
}

void FlashTemplateOutlineDelegate::outlineViewSelectionDidChange() {
    NotificationCenter::defaultCenter().post(QString::fromUtf16(UpdateFlashTmplProTipNotification),
                                             this);
}

void FlashTemplateOutlineDelegate::onSelectFile(FlashTmplFileCell& sender) {
    const QString filter = sender.pro() ? sender.pro()->valueSource() : QString();
    const auto file = iFilePanel(sender.title(), allowedTypes(filter));
    // Cancelling clears the file: there is no other way to have none.
    sender.setFileName2(file.value_or(QStringLiteral("")));
}

void FlashTemplateOutlineDelegate::onSelectColor(FlashTmplColorCell& sender) {
    Log::system(QStringLiteral("Seleting color now"));
    FlashTemplateProperty* const item = sender.pro();
    sender.setColor2(iColorPanel(sender.color(), [&](const QColor& color) {
        if (item)
            tryValue(*item, MyColorOper::colorToHexRGB(color));
    }));
    if (item)
        tryValue(*item, item->value());
}

void FlashTemplateOutlineDelegate::tryValue(FlashTemplateProperty& item,
                                            const QString& value) const {
    if (iTrial)
        iTrial(item, value);
}

void FlashTemplateOutlineDelegate::openPanelDidEnd(const QString& panelFile, int /*returnCode*/,
                                                   FlashTmplFileCell& contextInfo) const {
    Log::system(QStringLiteral("die end,%1").arg(panelFile));
    Log::system(QStringLiteral("title is:%1").arg(contextInfo.title()));
    contextInfo.setFileName2(panelFile);
}
