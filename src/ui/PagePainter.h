#pragma once

#include <QStyledItemDelegate>

// Paints the pages of a PagesModel: their pictures as sheets of paper, with the page numbers below.
class PagePainter : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
