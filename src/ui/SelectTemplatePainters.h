#pragma once

#include "ui/SelectTmplItemCell.h"

#include <QStyledItemDelegate>
#include <map>
#include <memory>

// Draws the rows of the template list with their cells.
class TmplRowPainter : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Cells hold their icons, so they are kept until the list is read anew.
    void forgetCells() { iCells.clear(); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    SelectTmplItemCell& cellFor(const QModelIndex& index) const;

    mutable std::map<int, std::unique_ptr<SelectTmplItemCell>> iCells;
};

// Draws the styles: a picture with the name beneath it, in the middle of the view's grid.
class TmplStylePainter : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    // The grid's, when the view has one.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // A name that is cut off is shown whole.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    // The room that a style needs at least.
    static QSize smallestCell(const QFontMetrics& font);
};
