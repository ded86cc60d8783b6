#pragma once

#include "base/PlatformException.h"
#include "pdf/PageDamage.h"

#include <QByteArray>
#include <QString>
#include <map>
#include <mupdf/fitz.h>
#include <mupdf/pdf.h>
#include <optional>
#include <unordered_map>

// Runs MuPDF calls, and then, whether or not they raise an error, those that drop what was made.
template <class Body, class Drop>
void runAndDrop(fz_context* ctx, Body body, Drop drop) {
    fz_try(ctx) {
        body();
    }
    fz_always(ctx) {
        drop();
    }
    fz_catch(ctx) {
        fz_rethrow(ctx);
    }
}

// Where a link or an outline entry leads.
struct PDFTarget {
    int page = -1;      // zero-based
    double across = -1; // see PDFAnnotation::destinationAcross
};

// The open file behind a DrawablePDF, shared by the sources of this folder that call MuPDF.
//
// MuPDF reports errors with longjmp(), which skips C++ destructors. So its calls are made in small
// lambdas passed to run() or get(), which own no object with a destructor.
class PDFEngine {
public:
    PDFEngine();
    ~PDFEngine();
    PDFEngine(const PDFEngine&) = delete;
    PDFEngine& operator=(const PDFEngine&) = delete;

    // For errors see DrawablePDF.
    void open(const QString& path, bool mapped, const QByteArray& password);

    // Runs MuPDF calls; a MuPDF error becomes a PlatformException of that kind.
    template <class Body>
    void run(ErrorKind errorKind, Body body) const {
        fz_try(context) {
            body(context);
        }
        fz_catch(context) {
            throw PlatformException(errorKind, caughtReason());
        }
    }

    // The result of a MuPDF call, or the fallback when it reports an error.
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

    // The same for objects; null when it reports an error.
    template <class Body>
    pdf_obj* object(Body body) const {
        return get(body, static_cast<pdf_obj*>(nullptr));
    }
    // The object that a reference leads to.
    pdf_obj* resolved(pdf_obj* reference) const {
        return object([&](fz_context* ctx) { return pdf_resolve_indirect(ctx, reference); });
    }

    // Begins to collect in damage() what is wrong with a page.
    void beginPage() const;
    const PageDamage& damage() const { return iDamage; }

    // The text of the MuPDF error just caught.
    Message caughtReason() const;

    // The object of the page at a zero-based index. Throws PlatformException (pageUnreadable).
    pdf_obj* pageObject(int index) const;
    pdf_obj* entry(pdf_obj* dictionary, const char* key) const;
    // "Root" is the catalog, "Info" the information dictionary.
    pdf_obj* trailerEntry(const char* key) const;
    // Cut off after PDFLimits::maxTextLength characters.
    QString text(pdf_obj* string) const;
    QString name(pdf_obj* name) const;

    // The target of an annotation or outline entry: that of its "Dest", or of its go-to action.
    // None when that is no page of the document.
    std::optional<PDFTarget> target(pdf_obj* dictionary) const;
    // The same of the catalog's "OpenAction", an action or a destination.
    std::optional<PDFTarget> openTarget() const;

    std::size_t allocated = 0; // bytes allocated by MuPDF
    fz_context* context = nullptr;
    pdf_document* document = nullptr;
    // Counted when the file was opened. MuPDF may find damage later, repair the file and count
    // again; what was read before would then disagree with what is read after.
    int pageCount = 0;
    bool isOwner = false;    // it was opened with the owner's password, which allows everything
    void* mapping = nullptr; // null when the file is not mapped
    std::size_t mappingSize = 0;

private:
    // Called by MuPDF.
    static void readMessage(void* engine, const char* message) noexcept;
    void map(const QString& path);
    void openDocument(fz_context* ctx, const char* path);
    void unlock(const QString& path, const QByteArray& password);
    // Throws when the document has no pages because its page tree can't be read.
    void checkPageTree(const QString& path) const;
    // The document's page count, but no more than it has objects.
    int countPages() const;

    // The target of a go-to action.
    std::optional<PDFTarget> actionTarget(pdf_obj* action) const;
    // That of an explicit or named destination.
    std::optional<PDFTarget> destinationTarget(pdf_obj* destination) const;
    // The name of a destination, with a prefix that distinguishes the two kinds of names; empty for
    // an explicit destination.
    QByteArray nameOfDestination(pdf_obj* destination) const;
    // Resolves a destination of any kind without the cache of names.
    PDFTarget lookUpDestination(pdf_obj* destination) const;
    double placeAcross(pdf_obj* explicitDestination) const;
    // Zero-based number of the page that an array begins with, as a reference or a number; -1
    // otherwise.
    int pageNumber(pdf_obj* page) const;

    // Caches of page numbers by object number and by name. MuPDF searches all pages for each
    // lookup, and all names for a missing one.
    mutable std::unordered_map<int, int> pageNumbers;
    mutable std::map<QByteArray, PDFTarget> namedTargets;
    mutable PageDamage iDamage;
};
