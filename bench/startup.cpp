// Starts the desktop program as its own main function does, and prints when each milestone was
// reached, in milliseconds after the time given as argument (monotonic clock, nanoseconds): main
// function, application, window with a published preview, book visible.
// bench/startup.py runs it.

#include "app/desktop/ApplicationSetup.h"
#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/PreviewView.h"

#include <QApplication>
#include <QLocale>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int pollInterval = 5;      // ms
constexpr int longestStart = 60'000; // ms

// True two frames after the book is ready: the first one is on the screen then.
constexpr char16_t isShown[] = uR"(
    if (window.startFrames === undefined &&
        document.querySelector('#folvero[data-state="ready"]')) {
        window.startFrames = 0;
        const count = () => { ++window.startFrames; requestAnimationFrame(count); };
        requestAnimationFrame(count);
    }
    window.startFrames >= 2
)";

double millisecondsSince(long long start) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return double(std::chrono::nanoseconds(now).count() - start) / 1e6;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: folvero-bench-startup START\n", stderr);
        return 2;
    }
    const long long start = std::atoll(argv[1]);
    const double inMain = millisecondsSince(start);
    QApplication app(argc, argv);
    setUpApplication(QLocale::system().uiLanguages());
    const double hasApplication = millisecondsSince(start);
    BrisleafAppDelegate controller;
    QTimer poll;
    QTimer::singleShot(0, &controller, [&] {
        controller.applicationDidFinishLaunching();
        const double hasWindow = millisecondsSince(start);
        QObject::connect(&poll, &QTimer::timeout, &app, [=, &controller] {
            controller.window()->webView->page()->runJavaScript(
                QString::fromUtf16(isShown), [=](const QVariant& value) {
                    if (!value.toBool())
                        return;
                    std::printf("%.1f %.1f %.1f %.1f\n", inMain, hasApplication, hasWindow,
                                millisecondsSince(start));
                    QCoreApplication::exit();
                });
        });
        poll.start(pollInterval);
    });
    QTimer::singleShot(longestStart, &app, [] { QCoreApplication::exit(1); });
    return QApplication::exec();
}
