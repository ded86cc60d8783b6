#pragma once

#include "pdf/SVGText.h"

#include <map>
#include <mupdf/fitz.h>
#include <string>
#include <utility>

// The glyphs of a page. It keeps outlines from page to page. It is called from MuPDF's C functions:
// see SVGWriter.
class PageGlyphs {
public:
    // An em of the glyphs' numbers.
    static constexpr float unitsPerEm = 1000;

    struct Glyph {
        int index = -1; // from 0 on in the order of the page; none for one that draws nothing
        int advance = 0;
    };

    explicit PageGlyphs(fz_context* ofEngine);
    ~PageGlyphs() { forgetFonts(); }
    PageGlyphs(const PageGlyphs&) = delete;
    PageGlyphs& operator=(const PageGlyphs&) = delete;

    // Begins a page.
    void begin();
    // Null when it can't be written, or is one too many.
    const Glyph* find(fz_font* font, int glyph);

    // The letter of a glyph that draws something.
    static unsigned letterOf(const Glyph& glyph) { return firstLetter + unsigned(glyph.index); }

    // The glyphs that were found, in their order, a line each: the outline and the advance, see
    // GlyphOutline. An em is half as many units in outlines: more are not seen.
    std::string_view lines() const { return iLines.view(); }
    bool isFull() const { return iLines.isFull(); }

private:
    static constexpr unsigned firstLetter = '@';
    using Key = std::pair<fz_font*, int>;
    struct Outline {
        std::string line; // empty for a glyph that draws nothing
        int advance = 0;
    };

    void forgetFonts();
    const Outline* outlineOf(const Key& key);

    fz_context* iContext;
    std::map<Key, Outline> iOutlines; // of all pages
    std::map<Key, Glyph> iGlyphs;     // of this page
    int iCount = 0;
    SVGText iLines;
    SVGText iLine;
};
