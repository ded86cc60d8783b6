#pragma once

#include "ui/Cell.h"

#include <QFont>
#include <QRectF>
#include <QString>
#include <functional>

class QMouseEvent;
class QPainter;
class QWidget;

// Parts of a cell that a point can lie in; a hit is a combination of them.
enum CellHit { hitNone = 0, hitContentArea = 1, hitEditableTextArea = 2, hitTrackableArea = 4 };

// One field of a table or tree: a text and, in some kinds of cells, a small button. A cell draws
// itself into a rectangle of a view, tells what lies where in it, and follows the mouse over its
// button. Rectangles are in the view's coordinates, y growing downwards, in logical pixels.
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
    bool isMouseDownInInfoButton() const { return iMouseDownInInfoButton; }
    bool isMouseHoveredInInfoButton() const { return iMouseHoveredInInfoButton; }
    void setMouseHoveredInInfoButton(bool hovered) { iMouseHoveredInInfoButton = hovered; }
    // Name of the button's picture in the state that it is in.
    QString infoButtonImage() const;

    // The text's place, and that of the editor while the text is edited.
    virtual QRectF titleRectForBounds(const QRectF& bounds) const = 0;
    // Empty when there is no room for the button.
    virtual QRectF infoButtonRectForBounds(const QRectF& bounds) const = 0;
    virtual QSizeF cellSizeForBounds(const QRectF& bounds) const = 0;
    virtual void drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const = 0;
    virtual int hitTestForEvent(const QPointF& location, const QRectF& inRect) const;

    // A click goes on being followed outside of the cell.
    static bool prefersTrackingUntilMouseUp() { return true; }
    // Follows one left-button press, move or release; true when the click is over with it. The
    // action is called then when it was released inside the button.
    bool trackMouse(const QMouseEvent& event, const QRectF& inRect, QWidget& ofView);

    // The area to be watched for the pointer; a cell that the pointer is in already takes note.
    QRectF addTrackingAreas(const QRectF& inRect, const QPointF& mouseLocation);
    void mouseEntered() { iMouseHoveredInInfoButton = true; }
    void mouseExited() { iMouseHoveredInInfoButton = false; }

    // Where a text that is cut off is shown whole, given the place that a plain cell would take for
    // it, and how it is drawn there.
    static QRectF expansionFrame(const QRectF& plain);
    void drawWithExpansionFrame(QPainter& painter, const QRectF& frame) const;

protected:
    // Zero without a text.
    QSizeF textSize(const QString& text) const;
    QRectF titleRect(const QRectF& bounds, qreal left, qreal top, qreal kept) const;
    QSizeF cellSize(const QRectF& bounds, qreal left, qreal tallest) const;
    void drawText(QPainter& painter, const QRectF& rect, const QString& text,
                  const QColor& color) const;
    void drawTitle(QPainter& painter, const QRectF& bounds) const;
    void drawInfoButton(QPainter& painter, const QRectF& bounds) const;

    // Room beside the title for the button.
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
