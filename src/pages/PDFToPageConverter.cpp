#include "pages/PDFToPageConverter.h"

#include "system/TemporaryFolders.h"

PDFToPageConverter::PDFToPageConverter(const QString& pdfPath, std::shared_ptr<PDFDocument> pdfDoc,
                                       int quality)
    : iQuality(quality),
      iPDFPath(pdfPath),
      iConverterWorkFolder(TemporaryFolders::make(QStringLiteral("Lumivex"))),
      iPDFDoc(std::move(pdfDoc)) {}

PDFToPageConverter::~PDFToPageConverter() {
    if (!iConverterWorkFolder.isEmpty())
        TemporaryFolders::remove(iConverterWorkFolder);
}

QString PDFToPageConverter::generatePage(int /*page*/) {
    return {};
}
