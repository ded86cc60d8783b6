#pragma once

#include "pages/FlashPageSource.h"
#include "pages/OpenedPDF.h"
#include "pages/PDFToSWFPageConverter.h"

#include <QString>
#include <functional>
#include <memory>
#include <vector>

// Progress of an import, posted on the import's thread. User information: "pageIndex" (one-based
// step), "totalPage" (number of steps), "type" ("geneatePage" while pages are drawn, then
// "geneateNormalPage").
inline constexpr char16_t ImportProgressInfoMSG[] = u"ImportProgressInfoMSG";
// Kept for listeners of old; an import's end shows in its operation instead.
inline constexpr char16_t ImportPDFDidFinish[] = u"ImportPDFDidFinish";

// The chosen pages of a PDF. Its page files live as long as it does.
class FlashPageSourcePDF : public FlashPageSource {
public:
    // A file that can't be opened leaves the source without a document; openError() says why.
    // dpi is kept but has no effect. The document may be given when it is open already; otherwise
    // stopped, asked while it is read, ends that. Throws PlatformException for a page range beyond
    // all bounds.
    FlashPageSourcePDF(const QString& pdfPath, const QString& pageRange, int dpi, int quality,
                       OpenedPDF opened = {}, std::function<bool()> stopped = {});

    const std::shared_ptr<PDFToSWFPageConverter>& toPageConverter() const {
        return iToPageConverter;
    }

    // Lets page workers begin, so that something else can be done until generatePages().
    void startDrawing();

    // Draws the pages in order. A page that can't be drawn is listed all the same, with a file that
    // does not exist. Throws PlatformException for a page that the document lacks, and when the
    // work folder can't take a page or the file is changed meanwhile.
    void generatePages() override;
    void generateNormalPages() override;

    // Returns no page as soon as stop() is set.
    std::shared_ptr<FlashPage> getNormalPageAtIndex(int pageIndex) const override;

    bool ownsPageFiles() const override { return true; }

    // Why the document could not be opened; null when it could.
    const Message& openError() const { return iOpenError; }
    // Whether there is at least one page to show.
    bool hasDrawnPages() const;

private:
    void postProgress(std::size_t step, const char* type) const;

    std::shared_ptr<PDFDocument> iPDFDoc;
    QString iPageRange;
    [[maybe_unused]] int iDPI;
    int iQuality;
    std::shared_ptr<PDFToSWFPageConverter> iToPageConverter;
    std::vector<int> iNeedToImportPages;
    Message iOpenError;
    bool iIsDrawing = false;
};
