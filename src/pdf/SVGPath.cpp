#include "pdf/SVGPath.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace {

struct Pen {
    fz_matrix matrix;
    SVGText& to;
    int x = 0, y = 0;           // the current point
    int startX = 0, startY = 0; // of the current subpath
    char command = '\0';        // repeated ones are left out

    fz_point placed(float atX, float atY) const { return fz_transform_point_xy(atX, atY, matrix); }
    void begin(char next) {
        if (command != next)
            to << std::string_view(&next, 1);
        // Coordinates that follow a move-to would be lines.
        command = next == 'm' ? 'l' : next;
    }
    void add(float atX, float atY) {
        const fz_point point = placed(atX, atY);
        to.next(roundedUnits(point.x) - x).next(roundedUnits(point.y) - y);
    }
    void move(float atX, float atY) {
        const fz_point point = placed(atX, atY);
        x = roundedUnits(point.x);
        y = roundedUnits(point.y);
    }
};

Pen& penOf(void* pen) {
    return *static_cast<Pen*>(pen);
}

void moveTo(fz_context* /*ctx*/, void* arg, float x, float y) {
    Pen& pen = penOf(arg);
    pen.to << "m";
    pen.command = 'l';
    pen.add(x, y);
    pen.move(x, y);
    pen.startX = pen.x;
    pen.startY = pen.y;
}

void lineTo(fz_context* /*ctx*/, void* arg, float x, float y) {
    Pen& pen = penOf(arg);
    const fz_point point = pen.placed(x, y);
    const int right = roundedUnits(point.x) - pen.x;
    const int down = roundedUnits(point.y) - pen.y;
    if (down == 0) {
        pen.begin('h');
        pen.to.next(right);
    } else if (right == 0) {
        pen.begin('v');
        pen.to.next(down);
    } else {
        pen.begin('l');
        pen.to.next(right).next(down);
    }
    pen.move(x, y);
}

void curveTo(fz_context* /*ctx*/, void* arg, float x1, float y1, float x2, float y2, float x3,
             float y3) {
    Pen& pen = penOf(arg);
    pen.begin('c');
    pen.add(x1, y1);
    pen.add(x2, y2);
    pen.add(x3, y3);
    pen.move(x3, y3);
}

void closePath(fz_context* /*ctx*/, void* arg) {
    Pen& pen = penOf(arg);
    pen.to << "z";
    pen.command = '\0';
    pen.x = pen.startX;
    pen.y = pen.startY;
}

constexpr fz_path_walker walker{moveTo,  lineTo,  curveTo, closePath,
                                nullptr, nullptr, nullptr, nullptr};

} // namespace

void writePath(fz_context* ctx, const fz_path* path, const fz_matrix& matrix, SVGText& to) {
    Pen pen{matrix, to};
    fz_walk_path(ctx, path, &walker, &pen);
}

bool isBox(std::string_view path) {
    std::string commands;
    std::copy_if(path.begin(), path.end(), std::back_inserter(commands),
                 [](char letter) { return letter >= 'a'; });
    return commands == "mhvhz" || commands == "mvhvz" || commands == "mhvhvz" ||
           commands == "mvhvhz";
}
