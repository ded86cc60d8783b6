#include "pdf/SVGWriter.h"

#include "pdf/PDFLimits.h"
#include "pdf/SVGPath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

// A larger file would take a browser seconds to draw.
constexpr std::size_t maxPartBytes = std::size_t{1} << 20;

// Units of the file's numbers.
constexpr float unitsPerPoint = 100;

// Thinner lines vanish where a page is small.
constexpr float thinnestLine = 0.1F * unitsPerPoint;

// Whether a circle stays one.
bool keepsCircles(const fz_matrix& matrix) {
    const float tolerance = 1e-3F * (std::abs(matrix.a) + std::abs(matrix.b));
    const bool isTurned =
        std::abs(matrix.a - matrix.d) <= tolerance && std::abs(matrix.b + matrix.c) <= tolerance;
    const bool isMirrored =
        std::abs(matrix.a + matrix.d) <= tolerance && std::abs(matrix.b - matrix.c) <= tolerance;
    return isTurned || isMirrored;
}

} // namespace

SVGWriter::SVGWriter(fz_context* ofEngine)
    : iContext(ofEngine), iGlyphs(ofEngine), iBody(maxPartBytes), iClip(maxPartBytes) {}

void SVGWriter::begin(fz_rect page, std::size_t mostPictureBytes) {
    iGlyphs.begin();
    iClips = 0;
    iLevels.clear();
    iPictureElements.clear();
    iPictureCount = 0;
    iGlyphCount = 0;
    iMostPictureBytes = std::min(mostPictureBytes, PDFLimits::maxVectorBytes - 3 * maxPartBytes);
    iPage = page;
    iToUnits = fz_concat(fz_translate(-page.x0, -page.y0), fz_scale(unitsPerPoint, unitsPerPoint));
    iIsCorrect = true;
    iBody.clear();
}

bool SVGWriter::isCorrect() const {
    return iIsCorrect && !iBody.isFull() && !iGlyphs.isFull();
}

fz_rect SVGWriter::visible() const {
    return iLevels.empty() ? iPage : iLevels.back().visible;
}

bool SVGWriter::isOutside(fz_rect area) const {
    return fz_is_empty_rect(fz_intersect_rect(area, iPage)) && !fz_is_empty_rect(area);
}

// strokeScale is that of a stroke's numbers to those of the element.
void SVGWriter::writePaint(const SVGPaint& paint, float strokeScale) {
    const std::string_view name = paint.stroke ? "stroke" : "fill";
    std::array<float, 3> rgb{};
    fz_convert_color(iContext, paint.space, paint.colour, fz_device_rgb(iContext), rgb.data(),
                     nullptr, paint.params);
    constexpr char digits[] = "0123456789abcdef";
    std::array<char, 7> hex{'#'};
    for (std::size_t i = 0; i < rgb.size(); ++i) {
        const int value = int(std::lrintf(std::fmin(std::fmax(rgb[i], 0.F), 1.F) * 255));
        hex[2 * i + 1] = digits[value >> 4];
        hex[2 * i + 2] = digits[value & 15];
    }
    iBody << (paint.stroke ? " fill=\"none\" " : " ") << name << "=\""
          << std::string_view(hex.data(), hex.size()) << "\"";
    if (paint.alpha < 1)
        iBody << " " << name << "-opacity=\"" << paint.alpha << "\"";
    if (paint.stroke)
        writeStroke(*paint.stroke, strokeScale);
}

void SVGWriter::writeStroke(const fz_stroke_state& stroke, float scale) {
    iBody << " stroke-width=\"" << std::fmax(stroke.linewidth * scale, thinnestLine) << "\"";
    constexpr std::array caps{"", "round", "square", "square"};
    constexpr std::array joins{"", "round", "bevel", ""};
    if (stroke.start_cap != FZ_LINECAP_BUTT)
        iBody << " stroke-linecap=\"" << caps[stroke.start_cap] << "\"";
    if (const std::string_view join = joins[stroke.linejoin]; !join.empty())
        iBody << " stroke-linejoin=\"" << join << "\"";
    else
        iBody << " stroke-miterlimit=\"" << std::fmax(stroke.miterlimit, 1.F) << "\"";
    if (stroke.dash_len == 0)
        return;
    iBody << " stroke-dasharray=\"";
    for (int i = 0; i < stroke.dash_len; ++i)
        iBody << (i > 0 ? " " : "") << stroke.dash_list[i] * scale;
    iBody << "\" stroke-dashoffset=\"" << stroke.dash_phase * scale << "\"";
}

void SVGWriter::writeMatrix(const fz_matrix& matrix) {
    iBody << " transform=\"matrix(" << matrix.a << " " << matrix.b << " " << matrix.c << " "
          << matrix.d << " " << matrix.e << " " << matrix.f << ")\"";
}

// Moves the pen to where the glyph is, unless nobody sees the difference, and beyond it.
void SVGWriter::writeGlyph(const PageGlyphs::Glyph& glyph, fz_point place, Pen& pen) {
    constexpr int smallest = 2;       // step that is seen
    constexpr int maxGlyphs = 40'000; // browsers take seconds for more
    if (++iGlyphCount > maxGlyphs)
        return giveUp();
    const int right = roundedUnits(place.x) - pen.x;
    const int down = roundedUnits(place.y) - pen.y;
    if (std::abs(right) >= smallest || std::abs(down) >= smallest) {
        iBody << right;
        if (down != 0)
            iBody << "," << down;
        pen = {pen.x + right, pen.y + down};
    }
    iBody.letter(PageGlyphs::letterOf(glyph));
    pen.x += glyph.advance;
}

void SVGWriter::text(const fz_text& text, const fz_matrix& matrix, const SVGPaint& paint) {
    for (const fz_text_span* span = text.head; span && isCorrect(); span = span->next) {
        if (fz_font_t3_procs(iContext, span->font))
            giveUp(); // each glyph is a drawing
        else
            writeSpan(*span, matrix, paint);
    }
}

void SVGWriter::writeSpan(const fz_text_span& span, const fz_matrix& matrix,
                          const SVGPaint& paint) {
    constexpr float unitsPerEm = PageGlyphs::unitsPerEm;
    fz_matrix placement = span.trm; // of a glyph
    placement.e = 0;
    placement.f = 0;
    const float em = fz_matrix_expansion(placement);
    const fz_matrix toPage = fz_concat(matrix, iToUnits);
    fz_matrix group = fz_pre_scale(fz_concat(placement, toPage), 1 / unitsPerEm, 1 / unitsPerEm);
    fz_matrix toGroup{};
    Pen pen;
    bool hasBegun = false;
    for (int i = 0; i < span.len; ++i) {
        const fz_text_item& item = span.items[i];
        placement.e = item.x;
        placement.f = item.y;
        if (item.gid < 0 ||
            isOutside(fz_bound_glyph(iContext, span.font, item.gid, fz_concat(placement, matrix))))
            continue;
        const PageGlyphs::Glyph* glyph = iGlyphs.find(span.font, item.gid);
        if (!glyph)
            return giveUp();
        if (glyph->index < 0)
            continue;
        const fz_point place = fz_transform_point_xy(item.x, item.y, toPage);
        if (!std::exchange(hasBegun, true)) {
            group.e = float(roundedUnits(place.x));
            group.f = float(roundedUnits(place.y));
            if (fz_try_invert_matrix(&toGroup, group) != 0)
                return; // too flat to be seen
            iBody << "<g";
            writePaint(paint, em > 0 ? unitsPerEm / em : 1);
            writeMatrix(group);
            iBody << ">";
        }
        writeGlyph(*glyph, fz_transform_point(place, toGroup), pen);
    }
    if (hasBegun)
        iBody << "</g>\n";
}

void SVGWriter::path(const fz_path* path, bool isEvenOdd, const fz_matrix& matrix,
                     const SVGPaint& paint) {
    if (isOutside(fz_bound_path(iContext, path, paint.stroke, matrix)))
        return;
    const fz_matrix toPage = fz_concat(matrix, iToUnits);
    fz_matrix ofPoints = toPage;
    iBody << "<path";
    if (!paint.stroke || keepsCircles(toPage)) {
        writePaint(paint, fz_matrix_expansion(toPage));
    } else {
        // The pen is not round. Units of its own are as fine as those of the page.
        const float scale = fz_matrix_max_expansion(toPage);
        writePaint(paint, scale);
        writeMatrix(fz_pre_scale(toPage, 1 / scale, 1 / scale));
        ofPoints = fz_scale(scale, scale);
    }
    if (isEvenOdd)
        iBody << " fill-rule=\"evenodd\"";
    iBody << " d=\"";
    writePath(iContext, path, ofPoints, iBody);
    iBody << "\"/>\n";
}

void SVGWriter::picture(SVGDrawing drawing) {
    drawing.area = fz_intersect_rect(drawing.area, visible());
    if (fz_is_empty_rect(drawing.area))
        return;
    const SVGPictures::Picture picture = iPictures.make(iContext, drawing);
    if (picture.address.isEmpty() ||
        iPictureElements.size() + std::size_t(picture.address.size()) > iMostPictureBytes) {
        giveUp();
        return;
    }
    const fz_rect place = fz_transform_rect(picture.area, iToUnits);
    SVGText element(256);
    element << "<image id=\"p" << ++iPictureCount << "\" x=\"" << place.x0 << "\" y=\"" << place.y0
            << "\" width=\"" << place.x1 - place.x0 << "\" height=\"" << place.y1 - place.y0
            << "\" preserveAspectRatio=\"none\" href=\"";
    iPictureElements.append(element.view())
        .append(picture.address.constData(), std::size_t(picture.address.size()))
        .append("\"/>\n");
    iBody << "<use href=\"#p" << iPictureCount << "\"/>\n";
}

void SVGWriter::beginClip(const fz_path* path, bool isEvenOdd, const fz_matrix& matrix) {
    iClip.clear();
    writePath(iContext, path, fz_concat(matrix, iToUnits), iClip);
    const fz_rect bounds = fz_bound_path(iContext, path, nullptr, matrix);
    // Most clip to all of the page.
    const bool isAll = fz_contains_rect(bounds, iPage) != 0 && isBox(iClip.view());
    iLevels.push_back({fz_intersect_rect(bounds, visible()), !isAll});
    if (isAll)
        return;
    ++iClips;
    iBody << "<clipPath id=\"c" << iClips << "\"><path"
          << (isEvenOdd ? " clip-rule=\"evenodd\"" : "") << " d=\"" << iClip.view()
          << "\"/></clipPath><g clip-path=\"url(#c" << iClips << ")\">\n";
    if (iClip.isFull())
        giveUp();
}

void SVGWriter::beginGroup(float alpha) {
    iLevels.push_back({visible(), alpha < 1});
    if (alpha < 1)
        iBody << "<g opacity=\"" << alpha << "\">\n";
}

void SVGWriter::end() {
    if (iLevels.empty())
        return;
    if (iLevels.back().hasElement)
        iBody << "</g>\n";
    iLevels.pop_back();
}

std::string SVGWriter::file() const {
    const float width = iPage.x1 - iPage.x0;
    const float height = iPage.y1 - iPage.y0;
    SVGText head(512);
    head << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "pt\" height=\""
         << height << "pt\" viewBox=\"0 0 " << width * unitsPerPoint << " "
         << height * unitsPerPoint
         << "\">\n"
         // On white, like the page's other pictures: it may be shown on top of one of them.
         << "<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n<defs>\n";
    std::string text(head.view());
    return text.append(iGlyphs.lines())
        .append(iPictureElements)
        .append("</defs>\n")
        .append(iBody.view())
        .append("</svg>\n");
}
