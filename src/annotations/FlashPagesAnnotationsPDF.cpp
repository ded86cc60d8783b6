#include "annotations/FlashPagesAnnotationsPDF.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "util/PageRange.h"
#include "util/XMLText.h"

#include <cmath>

namespace {

constexpr char16_t scanPageForLinks[] = u"scanPageForLinks";

constexpr Log annotationsLog("FlashPagesAnnotationsPDF");

// A link's rectangle in fractions of the page. The player expects exactly these numbers: the origin
// of the crop box is not subtracted, and the divisors are not swapped on rotated pages.
struct Location {
    float x;
    float y;
    float width;
    float height;
};

Location locationOnPage(const QRectF& bounds, const QSizeF& cropBox, int rotation) {
    const auto x = float(bounds.x());
    const auto y = float(bounds.y());
    const auto w = float(bounds.width());
    const auto h = float(bounds.height());
    Location corner{0, 0, 0, 0};
    switch (rotation) {
    case 0:
        corner = {x, y + h, w, h};
        break;
    case 90:
        corner = {x + w, y + h, h, w};
        break;
    case 180:
        corner = {x + w, y, w, h};
        break;
    case 270:
        corner = {x, y, h, w};
        break;
    default:
        break;
    }
    const auto pageWidth = float(cropBox.width());
    const auto pageHeight = float(cropBox.height());
    return {corner.x / pageWidth, 1.0F - corner.y / pageHeight, corner.width / pageWidth,
            corner.height / pageHeight};
}

// A page may be so narrow that the ratio overflows.
void setFraction(pugi::xml_node node, const char* name, float value) {
    const double fraction = std::isfinite(value) ? double(value) : 0.0;
    node.append_attribute(name) = QString::asprintf("%f", fraction).toUtf8().constData();
}

void appendAction(pugi::xml_node anno, const char* type, const char* element,
                  const QString& value) {
    pugi::xml_node action = anno.append_child("action");
    action.append_attribute("triggerEventType") = "mouseDown";
    action.append_attribute("actionType") = type;
    action.append_child(element).text().set(XMLText::legal(value).toUtf8().constData());
}

// True when the annotation is a link with a target.
bool appendLink(pugi::xml_node pageAnnos, const PDFAnnotation& annotation) {
    const bool opensAddress = !annotation.url.isNull();
    if (annotation.type != QStringLiteral("Link") || (!opensAddress && !annotation.destinationPage))
        return false;
    pugi::xml_node anno = pageAnnos.append_child("anno");
    anno.append_attribute("annotype") = "com.quenlix.flipbook.pageeditor.TAnnoLink";
    if (opensAddress) {
        appendAction(anno, "com.quenlix.flipbook.pageeditor.TAnnoActionOpenURL", "url",
                     annotation.url);
    } else {
        appendAction(anno, "com.quenlix.flipbook.pageeditor.TAnnoActionGotoPage", "pageIndex",
                     QString::number(*annotation.destinationPage + 1));
    }
    return true;
}

void logAnnotation(std::size_t index, const PDFAnnotation& annotation) {
    if (!annotationsLog.isDebugEnabled())
        return;
    const QRectF& bounds = annotation.bounds;
    annotationsLog.debug(QStringLiteral("%1:%2,(%3 %4 %5 %6),d:%7,url:%8")
                             .arg(index)
                             .arg(annotation.type)
                             .arg(bounds.x())
                             .arg(bounds.y())
                             .arg(bounds.width())
                             .arg(bounds.height())
                             .arg(annotation.destinationPage.value_or(-1))
                             .arg(annotation.url));
}

// False for a page that the document lacks, since then the range is wrong, and for a cancelled
// read.
bool affectsOnePage(const PlatformException& failure) {
    switch (failure.kind()) {
    case ErrorKind::pageUnreadable:
    case ErrorKind::readerEnded:
    case ErrorKind::readerTimeout:
    case ErrorKind::readerMalformedAnswer:
        return true;
    default:
        return false;
    }
}

} // namespace

void FlashPagesAnnotationsPDF::begin(std::shared_ptr<PDFDocument> document,
                                     const QString& pageRange) {
    iPDFDoc = std::move(document);
    iNeedToImportPages = pagesFromExpression(pageRange, iPDFDoc ? iPDFDoc->pageCount() : 0);
    iCurrentIndex = 0;
    iBudget = {};
    iUnreadPages.clear();
    iDocument.reset();
    iDocument.append_child("pagesAnnos");
}

void FlashPagesAnnotationsPDF::loadLinksFromPDF(std::shared_ptr<PDFDocument> document,
                                                const QString& pageRange) {
    begin(std::move(document), pageRange);
    iNeedFiles.clear();
    for (const int number : iNeedToImportPages) {
        try {
            parsePage();
        } catch (const PlatformException& failure) {
            if (!affectsOnePage(failure))
                throw;
            annotationsLog.warn(
                QStringLiteral("page %1: %2").arg(QString::number(number), failure.reason()));
            iUnreadPages.push_back({number, failure.message()});
        }
        ++iCurrentIndex;
    }
}

void FlashPagesAnnotationsPDF::loadLinksSyncsFromPDF(std::shared_ptr<PDFDocument> document,
                                                     const QString& pageRange) {
    begin(std::move(document), pageRange);
    auto& center = NotificationCenter::defaultCenter();
    const QString name = QString::fromUtf16(scanPageForLinks);
    iScan = center.addObserver(
        name, this, [this](const Notification& notification) { scheduledScanPage(notification); });
    center.enqueueWhenIdle(name, this);
}

void FlashPagesAnnotationsPDF::scheduledScanPage(const Notification& /*notification*/) {
    try {
        parsePage();
    } catch (const PlatformException& failure) {
        annotationsLog.warn(failure.reason());
        return;
    }
    ++iCurrentIndex;
    // parsePage() detects the end of the list; this only guards the counter itself.
    if (std::uintptr_t(iCurrentIndex) < reinterpret_cast<std::uintptr_t>(&iNeedToImportPages))
        NotificationCenter::defaultCenter().enqueueWhenIdle(QString::fromUtf16(scanPageForLinks),
                                                            this);
}

void FlashPagesAnnotationsPDF::parsePage() {
    if (std::size_t(iCurrentIndex) >= iNeedToImportPages.size()) {
        throw PlatformException(
            ErrorKind::pageListEnded,
            Message::translate("FlashPagesAnnotationsPDF", "no page at position %1")
                .arg(QString::number(iCurrentIndex)));
    }
    const int number = iNeedToImportPages[std::size_t(iCurrentIndex)];
    annotationsLog.debug(QStringLiteral("page is:%1").arg(number));
    pugi::xml_node pageAnnos = pagesAnnotationsNode().append_child("pageAnnos");
    pageAnnos.append_attribute("pageIndex") = iCurrentIndex + 1;
    if (!iPDFDoc)
        return;
    const PDFPage page = iPDFDoc->page(number - 1);
    if (iBudget.isSpent()) {
        annotationsLog.warn(QStringLiteral("page %1: too many links before it").arg(number));
        return;
    }
    const auto annotations = iPDFDoc->annotations(number - 1);
    iBudget.spend(annotations);
    if (annotations.empty())
        return;
    annotationsLog.debug(QStringLiteral("count is:%1").arg(annotations.size()));
    for (std::size_t i = 0; i < annotations.size(); ++i) {
        logAnnotation(i, annotations[i]);
        if (!appendLink(pageAnnos, annotations[i]))
            continue;
        const Location place =
            locationOnPage(annotations[i].bounds, page.cropBox.size(), page.rotation);
        pugi::xml_node location = pageAnnos.last_child().append_child("location");
        setFraction(location, "x", place.x);
        setFraction(location, "y", place.y);
        setFraction(location, "width", place.width);
        setFraction(location, "height", place.height);
    }
}
