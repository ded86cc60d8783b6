#pragma once

#include "pdf/DrawablePDF.h"
#include "pdf/MergePlan.h"
#include "worker/QPDFHeaders.h"

#include <map>
#include <memory>
#include <vector>

// Merges documents, pictures and blank pages into one document. Links between pages that are in it
// and bookmarks lead to their places there; with several documents, each has a bookmark of its own
// above its bookmarks. What hides layers, the first document's title, language, direction and,
// where it is the only one, page labels come along, and whatever one document forbids. Forms, tags,
// attachments and scripts do not.
class PDFMerger {
public:
    // Reads the sources. Throws PlatformException (pdfFile, pdfOpen, pdfPassword), whose reason
    // begins with the path of the source.
    explicit PDFMerger(MergePlan plan);
    ~PDFMerger();
    PDFMerger(const PDFMerger&) = delete;
    PDFMerger& operator=(const PDFMerger&) = delete;

    int pageCount() const { return int(iPages.size()); }
    // Throws PlatformException (pdfOpen) when a source can't be read any further, or the file can't
    // be written.
    void write(const QString& path);

private:
    // A document among the sources.
    struct Document {
        explicit Document(const MergePlan::Source& source);

        QString path;
        DrawablePDF facts; // links, bookmarks and labels, which MuPDF finds in damaged files, too
        QPDF pdf;
        std::vector<QPDFObjectHandle> pages;
        std::map<int, QPDFObjectHandle> merged; // the first merged page of each of its pages
    };
    // A page of the merged document.
    struct Page {
        QPDFObjectHandle object;
        Document* document = nullptr; // null for pictures and blank pages
        int index = 0;                // zero-based, in that document
    };

    void openSources();
    void addPages();
    void add(const MergePlan::Page& page);
    void addOfDocument(Document& document, int index, int rotation);
    void addObject(const QPDFObjectHandle& object, int rotation, Document* document, int index);
    QSizeF usualSize() const;

    void leadLinks();
    void leadLink(QPDFObjectHandle link, const Document& document, int page, double across);
    QPDFObjectHandle destination(const Document& document, int page, double across) const;
    void hideLayers();
    void hideLayersOf(Document& document, QPDFObjectHandle groups, QPDFObjectHandle hidden);
    void addOutline();
    void addOutlineLevel(const QPDFObjectHandle& parent, const std::vector<PDFOutlineNode>& nodes,
                         const Document& document);
    QPDFObjectHandle addOutlineEntry(QPDFObjectHandle parent, const QString& label,
                                     QPDFObjectHandle target);
    void addLabels();
    void describe();
    std::vector<Document*> documents() const;

    MergePlan iPlan;
    QPDF iMerged;
    std::map<int, std::unique_ptr<Document>> iDocuments; // by the number of the source
    std::map<int, QSizeF> iPictures;                     // own sizes, in the same way
    QSizeF iUsualSize; // of pictures beside documents, and of blank pages
    std::vector<Page> iPages;
};
