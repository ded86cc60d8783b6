#include "pages/PageImage.h"

#include "platform/Files.h"
#include "platform/PlatformException.h"

#include <chrono>

namespace {

// A page of 72 points an inch becomes a picture of 144 pixels an inch.
constexpr double pixelsPerPoint = 2.0;

class Stopwatch {
public:
    double lap() {
        const auto now = std::chrono::steady_clock::now();
        const double seconds = std::chrono::duration<double>(now - iStart).count();
        iStart = now;
        return seconds;
    }

private:
    std::chrono::steady_clock::time_point iStart = std::chrono::steady_clock::now();
};

} // namespace

PageTiming PageImageMaker::make(int page, const QString& path, const DrawControl& control) {
    PageTiming timing;
    Stopwatch watch;
    iDocument.page(page - 1).draw(pixelsPerPoint, iBitmap, control);
    timing.draw = watch.lap();
    const auto jpeg = iEncoder.encode(iBitmap, iFactor);
    timing.encode = watch.lap();
    Message error;
    if (!Files::writeWorkingFile(path, jpeg, &error)) {
        throw PlatformException(QStringLiteral("PageWriteFailed"),
                                Message(QStringLiteral("%1: %2")).arg(path, error));
    }
    timing.write = watch.lap();
    return timing;
}
