#pragma once

#include "ui/SelectTmplItemCell.h"

#include <QStyledItemDelegate>
#include <functional>
#include <map>
#include <memory>

// Draws the rows of the template list with their cells.
class TmplRowPainter : public QStyledItemDelegate {
    Q_OBJECT

public:
    // makeCell returns a new cell for a row.
    using CellMaker = std::function<std::unique_ptr<SelectTmplItemCell>(int row)>;

    TmplRowPainter(CellMaker makeCell, QObject* parent)
        : QStyledItemDelegate(parent), iMakeCell(std::move(makeCell)) {}

    // Cells cache their icons, so they are kept until the list is reloaded.
    void forgetCells() { iCells.clear(); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    SelectTmplItemCell& cellFor(const QModelIndex& index) const;

    CellMaker iMakeCell;
    mutable std::map<int, std::unique_ptr<SelectTmplItemCell>> iCells;
};

// Draws the styles: a picture with the name below it, centred in the view's grid.
class TmplStylePainter : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    // The grid size, if the view has one.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // Shows the full text of an elided name.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    // The minimum size of a style's cell.
    static QSize smallestCell(const QFontMetrics& font);
};
