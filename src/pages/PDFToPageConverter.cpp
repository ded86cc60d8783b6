#include "pages/PDFToPageConverter.h"

#include "system/TemporaryFolders.h"

PDFToPageConverter::PDFToPageConverter(const QString& pdfPath, std::shared_ptr<PDFDocument> pdfDoc,
                                       int quality)
    : iQuality(quality),
      iPDFPath(pdfPath),
      iConverterWorkFolder(newWorkFolder()),
      iPDFDoc(std::move(pdfDoc)) {}

PDFToPageConverter::~PDFToPageConverter() {
    if (!iConverterWorkFolder.isEmpty())
        TemporaryFolders::remove(iConverterWorkFolder);
}

QString PDFToPageConverter::newWorkFolder() {
    return TemporaryFolders::make(QStringLiteral("Lumivex"));
}

QString PDFToPageConverter::generatePage(int /*page*/) {
    return {};
}
