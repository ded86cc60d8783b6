#pragma once

#include "platform/PDFDocument.h"
#include "platform/PlatformException.h"

#include <QByteArray>
#include <map>
#include <mupdf/fitz.h>
#include <mupdf/pdf.h>
#include <optional>
#include <set>
#include <unordered_map>

// The open file behind a PDFDocument, shared by the files of this folder that speak to the PDF
// engine.
//
// The engine reports errors by jumping out of its functions, past C++ destructors. So engine calls
// stand in small lambdas passed to run() or get(), which hold no object that needs one.
struct PDFDocument::Engine {
    explicit Engine(QString path);
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    void open(Access access);

    // Runs engine calls; an engine error becomes a PlatformException of that name.
    template <class Body>
    void run(const char* errorName, Body body) const {
        fz_try(context) {
            body(context);
        }
        fz_catch(context) {
            throw PlatformException(QString::fromLatin1(errorName), caughtReason());
        }
    }

    // The value of an engine call, or the fallback when it reports an error.
    template <class Body, class Value>
    Value get(Body body, Value fallback) const {
        Value value = fallback;
        fz_var(value);
        fz_try(context) {
            value = body(context);
        }
        fz_catch(context) {
            value = fallback;
        }
        return value;
    }

    // The engine error just caught, in words.
    Message caughtReason() const;

    // What the document says, but no more than it has objects.
    int countPages() const;

    pdf_obj* entry(pdf_obj* dictionary, const char* key) const;
    // Cut after PDFLimits::maxTextLength characters.
    QString text(pdf_obj* string) const;
    QString name(pdf_obj* name) const;

    // Zero-based page that an explicit or named destination, or a go-to action, leads to.
    std::optional<int> destinationPage(pdf_obj* destination) const;
    // What a destination is called, with a mark before it that tells names of the two kinds apart;
    // empty for one that says where it leads.
    QByteArray nameOfDestination(pdf_obj* destination) const;
    // The same as destinationPage() for any destination; -1 when it leads to no page.
    int lookUpDestination(pdf_obj* destination) const;
    // Zero-based number of a page that an array begins with, as reference or as number; -1 for
    // others.
    int pageNumber(pdf_obj* page) const;
    // The destination of an annotation or outline entry: its "Dest", or that of its go-to action.
    std::optional<int> targetPage(pdf_obj* dictionary) const;

    // The entries of one outline level, from the first one on, with those beneath them. A file may
    // chain its entries into a ring, so each is read once only.
    std::vector<PDFOutlineNode> outlineLevel(pdf_obj* first, int depth,
                                             std::set<pdf_obj*>& seen) const;

    QString path;
    std::size_t allocated = 0; // bytes held by the engine
    fz_context* context = nullptr;
    pdf_document* document = nullptr;
    // As counted when the file was opened. The engine may come upon damage later, mend the file and
    // count anew; what was read before would then disagree with what is read after.
    int pageCount = 0;
    // The numbers of pages that something leads to, by the numbers of their objects and by names.
    // The engine goes through the pages for each, and through all names for one that is missing.
    mutable std::unordered_map<int, int> pageNumbers;
    mutable std::map<QByteArray, int> namedPages;
    void* mapping = nullptr;
    std::size_t mappingSize = 0;
};
