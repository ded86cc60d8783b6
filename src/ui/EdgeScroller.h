#pragma once

#include <QDragMoveEvent>
#include <QObject>
#include <QTimer>
#include <memory>

class QAbstractItemView;

// Scrolls a view while something is dragged near its upper or lower edge, in place of Qt: lists
// whose rows run from left to right it scrolls anywhere, for it does not notice where the drag is.
class EdgeScroller : public QObject {
    Q_OBJECT

public:
    // The view owns this object.
    explicit EdgeScroller(QAbstractItemView& view);

protected:
    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    int step() const;
    void scroll();

    QAbstractItemView& iView;
    std::unique_ptr<QDragMoveEvent> iLastMove; // null while nothing is dragged over the view
    QTimer iTimer;
};
