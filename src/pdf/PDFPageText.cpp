#include "pdf/PDFLimits.h"
#include "pdf/PDFRecording.h"

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
           std::isfinite(box.y0) && std::isfinite(box.x1) && std::isfinite(box.y1);
}

PDFTextLine lineFrom(const fz_stext_line& source, std::size_t& characters) {
    PDFTextLine line;
    line.turn = turnOf(source.dir);
    const bool upright = line.turn % 180 == 0;
    QRectF box;
    std::vector<PDFTextCharacter> found;
    for (const fz_stext_char* character = source.first_char;
         character && characters < PDFLimits::maxPageCharacters; character = character->next) {
        if (!isUsable(*character))
            continue;
        ++characters;
        const fz_rect place = fz_rect_from_quad(character->quad);
        box |= QRectF(place.x0, place.y0, double(place.x1) - place.x0, double(place.y1) - place.y0);
        found.push_back(
            {char32_t(character->c), upright ? place.x0 : place.y0, upright ? place.x1 : place.y1});
    }
    if (found.empty())
        return line;
    line.box = box;
    PDFText::makeWords(found, upright ? box.x() : box.y(), line);
    return line;
}

} // namespace

std::vector<PDFTextLine> DrawablePage::text() const {
    const Recording& page = *iRecording;
    if (page.textError.front() != '\0') {
        throw PlatformException(ErrorKind::pageUnreadable,
                                QString::fromUtf8(page.textError.data()));
    }
    std::vector<PDFTextLine> lines;
    std::size_t characters = 0;
    for (const fz_stext_block* block = page.text ? page.text->first_block : nullptr; block;
         block = block->next) {
        if (block->type != FZ_STEXT_BLOCK_TEXT)
            continue;
        for (const fz_stext_line* line = block->u.t.first_line; line; line = line->next) {
            PDFTextLine found = lineFrom(*line, characters);
            found.box.translate(-page.bounds.x0, -page.bounds.y0);
            if (!found.words.empty())
                lines.push_back(std::move(found));
        }
    }
    return lines;
}
