#pragma once

#include "base/PlatformException.h"
#include "drawing/SpareWorkers.h"
#include "pages/FlashPageSource.h"
#include "pages/PDFToSWFPageConverter.h"
#include "pdf/SplitPDF.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

// Progress of an import, posted on the import's thread. User information: "pageIndex" (one-based
// step), "totalPage" (number of steps), "type" ("geneatePage" while pages are drawn, then
// "geneateNormalPage").
inline constexpr char16_t ImportProgressInfoMSG[] = u"ImportProgressInfoMSG";
// Kept for existing listeners; the end of an import is reported by its operation instead.
inline constexpr char16_t ImportPDFDidFinish[] = u"ImportPDFDidFinish";

// Which double pages become two, and in which order.
struct SpreadChoice {
    Spreads spreads = Spreads::keep;
    std::optional<bool> rightToLeft = {}; // none: as the document says
};

// The selected pages of a PDF. Its page files are deleted with it.
class FlashPageSourcePDF : public FlashPageSource {
public:
    // A file that can't be opened leaves the source without a document; openError() has the cause.
    // dpi is stored but has no effect. opened has its password, and may hold the document if it is
    // already open; otherwise stopped is polled while reading and cancels it. Throws
    // PlatformException for a page range that is too long.
    FlashPageSourcePDF(const QString& pdfPath, const QString& pageRange, int dpi, int quality,
                       OpenedPDF opened = {}, std::function<bool()> stopped = {},
                       const SpreadChoice& spreads = {});

    // That of the pages, whose numbers are not those of a document with double pages.
    const QString& pageRange() const { return iPageRange; }

    const std::shared_ptr<PDFToSWFPageConverter>& toPageConverter() const {
        return iToPageConverter;
    }

    // Starts the page workers, so that the caller can do other work before generatePages().
    void startDrawing();

    // Draws the pages in order. A page that can't be drawn is listed with a file that does not
    // exist. Throws PlatformException for a page that the document lacks, and when the work folder
    // can't be written or the PDF is changed meanwhile.
    void generatePages() override;
    void generateNormalPages() override;

    // Returns null once stop() is set.
    std::shared_ptr<FlashPage> getNormalPageAtIndex(int pageIndex) const override;

    bool wasMade(int page) const override;
    bool ownsPageFiles() const override { return true; }
    std::optional<WebPageFiles> webFilesOf(int page) const override;
    std::map<int, Message> degradedPages() const override {
        return iToPageConverter->degradedPages();
    }
    std::vector<int> pagesWithout(PageFiles kind) const override;
    void makeFiles(PageFiles kind, const std::vector<int>& pages, const std::atomic<bool>& stop,
                   const std::function<void(int done)>& progress) override;

    // Why the document could not be opened; none when it was.
    const std::optional<PlatformException>& openError() const { return iOpenError; }

private:
    void splitSpreads(const SpreadChoice& choice);
    WebPageFiles filesOf(int page) const;
    void postProgress(std::size_t step, const char* type) const;

    std::shared_ptr<PDFDocument> iPDFDoc;
    QString iPageRange;
    [[maybe_unused]] int iDPI;
    int iQuality;
    std::shared_ptr<PDFToSWFPageConverter> iToPageConverter;
    std::vector<int> iNeedToImportPages;
    std::optional<PlatformException> iOpenError;
    bool iIsDrawing = false;
};
