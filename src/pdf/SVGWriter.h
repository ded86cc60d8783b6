#pragma once

#include "pdf/PageGlyphs.h"
#include "pdf/SVGPictures.h"
#include "pdf/SVGText.h"

#include <mupdf/fitz.h>
#include <string>
#include <vector>

// How a text or a path is painted.
struct SVGPaint {
    fz_colorspace* space;
    const float* colour;
    float alpha;
    fz_color_params params;
    const fz_stroke_state* stroke; // null to fill
};

// Writes the vectors of pages, one after the other: SVG files, but for their glyphs, which are
// defined in lines of their own (see PageGlyphs), and the texts, which are runs of these. A run is
// the text of a "g" element in whose units an em is as large as in the advances of glyphs. It has
// the glyphs' letters. Where the pen has to be moved, which each glyph does by its advance, the
// distance stands before the letter: "x" or "x,y".
//
// It is called from MuPDF's C functions: exceptions must not pass through these. Errors of MuPDF do
// pass through its functions, which own nothing then.
class SVGWriter {
public:
    explicit SVGWriter(fz_context* ofEngine);

    // Begins the file of a page with these bounds. Its pictures may take so many bytes.
    void begin(fz_rect page, std::size_t mostPictureBytes);
    // False for a page that the file would not show correctly, or that a browser would take seconds
    // to draw. What is written after that is ignored.
    bool isCorrect() const;
    void giveUp() { iIsCorrect = false; }

    // What lies outside the page is left out: the publisher does not see it.
    void text(const fz_text& text, const fz_matrix& matrix, const SVGPaint& paint);
    void path(const fz_path* path, bool isEvenOdd, const fz_matrix& matrix, const SVGPaint& paint);
    // Adds a picture of what is drawn by itself. Only what is seen of its area is drawn.
    void picture(SVGDrawing drawing);
    // Clips and groups end in the order reverse to their beginning.
    void beginClip(const fz_path* path, bool isEvenOdd, const fz_matrix& matrix);
    void beginGroup(float alpha);
    void end();

    // The file of the page.
    std::string file() const;

private:
    // Of a run, in its units.
    struct Pen {
        int x = 0;
        int y = 0;
    };

    bool isOutside(fz_rect area) const;
    fz_rect visible() const;
    void writePaint(const SVGPaint& paint, float strokeScale);
    void writeStroke(const fz_stroke_state& stroke, float scale);
    void writeMatrix(const fz_matrix& matrix);
    void writeSpan(const fz_text_span& span, const fz_matrix& matrix, const SVGPaint& paint);
    void writeGlyph(const PageGlyphs::Glyph& glyph, fz_point place, Pen& pen);

    fz_context* iContext;
    PageGlyphs iGlyphs;
    int iClips = 0;
    // A clip or group that has begun.
    struct Level {
        fz_rect visible; // of the page
        bool hasElement;
    };
    std::vector<Level> iLevels;
    fz_rect iPage{};
    fz_matrix iToUnits{};
    bool iIsCorrect = true;
    SVGText iBody;
    SVGText iClip;
    SVGPictures iPictures;
    std::string iPictureElements; // their definitions
    std::size_t iMostPictureBytes = 0;
    int iPictureCount = 0;
    int iGlyphCount = 0;
};
