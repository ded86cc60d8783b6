#pragma once

#include "pdf/PDFDocument.h"

#include <QString>
#include <memory>
#include <vector>

// State of a converter of PDF pages: the document, the quality, and a private work folder, which
// the destructor deletes with every page file in it. Publishers of the pages must keep the
// converter alive.
class PDFToPageConverter {
public:
    // pdfDoc may be null. quality is 0 to 100.
    PDFToPageConverter(const QString& pdfPath, std::shared_ptr<PDFDocument> pdfDoc, int quality);
    virtual ~PDFToPageConverter();
    PDFToPageConverter(const PDFToPageConverter&) = delete;
    PDFToPageConverter& operator=(const PDFToPageConverter&) = delete;

    // Makes the page file of a one-based page number and returns its path; the base class returns a
    // null text.
    virtual QString generatePage(int page);
    virtual void generateAllPage() {}
    virtual void generatePages(const std::vector<int>& /*pages*/) {}

    const QString& PDFPath() const { return iPDFPath; }
    void setPDFPath(const QString& path) { iPDFPath = path; }
    int quality() const { return iQuality; }
    void setQuality(int quality) { iQuality = quality; }
    const QString& converterWorkFolder() const { return iConverterWorkFolder; }
    void setConverterWorkFolder(const QString& folder) { iConverterWorkFolder = folder; }
    int DPI() const { return iDPI; }
    void setDPI(int dpi) { iDPI = dpi; }
    const std::shared_ptr<PDFDocument>& PDFDoc() const { return iPDFDoc; }
    void setPDFDoc(std::shared_ptr<PDFDocument> document) { iPDFDoc = std::move(document); }

protected:
    // A temporary folder, which the caller removes.
    static QString newWorkFolder();

private:
    int iQuality;
    QString iPDFPath;
    QString iConverterWorkFolder;
    int iDPI = 144;
    std::shared_ptr<PDFDocument> iPDFDoc;
};
