#include "ui/Cell.h"

#include "template/FlashTemplateProperty.h"
#include "ui/TemplateTexts.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionViewItem>

namespace {

constexpr int arrowSide = 12;
constexpr int textMargin = 4;

QStyle& styleOf(const QStyleOptionViewItem& row) {
    return row.widget ? *row.widget->style() : *QApplication::style();
}

bool isSelected(const QStyleOptionViewItem& row) {
    return row.state.testFlag(QStyle::State_Selected);
}

} // namespace

void PopUpButtonCell::paint(QPainter& painter, const QStyleOptionViewItem& row) const {
    const QString text = TemplateTexts::shown(iItems.value(iSelected));
    QStyleOption arrow(row);
    arrow.rect = QRect(row.rect.right() - arrowSide - textMargin,
                       row.rect.center().y() - arrowSide / 2, arrowSide, arrowSide);
    const QRect room = row.rect.adjusted(textMargin, 0, -arrowSide - 2 * textMargin, 0);
    const auto role = isSelected(row) ? QPalette::HighlightedText : QPalette::Text;
    painter.setFont(row.font);
    painter.setPen(row.palette.color(role));
    painter.drawText(room, int(Qt::AlignVCenter | Qt::AlignLeft),
                     row.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
    arrow.palette.setColor(QPalette::ButtonText, row.palette.color(role));
    styleOf(row).drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, row.widget);
}

void ButtonCell::showValue(const QString& value) {
    iState = StringUtil::valueAsBool(value);
}

void ButtonCell::paint(QPainter& painter, const QStyleOptionViewItem& row) const {
    QStyleOptionButton box;
    box.QStyleOption::operator=(row);
    box.rect = row.rect.adjusted(textMargin, 0, 0, 0);
    box.text = TemplateTexts::shown(iTitle);
    box.fontMetrics = row.fontMetrics;
    box.state = row.state & ~QStyle::State_HasFocus;
    box.state |= iState ? QStyle::State_On : QStyle::State_Off;
    if (isSelected(row))
        box.palette.setColor(QPalette::WindowText, row.palette.color(QPalette::HighlightedText));
    styleOf(row).drawControl(QStyle::CE_CheckBox, &box, &painter, row.widget);
}
