#include "app/desktop/BorderedStyle.h"

#include "ui/Icons.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr qreal corner = 2;
constexpr float lineOpacity = 0.45F;
constexpr int darkBelow = 128;

bool isLined(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton ||
           element == QStyle::PE_FrameLineEdit;
}

// Fusion fills the focus frame, which tints the text; on a selected row its edge is hardly visible.
void drawFocusOfItem(const QStyleOption& option, QPainter& painter) {
    const auto role = option.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText
                                                                    : QPalette::Highlight;
    painter.save();
    painter.setPen(option.palette.color(role));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(1, 1, -2, -2));
    painter.restore();
}

} // namespace

BorderedStyle::BorderedStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void BorderedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    if (element == PE_FrameFocusRect && option->state.testFlag(State_Item)) {
        drawFocusOfItem(*option, *painter);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isDark = option->palette.color(QPalette::Window).lightness() < darkBelow;
    // The border of the focused widget is bright already.
    const bool hasLine =
        element == PE_FrameLineEdit && option->state.testFlag(QStyle::State_HasFocus);
    if (!isLined(element) || !isDark || hasLine)
        return;
    QColor line = option->palette.color(QPalette::Text);
    line.setAlphaF(lineOpacity);
    const QRectF rect = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(line);
    painter->setBrush(Qt::NoBrush);
    if (element == PE_IndicatorRadioButton)
        painter->drawEllipse(rect);
    else
        painter->drawRoundedRect(rect, corner, corner);
    painter->restore();
}

int BorderedStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returned) const {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon BorderedStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                  const QWidget* widget) const {
    switch (which) {
    case SP_MessageBoxInformation:
        return Icons::icon(QStringLiteral("message-info"), QColor("#3a83d0"));
    case SP_MessageBoxQuestion:
        return Icons::icon(QStringLiteral("message-question"), QColor("#3a83d0"));
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return Icons::icon(QStringLiteral("warning"), QColor("#d08a1e"));
    default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
}
