#include "pdf/GlyphOutline.h"

namespace {

constexpr char moveCommand = '!';
constexpr char lineCommand = '"';
constexpr char horizontalCommand = '#';
constexpr char verticalCommand = '$';
constexpr char curveCommand = '%';
constexpr char closeCommand = '&';
using GlyphOutline::endOfLetters;
using GlyphOutline::firstNumber;

struct Point {
    int x = 0;
    int y = 0;
};

struct Pen {
    fz_matrix matrix;
    SVGText& to;
    Point at;
    Point start; // of the current subpath
    char command = '\0';
    bool isCorrect = true;

    Point placed(float x, float y) const {
        const fz_point point = fz_transform_point_xy(x, y, matrix);
        return {roundedUnits(point.x), roundedUnits(point.y)};
    }
    void begin(char next) {
        if (command != next || next == moveCommand)
            to << std::string_view(&next, 1);
        command = next;
    }
    void add(int number) {
        const unsigned code = number >= 0 ? 2U * unsigned(number) : 2U * unsigned(-number) - 1;
        isCorrect = isCorrect && code < endOfLetters - firstNumber;
        if (isCorrect)
            to.letter(firstNumber + code);
    }
    void go(Point next) {
        add(next.x - at.x);
        add(next.y - at.y);
        at = next;
    }
};

Pen& penOf(void* pen) {
    return *static_cast<Pen*>(pen);
}

void moveTo(fz_context* /*ctx*/, void* arg, float x, float y) {
    Pen& pen = penOf(arg);
    pen.begin(moveCommand);
    pen.go(pen.placed(x, y));
    pen.start = pen.at;
}

void lineTo(fz_context* /*ctx*/, void* arg, float x, float y) {
    Pen& pen = penOf(arg);
    const Point next = pen.placed(x, y);
    if (next.y == pen.at.y) {
        pen.begin(horizontalCommand);
        pen.add(next.x - pen.at.x);
    } else if (next.x == pen.at.x) {
        pen.begin(verticalCommand);
        pen.add(next.y - pen.at.y);
    } else {
        pen.begin(lineCommand);
        pen.go(next);
    }
    pen.at = next;
}

void curveTo(fz_context* /*ctx*/, void* arg, float x1, float y1, float x2, float y2, float x3,
             float y3) {
    Pen& pen = penOf(arg);
    pen.begin(curveCommand);
    pen.go(pen.placed(x1, y1));
    pen.go(pen.placed(x2, y2));
    pen.go(pen.placed(x3, y3));
}

void closePath(fz_context* /*ctx*/, void* arg) {
    Pen& pen = penOf(arg);
    pen.begin(closeCommand);
    pen.at = pen.start;
}

constexpr fz_path_walker walker{moveTo,  lineTo,  curveTo, closePath,
                                nullptr, nullptr, nullptr, nullptr};

} // namespace

bool GlyphOutline::write(fz_context* ctx, const fz_path* path, const fz_matrix& matrix,
                         SVGText& to) {
    Pen pen{matrix, to, {}, {}};
    fz_walk_path(ctx, path, &walker, &pen);
    return pen.isCorrect;
}
