#include "pdf/VectorPage.h"

#include <QList>

#include <array>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace {

// A thousandth of an em or of a point is less than a hundredth of a pixel.
constexpr int digits = 3;

// Without leading and trailing zeros.
QByteArray shortNumber(double number, int decimals = digits) {
    QByteArray text = QByteArray::number(number, 'f', decimals);
    while (text.contains('.') && (text.endsWith('0') || text.endsWith('.')))
        text.chop(1);
    if (text == "-0")
        return "0";
    if (text.startsWith("0."))
        return text.mid(1);
    if (text.startsWith("-0."))
        return '-' + text.mid(2);
    return text;
}

// A <use> element that places a glyph.
struct Glyph {
    QByteArray name;
    std::array<double, 6> matrix{};
    QByteArray rest; // further attributes

    bool sharesSpaceWith(const Glyph& other) const {
        return rest == other.rest && std::equal(matrix.begin(), matrix.begin() + 4,
                                                other.matrix.begin(), other.matrix.begin() + 4);
    }
};

std::optional<std::array<double, 6>> matrixFrom(const QByteArray& text) {
    const auto parts = text.split(',');
    std::array<double, 6> matrix{};
    if (parts.size() != int(matrix.size()))
        return std::nullopt;
    for (int i = 0; i < parts.size(); ++i)
        matrix[std::size_t(i)] = parts[i].toDouble();
    const double determinant = matrix[0] * matrix[3] - matrix[1] * matrix[2];
    return std::abs(determinant) > 1e-9 ? std::optional(matrix) : std::nullopt;
}

// Removes ' NAME="VALUE"' from an element and returns the value.
QByteArray takeAttribute(QByteArray& element, const QByteArray& name) {
    const QByteArray begin = ' ' + name + "=\"";
    const qsizetype at = element.indexOf(begin);
    const qsizetype from = at + begin.size();
    const qsizetype end = at < 0 ? -1 : element.indexOf('"', from);
    if (end < 0)
        return {};
    const QByteArray value = element.mid(from, end - from);
    element.remove(at, end + 1 - at);
    return value;
}

std::optional<Glyph> glyphFrom(QByteArray line) {
    if (!line.startsWith("<use ") || !line.endsWith("/>"))
        return std::nullopt;
    Glyph glyph;
    takeAttribute(line, "data-text");
    glyph.name = takeAttribute(line, "xlink:href").mid(1);
    const QByteArray transform = takeAttribute(line, "transform");
    if (glyph.name.isEmpty() || !transform.startsWith("matrix(") || !transform.endsWith(')'))
        return std::nullopt;
    const auto matrix = matrixFrom(transform.mid(7).chopped(1));
    if (!matrix)
        return std::nullopt;
    glyph.matrix = *matrix;
    glyph.rest = line.mid(4).chopped(2);
    return glyph;
}

// "font_1_36" becomes "1_36".
QByteArray shortName(const QByteArray& name) {
    return name.startsWith("font_") ? 'f' + name.mid(5) : name;
}

class Compactor {
public:
    QByteArray run(const QByteArray& svg) {
        for (const QByteArray& line : svg.split('\n'))
            take(line);
        endGroup();
        return iResult;
    }

private:
    void take(const QByteArray& line) {
        if (const auto glyph = glyphFrom(line)) {
            place(*glyph);
            return;
        }
        endGroup();
        iResult += shortenNumbers(line);
        iResult += '\n';
    }

    void place(const Glyph& glyph) {
        if (!iGroup || !iGroup->sharesSpaceWith(glyph)) {
            endGroup();
            iGroup = glyph;
            iResult += "<g" + glyph.rest + " transform=\"matrix(";
            for (std::size_t i = 0; i < 4; ++i)
                iResult += shortNumber(glyph.matrix[i], 5) + ',';
            iResult += "0,0)\">\n";
        }
        const auto& [a, b, c, d, e, f] = glyph.matrix;
        const double determinant = a * d - b * c;
        iResult += "<use href=\"#" + shortName(glyph.name) + "\" x=\"" +
                   shortNumber((d * e - c * f) / determinant) + "\" y=\"" +
                   shortNumber((a * f - b * e) / determinant) + "\"/>\n";
    }

    void endGroup() {
        if (iGroup)
            iResult += "</g>\n";
        iGroup.reset();
    }

    // Shortens the glyphs' ids and the numbers of their outlines.
    static QByteArray shortenNumbers(const QByteArray& line) {
        const QByteArray glyph = "<path id=\"font_";
        if (!line.startsWith(glyph))
            return line;
        const QByteArray begin = "\" d=\"";
        const qsizetype at = line.indexOf(begin);
        const qsizetype end = line.indexOf('"', at + begin.size());
        if (at < 0 || end < 0)
            return line;
        const qsizetype from = at + begin.size();
        return "<path id=\"f" + line.mid(glyph.size(), at - glyph.size()) + begin +
               shortenOutline(line.mid(from, end - from)) + line.mid(end);
    }

    static QByteArray shortenOutline(const QByteArray& outline) {
        QByteArray result;
        const char* at = outline.constData();
        const char* const end = at + outline.size();
        while (at < end) {
            if (std::isalpha(static_cast<unsigned char>(*at)) || *at == ' ') {
                result += *at++;
                continue;
            }
            char* next = nullptr;
            const double number = std::strtod(at, &next);
            if (next == at)
                return outline;
            // A minus sign separates two numbers; a decimal point does not in every viewer.
            QByteArray text = shortNumber(number);
            const bool follows =
                !result.isEmpty() && std::isdigit(static_cast<unsigned char>(result.back()));
            if (follows && text.front() != '-')
                result += ' ';
            result += text;
            at = next;
        }
        return result;
    }

    QByteArray iResult;
    std::optional<Glyph> iGroup;
};

} // namespace

QByteArray VectorPage::compact(const QByteArray& svg) {
    return Compactor().run(svg);
}
