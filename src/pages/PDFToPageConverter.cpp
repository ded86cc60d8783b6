#include "pages/PDFToPageConverter.h"

#include "app/MirelUtility.h"
#include "app/TemporaryFolders.h"

PDFToPageConverter::PDFToPageConverter(const QString& pdfPath, std::shared_ptr<PDFDocument> pdfDoc,
                                       int quality)
    : iQuality(quality),
      iPDFPath(pdfPath),
      iConverterWorkFolder(MirelUtility::forceTmpDiractory(QStringLiteral("Lumivex"))),
      iPDFDoc(std::move(pdfDoc)) {}

PDFToPageConverter::~PDFToPageConverter() {
    if (!iConverterWorkFolder.isEmpty())
        TemporaryFolders::remove(iConverterWorkFolder);
}

QString PDFToPageConverter::generatePage(int /*page*/) {
    return {};
}
