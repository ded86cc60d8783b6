#pragma once

#include <QMargins>
#include <QObject>
#include <functional>

class QWidget;

// Lays a window over the whole screen so that its frame lies on the screen too. The window manager
// puts the frame around a window only when it is shown, and some tell its size later still; then
// the window is fitted once more.
class WindowFitter : public QObject {
    Q_OBJECT

public:
    using Margins = std::function<QMargins()>;

    // A window that is shown. The margins are those of its frame, in logical pixels.
    explicit WindowFitter(QWidget& window, Margins margins = {});

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();

    QWidget& iWindow;
    Margins iMargins;
    QMargins iFitted;
};
