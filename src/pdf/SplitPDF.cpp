#include "pdf/SplitPDF.h"

#include "base/Log.h"

#include <QRegularExpression>
#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

namespace {

constexpr double leastRatio = 1.8; // of the width of a double page to that of a single one
constexpr double mostRatio = 2.2;
constexpr double heightTolerance = 0.03;

// Targets closer to the left edge are mostly those of programs that do not say where they lead.
constexpr double edge = 0.01;
constexpr double middle = 0.49; // of a page that was drawn a little off its place

using Part = PageCut::Part;

bool isLandscape(const QSizeF& size) {
    return size.width() > size.height();
}

bool isWideAs(const QSizeF& size, const QSizeF& single) {
    return !single.isEmpty() && size.width() >= leastRatio * single.width();
}

bool isTwoOf(const QSizeF& size, const QSizeF& single) {
    return isWideAs(size, single) && size.width() <= mostRatio * single.width() &&
           std::abs(size.height() - single.height()) <= heightTolerance * single.height();
}

std::vector<bool> likelyDoublePages(const std::vector<QSizeF>& sizes) {
    std::vector<bool> isDouble(sizes.size());
    std::transform(sizes.begin(), sizes.end(), isDouble.begin(),
                   [&](const QSizeF& size) { return isTwoOf(size, sizes.front()); });
    return isDouble;
}

// Among landscape pages only, a first page half as wide as the second is a cover of single pages.
std::vector<bool> landscapePages(const std::vector<QSizeF>& sizes) {
    const auto portrait = std::find_if(sizes.begin(), sizes.end(), [](const QSizeF& size) {
        return !size.isEmpty() && !isLandscape(size);
    });
    QSizeF single;
    if (portrait != sizes.end())
        single = *portrait;
    else if (sizes.size() > 1 && isWideAs(sizes[1], sizes[0]))
        single = sizes[0];
    std::vector<bool> isDouble(sizes.size());
    std::transform(sizes.begin(), sizes.end(), isDouble.begin(), [&](const QSizeF& size) {
        return isLandscape(size) && (single.isEmpty() || isWideAs(size, single));
    });
    return isDouble;
}

// Whether at least half of the inner pages are double ones, by a few of them: reading all pages of
// a long document takes as long as drawing many, and a folded sheet among others is no spread.
bool hasDoublePages(const PDFDocument& document) {
    constexpr int most = 8;
    const int inner = std::max(1, document.pageCount() - 2);
    const int count = std::min(most, inner);
    const QSizeF single = document.page(0).displaySize();
    int doubles = 0;
    for (int i = 0; i < count && 1 + i * inner / count < document.pageCount(); ++i)
        doubles += isTwoOf(document.page(1 + i * inner / count).display, single) ? 1 : 0;
    return 2 * doubles >= count;
}

std::vector<bool> doublePages(const PDFDocument& document, Spreads spreads) {
    try {
        if (spreads == Spreads::automatic && !hasDoublePages(document))
            return {};
        const auto sizes = document.pageSizes();
        return spreads == Spreads::split ? landscapePages(sizes) : likelyDoublePages(sizes);
    } catch (const PlatformException& failure) {
        Log("SplitPDF").warn(failure.reason());
        return {};
    }
}

// In the page's space, whose origin is at the lower left before the page is turned.
QRectF halfOf(const QRectF& box, int rotation, Part part) {
    const int turn = (rotation + 45) / 90 % 4;
    const bool isUpright = turn % 2 == 0;
    QRectF half = box;
    if (isUpright)
        half.setWidth(box.width() / 2);
    else
        half.setHeight(box.height() / 2);
    const bool isFarther = (part == Part::right) == (turn < 2);
    if (isFarther)
        half.translate(isUpright ? half.width() : 0, isUpright ? 0 : half.height());
    return half;
}

// The labels of the two halves: "12-13" names both.
std::pair<QString, QString> labelsOfHalves(const QString& label) {
    static const QRegularExpression two(QStringLiteral("^(\\w+)\\s*[-\u2013/]\\s*(\\w+)$"));
    const auto match = two.match(label);
    return match.hasMatch() ? std::pair(match.captured(1), match.captured(2))
                            : std::pair(label, label);
}

// Labels that count the document's pages would be wrong for those of the book.
bool onlyCount(const std::vector<QString>& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (labels[i] != QString::number(i + 1))
            return false;
    }
    return true;
}

} // namespace

std::shared_ptr<SplitPDF> SplitPDF::of(const std::shared_ptr<PDFDocument>& document,
                                       Spreads spreads, bool rightToLeft) {
    if (spreads == Spreads::keep || !document)
        return nullptr;
    const auto isDouble = doublePages(*document, spreads);
    if (std::find(isDouble.begin(), isDouble.end(), true) == isDouble.end())
        return nullptr;
    return std::shared_ptr<SplitPDF>(new SplitPDF(document, isDouble, rightToLeft));
}

SplitPDF::SplitPDF(std::shared_ptr<PDFDocument> document, const std::vector<bool>& isDouble,
                   bool rightToLeft)
    : PDFDocument(document->path(), document->password()),
      iDocument(std::move(document)),
      iIsRightToLeft(rightToLeft) {
    for (int index = 0; index < iDocument->pageCount(); ++index) {
        iFirst.push_back(pageCount());
        if (std::size_t(index) < isDouble.size() && isDouble[std::size_t(index)]) {
            iCuts.emplace_back(index, rightToLeft ? Part::right : Part::left);
            iCuts.emplace_back(index, rightToLeft ? Part::left : Part::right);
        } else {
            iCuts.emplace_back(index);
        }
    }
    iFirst.push_back(pageCount());
}

bool SplitPDF::isSplit(int ofDocument) const {
    return iFirst[std::size_t(ofDocument) + 1] - iFirst[std::size_t(ofDocument)] > 1;
}

std::vector<PageRun> SplitPDF::runs(const std::vector<PageRun>& ofFile) const {
    const qint64 count = iDocument->pageCount();
    // Numbers that the document lacks stay such.
    const auto firstPart = [&](qint64 number) -> qint64 {
        if (number < 1)
            return 0;
        return number > count ? number - count + pageCount() : iFirst[std::size_t(number) - 1] + 1;
    };
    std::vector<PageRun> runs;
    for (const auto& [first, last] : ofFile) {
        const qint64 end = firstPart(std::max(qint64{last}, qint64{0}) + 1) - 1;
        runs.push_back({int(firstPart(first)), int(std::min<qint64>(end, INT_MAX))});
    }
    return runs;
}

QString SplitPDF::range(const QString& ofDocument) const {
    QStringList parts;
    for (const auto& [first, last] :
         runs(pageRunsFromExpression(ofDocument, iDocument->pageCount())))
        parts << QStringLiteral("%1-%2").arg(first).arg(last);
    return parts.join(u',');
}

PDFPage SplitPDF::page(int index) const {
    requirePage(index);
    const PageCut& here = iCuts[std::size_t(index)];
    PDFPage page = iDocument->page(here.index);
    if (here.part == Part::whole)
        return page;
    const QRectF half = halfOf(page.cropBox, page.rotation, here.part);
    page.cropBox.setSize(half.size());
    page.mediaBox = page.cropBox;
    page.display.setWidth(page.display.width() / 2);
    return page;
}

std::vector<PDFAnnotation> SplitPDF::annotations(int index) const {
    requirePage(index);
    const PageCut& here = iCuts[std::size_t(index)];
    auto annotations = iDocument->annotations(here.index);
    for (PDFAnnotation& annotation : annotations) {
        if (annotation.destinationPage)
            annotation.destinationPage =
                targetPage(*annotation.destinationPage, annotation.destinationAcross);
    }
    if (here.part == Part::whole || annotations.empty())
        return annotations;
    const PDFPage whole = iDocument->page(here.index);
    const QRectF half = halfOf(whole.cropBox, whole.rotation, here.part);
    std::erase_if(annotations, [&](const PDFAnnotation& annotation) {
        return !annotation.bounds.intersects(half);
    });
    for (PDFAnnotation& annotation : annotations)
        annotation.bounds = annotation.bounds.intersected(half).translated(whole.cropBox.topLeft() -
                                                                           half.topLeft());
    return annotations;
}

std::vector<QSizeF> SplitPDF::pageSizes() const {
    auto ofDocument = iDocument->pageSizes();
    ofDocument.resize(iFirst.size()); // a reader may answer anything
    std::vector<QSizeF> sizes;
    for (const PageCut& here : iCuts) {
        const QSizeF& whole = ofDocument[std::size_t(here.index)];
        const int parts = here.part == Part::whole ? 1 : 2;
        sizes.emplace_back(whole.width() / parts, whole.height());
    }
    return sizes;
}

int SplitPDF::targetPage(int ofDocument, double across) const {
    if (ofDocument < 0 || ofDocument >= iDocument->pageCount())
        return -1;
    const bool isOnSecond = iIsRightToLeft ? across > edge && across < middle : across >= middle;
    return iFirst[std::size_t(ofDocument)] + (isOnSecond && isSplit(ofDocument) ? 1 : 0);
}

PDFViewing SplitPDF::viewing() const {
    PDFViewing viewing = iDocument->viewing();
    if (viewing.openPage)
        viewing.openPage = targetPage(*viewing.openPage);
    return viewing;
}

std::vector<QString> SplitPDF::pageLabels() const {
    auto ofDocument = iDocument->pageLabels();
    if (onlyCount(ofDocument))
        return {};
    ofDocument.resize(iFirst.size() - 1);
    std::vector<QString> labels;
    for (std::size_t i = 0; i < ofDocument.size(); ++i) {
        if (!isSplit(int(i))) {
            labels.push_back(ofDocument[i]);
            continue;
        }
        const auto [first, second] = labelsOfHalves(ofDocument[i]);
        labels.insert(labels.end(), {first, second});
    }
    return labels;
}

std::vector<PDFOutlineNode> SplitPDF::outline() const {
    auto nodes = iDocument->outline();
    redirect(nodes);
    return nodes;
}

void SplitPDF::redirect(std::vector<PDFOutlineNode>& nodes) const {
    for (PDFOutlineNode& node : nodes) {
        node.destinationPage = targetPage(node.destinationPage, node.destinationAcross);
        redirect(node.children);
    }
}
