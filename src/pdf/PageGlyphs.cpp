#include "pdf/PageGlyphs.h"

#include "pdf/GlyphOutline.h"

#include <algorithm>

namespace {

constexpr float outlineUnitsPerEm = PageGlyphs::unitsPerEm / 2;

// The outlines of a document that are kept from page to page.
constexpr std::size_t maxOutlines = 10'000;

// Of the outlines of one page, and of one outline.
constexpr std::size_t maxLineBytes = std::size_t{1} << 20;

// A wrong one costs bytes only: the pen is moved.
int advanceOf(float ems) {
    constexpr int most = int(GlyphOutline::endOfLetters - GlyphOutline::firstNumber) - 1;
    return std::clamp(roundedUnits(ems * PageGlyphs::unitsPerEm), 0, most);
}

} // namespace

PageGlyphs::PageGlyphs(fz_context* ofEngine)
    : iContext(ofEngine), iLines(maxLineBytes), iLine(maxLineBytes) {}

void PageGlyphs::forgetFonts() {
    for (const auto& entry : iOutlines)
        fz_drop_font(iContext, entry.first.first);
    iOutlines.clear();
}

void PageGlyphs::begin() {
    if (iOutlines.size() > maxOutlines)
        forgetFonts();
    iGlyphs.clear();
    iCount = 0;
    iLines.clear();
}

const PageGlyphs::Outline* PageGlyphs::outlineOf(const Key& key) {
    if (const auto known = iOutlines.find(key); known != iOutlines.end())
        return &known->second;
    const auto [font, glyph] = key;
    fz_path* path = nullptr;
    float advance = 0;
    fz_var(path);
    fz_var(advance);
    fz_try(iContext) {
        advance = fz_advance_glyph(iContext, font, glyph, 0);
        path = fz_outline_glyph(iContext, font, glyph, fz_identity);
    }
    fz_catch(iContext) {
        return nullptr;
    }
    Outline outline;
    outline.advance = advanceOf(advance);
    iLine.clear();
    const bool isCorrect =
        !path ||
        GlyphOutline::write(iContext, path, fz_scale(outlineUnitsPerEm, outlineUnitsPerEm), iLine);
    fz_drop_path(iContext, path);
    if (!iLine.view().empty())
        iLine.letter(GlyphOutline::firstNumber + unsigned(outline.advance)) << "\n";
    if (!isCorrect || iLine.isFull())
        return nullptr;
    outline.line = iLine.view();
    const auto added = iOutlines.emplace(key, std::move(outline)).first;
    fz_keep_font(iContext, font);
    return &added->second;
}

const PageGlyphs::Glyph* PageGlyphs::find(fz_font* font, int glyph) {
    const Key key{font, glyph};
    if (const auto known = iGlyphs.find(key); known != iGlyphs.end())
        return &known->second;
    const Outline* outline = outlineOf(key);
    if (!outline || firstLetter + unsigned(iCount) == GlyphOutline::endOfLetters)
        return nullptr;
    Glyph found;
    if (!outline->line.empty()) {
        found = {iCount++, outline->advance};
        iLines << outline->line;
    }
    return &iGlyphs.emplace(key, found).first->second;
}
