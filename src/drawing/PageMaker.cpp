#include "drawing/PageMaker.h"

#include "base/PlatformException.h"

namespace {

// 72 points per inch become 144 pixels per inch.
constexpr double pixelsPerPoint = 2.0;

// Integer division: every quality below 100 gives the smallest files.
constexpr double compressionFactor(int quality) {
    const int wholeHundreds = quality / 100;
    return wholeHundreds;
}

} // namespace

PageMaker::PageMaker(const DrawablePDF& document, QString folder, int quality)
    : iDocument(document),
      iFolder(std::move(folder)),
      iFactor(compressionFactor(quality)),
      iWebPageMaker(iEncoder, iFactor) {}

MadePage PageMaker::make(const PageOrder& order, const DrawControl& control) {
    MadePage made;
    Stopwatch watch;
    const DrawablePage drawn(iDocument, order.cut, control,
                             order.wanted == PageFiles::classic
                                 ? DrawablePage::Content::pictures
                                 : DrawablePage::Content::picturesAndText);
    makeFiles(drawn, order, watch, made);
    made.damage = drawn.damage();
    return made;
}

void PageMaker::makeFiles(const DrawablePage& drawn, const PageOrder& order, Stopwatch& watch,
                          MadePage& made) {
    const WebPageFiles files(iFolder, order.page);
    if (order.wanted == PageFiles::text) {
        iWebPageMaker.makeText(drawn, files, made.timing);
        return;
    }
    drawn.draw(pixelsPerPoint, iBitmap);
    made.timing.draw = watch.lap();
    if (order.wanted == PageFiles::classic) {
        makePageFile(files.pageFile, made.timing);
        return;
    }
    const qint64 size = iWebPageMaker.makePicture(drawn, iBitmap, files, made.timing);
    try {
        iWebPageMaker.makeOthers(drawn, iBitmap, size, files, made.timing);
    } catch (const PlatformException& failure) {
        if (failure.kind() == ErrorKind::pageWrite)
            throw;
        made.degraded = failure.message();
    } catch (const std::bad_alloc&) {
        made.degraded =
            Message::translate("PageFailure", "it takes more memory than a page may have");
    }
}

void PageMaker::makePageFile(const QString& path, PageTiming& timing) {
    Stopwatch watch;
    const auto jpeg = iEncoder.encode(iBitmap, iFactor);
    timing.encode += watch.lap();
    writePageFile(path, jpeg);
    timing.write += watch.lap();
}
