#pragma once

#include "ui/Cell.h"

#include <QFont>
#include <QRectF>
#include <QString>
#include <functional>

class QMouseEvent;
class QPainter;
class QWidget;

// Parts of a cell at a point; combined as flags.
enum CellHit { hitNone = 0, hitContentArea = 1, hitEditableTextArea = 2, hitTrackableArea = 4 };

// A field of a table or tree: a text and, in some subclasses, a small button. A cell draws itself
// into a rectangle of a view, does hit testing, and tracks the mouse over its button. Rectangles
// are in view coordinates, y downwards, in logical pixels.
class TextFieldCell : public Cell {
public:
    using Action = std::function<void(TextFieldCell& sender)>;

    explicit TextFieldCell(const QString& text = QString()) : iTitle(text) {}

    QString title() const { return iTitle; }
    void setTitle(const QString& title) { iTitle = title; }
    QFont font() const { return iFont; }
    void setFont(const QFont& font) { iFont = font; }
    // Whether the cell's row is selected.
    bool isHighlighted() const { return iHighlighted; }
    void setHighlighted(bool highlighted) { iHighlighted = highlighted; }

    // Called with the cell when a click is released inside the button.
    const Action& infoButtonAction() const { return iInfoButtonAction; }
    void setInfoButtonAction(Action action) { iInfoButtonAction = std::move(action); }
    // Name of the button's picture for its current state.
    QString infoButtonImage() const;

    void setRow(const QStyleOptionViewItem& row, bool isHovered) override;
    void paint(QPainter& painter, const QStyleOptionViewItem& row) const override;
    // The frame of a cell in a row: cells are designed for single-line rows, and centred in higher
    // ones.
    static QRectF frameIn(const QRect& row);

    // The rectangle of the text, and of the editor while the text is edited.
    virtual QRectF titleRectForBounds(const QRectF& bounds) const = 0;
    // Empty when there is no room for the button.
    virtual QRectF infoButtonRectForBounds(const QRectF& bounds) const = 0;
    virtual QSizeF cellSizeForBounds(const QRectF& bounds) const = 0;
    virtual void drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const = 0;
    virtual int hitTestForEvent(const QPointF& location, const QRectF& inRect) const;

    // A click is tracked outside of the cell, too.
    static bool prefersTrackingUntilMouseUp() { return true; }
    // Tracks a left-button press, move or release; true when it ends the click. Calls the action if
    // it was released inside the button.
    bool trackMouse(const QMouseEvent& event, const QRectF& inRect, QWidget& ofView);

    // The area to track the pointer in; updates the hover state if the pointer is inside already.
    QRectF addTrackingAreas(const QRectF& inRect, const QPointF& mouseLocation);
    void mouseEntered() { iMouseHoveredInInfoButton = true; }
    void mouseExited() { iMouseHoveredInInfoButton = false; }

    // The expansion tool tip of an elided text: its rectangle, given that of a plain cell, and how
    // it is drawn.
    static QRectF expansionFrame(const QRectF& plain);
    void drawWithExpansionFrame(QPainter& painter, const QRectF& frame) const;

protected:
    // Zero for an empty text.
    QSizeF textSize(const QString& text) const;
    QRectF titleRect(const QRectF& bounds, qreal left, qreal top, qreal kept) const;
    QSizeF cellSize(const QRectF& bounds, qreal left, qreal tallest) const;
    void drawText(QPainter& painter, const QRectF& rect, const QString& text,
                  const QColor& color) const;
    void drawTitle(QPainter& painter, const QRectF& bounds) const;
    virtual QColor titleColor() const;
    void drawInfoButton(QPainter& painter, const QRectF& bounds) const;

    // Space beside the title for the button.
    static constexpr qreal buttonRoom = 17;
    static constexpr qreal buttonSide = 13;

private:
    QString iTitle;
    QFont iFont;
    bool iHighlighted = false;
    bool iMouseDownInInfoButton = false;
    bool iMouseHoveredInInfoButton = false;
    Action iInfoButtonAction;
};
