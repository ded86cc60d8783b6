#pragma once

#include <QMargins>
#include <QObject>
#include <QTimer>
#include <functional>

class QWidget;

// Resizes a window to fill the screen including its frame. The window manager adds the frame only
// when the window is shown, and some report its size even later; the window is then fitted once
// more.
class WindowFitter : public QObject {
    Q_OBJECT

public:
    using Margins = std::function<QMargins()>;

    // window must be visible. margins returns those of its frame, in logical pixels.
    explicit WindowFitter(QWidget& window, Margins margins = {});

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();
    // Fits the window once more as soon as its frame is known.
    void check();

    QWidget& iWindow;
    Margins iMargins;
    QMargins iFitted;
    QTimer iPatience;
    int iChecks = 0;
};
