#include "ui/EdgeScroller.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QScrollBar>
#include <algorithm>

namespace {

constexpr int edge = 48;
constexpr int interval = 20; // ms
constexpr int longestStep = 12;

} // namespace

EdgeScroller::EdgeScroller(QAbstractItemView& view) : QObject(&view), iView(view) {
    view.viewport()->installEventFilter(this);
    iTimer.setInterval(interval);
    connect(&iTimer, &QTimer::timeout, this, &EdgeScroller::scroll);
}

bool EdgeScroller::eventFilter(QObject* /*viewport*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
        iView.setAutoScroll(false);
        break;
    case QEvent::DragMove:
        iLastMove.reset(static_cast<QDragMoveEvent*>(event)->clone());
        if (step() == 0)
            iTimer.stop();
        else if (!iTimer.isActive())
            iTimer.start();
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        iTimer.stop();
        iLastMove.reset();
        iView.setAutoScroll(true);
        break;
    default:
        break;
    }
    return false;
}

// The nearer to the edge, the faster; 0 away from it.
int EdgeScroller::step() const {
    const int y = iLastMove->position().toPoint().y();
    const int height = iView.viewport()->height();
    const int depth = y < edge ? y - edge : std::max(0, y - (height - 1 - edge));
    return longestStep * depth / edge;
}

// Repeats the last move of the drag, so that the view marks the place that has come under it.
void EdgeScroller::scroll() {
    QScrollBar& bar = *iView.verticalScrollBar();
    const int before = bar.value();
    bar.setValue(before + step());
    if (bar.value() == before)
        return;
    const std::unique_ptr<QDragMoveEvent> move(iLastMove->clone());
    QCoreApplication::sendEvent(iView.viewport(), move.get());
}
