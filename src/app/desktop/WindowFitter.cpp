#include "app/desktop/WindowFitter.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace {

constexpr int checkInterval = 100; // ms
constexpr int maxChecks = 50;

} // namespace

WindowFitter::WindowFitter(QWidget& window, Margins margins)
    : QObject(&window), iWindow(window), iMargins(std::move(margins)) {
    if (!iMargins)
        iMargins = [this] {
            const QWindow* native = iWindow.windowHandle();
            return native ? native->frameMargins() : QMargins();
        };
    // Not on the native window, which is recreated when a web view is added.
    iWindow.installEventFilter(this);
    fit();
    // The last event may come before the frame, whose size no event reports.
    iPatience.setInterval(checkInterval);
    connect(&iPatience, &QTimer::timeout, this, &WindowFitter::check);
    iPatience.start();
}

void WindowFitter::check() {
    if (iFitted.isNull() && !iMargins().isNull())
        fit();
    if (!iFitted.isNull() || ++iChecks == maxChecks)
        iPatience.stop();
}

// The whole screen, including the part covered by system bars.
void WindowFitter::fit() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    iFitted = iMargins();
    iWindow.setGeometry(QRect({0, 0}, screen ? screen->size() : QSize(0, 0)) - iFitted);
    iWindow.update();
}

bool WindowFitter::eventFilter(QObject* watched, QEvent* event) {
    const bool comesWithAFrame =
        event->type() == QEvent::Paint || event->type() == QEvent::WindowActivate;
    if (comesWithAFrame && iFitted.isNull())
        QMetaObject::invokeMethod(this, &WindowFitter::check, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}
