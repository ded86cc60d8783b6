#pragma once

#include "pdf/DrawTimeout.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "pdf/MarkedContent.h"
#include "pdf/PDFEngine.h"
#include "pdf/PDFStructure.h"

#include <array>
#include <optional>

// What a DrawablePage keeps, for the sources of this folder that make something of it.
struct DrawablePage::Recording {
    Recording(const DrawablePDF& document, const DrawControl& control)
        : engine(document.engine()), structure(document.structure()), watch(control) {}
    ~Recording();
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    // Interprets the page, once. Both functions raise MuPDF errors.
    void load(fz_context* ctx, PageCut cut, pdf_obj* object, Content content);
    void record(fz_context* ctx, pdf_obj* object);
    // Looks up what the marks in the text stand for.
    void readTags(pdf_obj* object);

    // What is looked at: all that a whole page has, even where it lies outside.
    fz_rect area() const { return isHalf ? bounds : fz_infinite_rect; }

    const PDFEngine& engine;
    PDFStructure& structure;
    DrawTimeout watch;
    fz_page* page = nullptr;
    fz_display_list* list = nullptr;
    fz_display_list* frames = nullptr; // of links; null when none has one
    fz_rect bounds = fz_empty_rect;    // of what is shown
    bool isHalf = false;
    int isColour = 0;
    // The list begins with a group around the page's content that need not be drawn.
    bool hasPlainGroup = false;
    fz_stext_page* text = nullptr;      // null when not asked for
    std::array<char, 256> textError{};  // why it is not complete; empty when it is
    std::optional<MarkedContent> marks; // of the text; none on pages without tags
    PDFStructure::PageTags tags;

private:
    void makeLists(fz_context* ctx, Content content);
    void interpret(fz_context* ctx);
};
