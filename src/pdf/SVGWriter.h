#pragma once

#include "pdf/SVGPictures.h"
#include "pdf/SVGText.h"

#include <map>
#include <mupdf/fitz.h>
#include <string>
#include <utility>
#include <vector>

// How a text or a path is painted.
struct SVGPaint {
    fz_colorspace* space;
    const float* colour;
    float alpha;
    fz_color_params params;
    const fz_stroke_state* stroke; // null to fill
};

// Writes SVG files, one page after the other, in which each glyph is defined once. It is called
// from MuPDF's C functions: exceptions must not pass through these. Errors of MuPDF do pass through
// its functions, which own nothing then.
class SVGWriter {
public:
    explicit SVGWriter(fz_context* ofEngine);
    ~SVGWriter() { forgetFonts(); }
    SVGWriter(const SVGWriter&) = delete;
    SVGWriter& operator=(const SVGWriter&) = delete;

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
    using GlyphKey = std::pair<fz_font*, int>;

    void forgetFonts();
    bool isOutside(fz_rect area) const;
    fz_rect visible() const;
    void writePaint(const SVGPaint& paint, float strokeScale);
    void writeStroke(const fz_stroke_state& stroke, float scale);
    void writeMatrix(const fz_matrix& matrix);
    void writeSpan(const fz_text_span& span, const fz_matrix& matrix, const SVGPaint& paint);
    const std::string* outlineOf(fz_font* font, int glyph);
    int nameOf(fz_font* font, int glyph);

    fz_context* iContext;
    std::map<GlyphKey, std::string> iOutlines; // of all pages
    std::map<GlyphKey, int> iNames;            // of the glyphs of this page; 0 for empty ones
    int iGlyphs = 0;
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
    SVGText iDefinitions;
    SVGText iOutline;
    SVGPictures iPictures;
    std::string iPictureElements; // their definitions
    std::size_t iMostPictureBytes = 0;
    int iPictureCount = 0;
};
