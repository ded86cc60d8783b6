#include "pdf/PDFLimits.h"
#include "pdf/PDFRecording.h"

#include <algorithm>
#include <cmath>

namespace {

// The text direction in degrees, rounded to a multiple of 90.
int turnOf(const fz_point& direction) {
    if (std::abs(direction.x) >= std::abs(direction.y))
        return direction.x >= 0 ? 0 : 180;
    return direction.y >= 0 ? 90 : 270;
}

bool isUsable(const fz_stext_char& character) {
    constexpr int firstPrintable = 0x20;
    constexpr int unknown = 0xFFFD;
    const fz_rect box = fz_rect_from_quad(character.quad);
    return character.c >= firstPrintable && character.c != unknown && std::isfinite(box.x0) &&
           std::isfinite(box.y0) && std::isfinite(box.x1) && std::isfinite(box.y1) &&
           std::isfinite(character.origin.x) && std::isfinite(character.origin.y);
}

// Many documents leave it to the font's name.
bool isMonospaced(fz_context* ctx, fz_font* font) {
    if (fz_font_is_monospaced(ctx, font))
        return true;
    const auto name = QLatin1String(fz_font_name(ctx, font));
    for (const char* part :
         {"Courier", "Mono", "NimbusMon", "Typewriter", "Consola", "Menlo", "cmtt", "sftt"}) {
        if (name.contains(QLatin1String(part), Qt::CaseInsensitive))
            return true;
    }
    return false;
}

int styleOf(fz_context* ctx, fz_font* font) {
    return (fz_font_is_bold(ctx, font) ? boldText : plainText) |
           (fz_font_is_italic(ctx, font) ? italicText : plainText) |
           (isMonospaced(ctx, font) ? monospacedText : plainText);
}

double sizeOf(const fz_stext_char& character) {
    return std::isfinite(character.size) ? std::max(0.0, double(character.size)) : 0;
}

// Collects the letters of a line, and puts what marks replace in the place of their letters.
class LineLetters {
public:
    explicit LineLetters(const DrawablePage::Recording& page)
        : iPage(page), iIsReplaced(page.marks ? page.marks->marks().size() : 0) {}

    void begin() { iFound.clear(); }
    void add(const PDFTextCharacter& letter, const fz_stext_char& source);
    const std::vector<PDFTextCharacter>& end();

private:
    void endReplaced();

    const DrawablePage::Recording& iPage;
    std::vector<PDFTextCharacter> iFound;
    std::vector<bool> iIsReplaced; // by the numbers of marks: each replaces its letters once
    std::size_t iMark = 0;         // that replaces the last letters; 0 for none
    std::size_t iFirst = 0;        // of them
};

void LineLetters::add(const PDFTextCharacter& letter, const fz_stext_char& source) {
    if (!iPage.marks) {
        iFound.push_back(letter);
        return;
    }
    std::size_t mark = iPage.marks->markOf(source);
    const int tag = mark < iPage.tags.ofMarks.size() ? iPage.tags.ofMarks[mark] : -1;
    // A blank before what is replaced stays.
    const bool isBlankBefore = mark != iMark && QChar::isSpace(letter.code);
    if (isBlankBefore || iPage.marks->marks()[mark].replacement.isNull())
        mark = 0;
    if (mark != iMark) {
        endReplaced();
        iMark = mark;
        iFirst = iFound.size();
    }
    iFound.push_back(letter);
    iFound.back().tag = tag;
}

// The replacement takes the room of the letters, in equal parts.
void LineLetters::endReplaced() {
    if (iMark == 0)
        return;
    const std::u32string text = iIsReplaced[iMark]
                                    ? std::u32string()
                                    : iPage.marks->marks()[iMark].replacement.toStdU32String();
    iIsReplaced[iMark] = true;
    PDFTextCharacter letter = iFound[iFirst];
    const double from = letter.from;
    const double step = (iFound.back().to - from) / double(std::max<std::size_t>(1, text.size()));
    iFound.resize(iFirst);
    for (std::size_t i = 0; i < text.size(); ++i) {
        letter.code = text[i];
        letter.from = from + step * double(i);
        letter.to = letter.from + step;
        iFound.push_back(letter);
    }
    iMark = 0;
}

const std::vector<PDFTextCharacter>& LineLetters::end() {
    endReplaced();
    return iFound;
}

PDFTextLine lineFrom(fz_context* ctx, const fz_stext_line& source, LineLetters& letters,
                     std::size_t& characters) {
    PDFTextLine line;
    line.turn = turnOf(source.dir);
    const bool upright = line.turn % 180 == 0;
    QRectF box;
    double largest = -1; // raised and lowered letters are smaller; a blank may follow one of them
    letters.begin();
    const fz_font* font = nullptr; // of the style
    int style = plainText;
    for (const fz_stext_char* character = source.first_char;
         character && characters < PDFLimits::maxPageCharacters; character = character->next) {
        if (!isUsable(*character))
            continue;
        ++characters;
        const fz_rect place = fz_rect_from_quad(character->quad);
        box |= QRectF(place.x0, place.y0, double(place.x1) - place.x0, double(place.y1) - place.y0);
        const double size = sizeOf(*character);
        if (size > largest && !QChar::isSpace(char32_t(character->c))) {
            largest = size;
            line.baseline = upright ? character->origin.y : character->origin.x;
        }
        if (character->font != font) {
            font = character->font;
            style = styleOf(ctx, character->font);
        }
        letters.add({char32_t(character->c), upright ? place.x0 : place.y0,
                     upright ? place.x1 : place.y1, size, style},
                    *character);
    }
    const std::vector<PDFTextCharacter>& found = letters.end();
    if (found.empty())
        return line;
    line.box = box;
    PDFText::makeWords(found, upright ? box.x() : box.y(), line);
    return line;
}

} // namespace

PDFPageText DrawablePage::text() const {
    const Recording& page = *iRecording;
    if (page.textError.front() != '\0') {
        throw PlatformException(ErrorKind::pageUnreadable,
                                QString::fromUtf8(page.textError.data()));
    }
    PDFPageText text{{}, page.tags.tags, {}};
    const QRectF shown(0, 0, width(), double(page.bounds.y1) - page.bounds.y0);
    for (PDFAlternative alternative : page.tags.alternatives) {
        alternative.box.translate(-page.bounds.x0, -page.bounds.y0);
        if (alternative.box.intersects(shown))
            text.alternatives.push_back(std::move(alternative));
    }
    LineLetters letters(page);
    std::size_t characters = 0;
    for (const fz_stext_block* block = page.text ? page.text->first_block : nullptr; block;
         block = block->next) {
        if (block->type != FZ_STEXT_BLOCK_TEXT)
            continue;
        for (const fz_stext_line* line = block->u.t.first_line; line; line = line->next) {
            PDFTextLine found = lineFrom(page.engine.context, *line, letters, characters);
            found.box.translate(-page.bounds.x0, -page.bounds.y0);
            found.baseline -= found.turn % 180 == 0 ? page.bounds.y0 : page.bounds.x0;
            if (!found.words.empty())
                text.lines.push_back(std::move(found));
        }
    }
    return text;
}
