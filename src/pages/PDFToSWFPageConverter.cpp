#include "pages/PDFToSWFPageConverter.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "drawing/PageQuality.h"
#include "pdf/PDFLimits.h"
#include "system/Bundle.h"
#include "system/Files.h"

#include <QFileInfo>
#include <utility>

PDFToSWFPageConverter::~PDFToSWFPageConverter() {
    endDrawingAhead(); // before the work folder is deleted
}

QString PDFToSWFPageConverter::getPDF2swfLibPath() {
    return Bundle::pathForResource(QStringLiteral("pdf2swf"), QString(), QStringLiteral("lib"));
}

QString PDFToSWFPageConverter::workFile(int page, const char* extension) const {
    return Files::join(converterWorkFolder(),
                       QStringLiteral("%1.%2").arg(page).arg(QLatin1String(extension)));
}

void PDFToSWFPageConverter::drawAhead(const std::vector<int>& pages,
                                      const std::atomic<bool>& stop) {
    iStop = &stop;
    std::vector<int> toDraw;
    for (const int page : pages) {
        if (PDFDoc() && page >= 1 && page <= PDFDoc()->pageCount() &&
            !QFileInfo::exists(workFile(page, "swf")))
            toDraw.push_back(page);
    }
    iWorkers = std::make_unique<PageWorkers>(PDFPath(), converterWorkFolder(), quality(),
                                             std::move(toDraw), stop);
    iWorkers->setSpares(std::exchange(iSpares, nullptr));
    if (!iWorkers->start())
        iWorkers.reset();
    iWorkerCount = iWorkers ? iWorkers->workerCount() : 0;
}

void PDFToSWFPageConverter::endDrawingAhead() {
    iWorkers.reset();
    iStop = nullptr;
}

QString PDFToSWFPageConverter::generatePage(int page) {
    const QString swf = workFile(page, "swf");
    if (QFileInfo::exists(swf) || !PDFDoc())
        return swf;
    const QString jpg = workFile(page, "jpg");
    pdfPageToImage(page, jpg);
    return jpg;
}

void PDFToSWFPageConverter::pdfPageToImage(int page, const QString& /*toPath*/) {
    if (!PDFDoc())
        return;
    if (page < 1 || page > PDFDoc()->pageCount()) {
        throw PlatformException(
            ErrorKind::pageMissing,
            Message::translate("PDFDocument", "page %1 does not exist; the document has %2")
                .arg(QString::number(page), QString::number(PDFDoc()->pageCount())));
    }
    const auto drawn = iWorkers ? iWorkers->waitFor(page) : std::nullopt;
    const PageResult result = drawn ? *drawn : drawInProcess(page);
    iTiming.draw += result.timing.draw;
    iTiming.encode += result.timing.encode;
    iTiming.write += result.timing.write;
    if (result.isUnwritten)
        throw PlatformException(ErrorKind::workFolder, result.error);
    if (!result.error.isNull())
        iFailedPages.push_back({page, result.error});
}

PageResult PDFToSWFPageConverter::drawInProcess(int page) {
    try {
        if (!iPDFRep) {
            iOwnDocument = std::make_unique<DrawablePDF>(PDFPath());
            iPDFRep = std::make_unique<PageImageMaker>(*iOwnDocument, compressionFactor(quality()));
        }
        return {QString(),
                iPDFRep->make(page, workFile(page, "jpg"), {iStop, PDFLimits::maxPageTime})};
    } catch (const PlatformException& failure) {
        Log("PDFToSWFPageConverter").warn(failure.reason());
        return {failure.message(), {}, failure.kind() == ErrorKind::pageWrite};
    } catch (const std::exception& failure) {
        return {QString::fromUtf8(failure.what()), {}};
    }
}
