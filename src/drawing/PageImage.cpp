#include "drawing/PageImage.h"

#include "base/PlatformException.h"
#include "base/Stopwatch.h"
#include "system/Files.h"

namespace {

// 72 points per inch become 144 pixels per inch.
constexpr double pixelsPerPoint = 2.0;

} // namespace

PageTiming PageImageMaker::make(int page, const QString& path, const DrawControl& control) {
    PageTiming timing;
    Stopwatch watch;
    DrawablePage(iDocument, page - 1, control).draw(pixelsPerPoint, iBitmap);
    timing.draw = watch.lap();
    const auto jpeg = iEncoder.encode(iBitmap, iFactor);
    timing.encode = watch.lap();
    Message error;
    if (!Files::writeWorkingFile(path, jpeg, &error)) {
        throw PlatformException(ErrorKind::pageWrite,
                                Message(QStringLiteral("%1: %2")).arg(path, error));
    }
    timing.write = watch.lap();
    return timing;
}
