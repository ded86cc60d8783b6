#pragma once

#include "pdf/PDFDocument.h"

#include <memory>

class PDFEngine;
class PDFStructure;

// A PDF that MuPDF has open in this process, so that its pages can be drawn, see DrawablePage. A
// malicious file may crash MuPDF or make it hang, see PDFReader.
class DrawablePDF final : public PDFDocument {
public:
    // How the file is read. mapped is faster, but the process crashes if the file shrinks while it
    // is mapped: only for processes that may crash.
    enum class Access { stream, mapped };

    // Throws PlatformException (pdfFile, pdfOpen, pdfPassword) whose reason says why the file can't
    // be used. The password, in UTF-8, may be empty, and is ignored when none is needed.
    explicit DrawablePDF(const QString& path, Access access = Access::stream,
                         const QByteArray& password = {});
    ~DrawablePDF() override;

    int pageCount() const override;
    std::vector<QSizeF> pageSizes() const override;
    PDFPage page(int index) const override;
    std::vector<PDFAnnotation> annotations(int index) const override;
    QString information(const char* key) const override;
    PDFViewing viewing() const override;
    QString language() const override;
    std::vector<QString> pageLabels() const override;
    std::vector<PDFOutlineNode> outline() const override;

    // For DrawablePage.
    const PDFEngine& engine() const { return *iEngine; }
    PDFStructure& structure() const { return *iStructure; }

private:
    std::unique_ptr<PDFEngine> iEngine;
    std::unique_ptr<PDFStructure> iStructure;
};
