#include "Pictures.h"

#include <QColor>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

namespace {

constexpr int kTile = 512; // a power of two, so that coordinates wrap with a mask
constexpr int kRidges = 5;

using Tile = std::vector<signed char>;

// Values at lattice points, smoothly mixed between, several sizes added up. Wraps at its edges.
Tile cloudTile() {
    std::mt19937 random(20240);
    std::vector<float> sum(kTile * kTile, 0.0F);
    float weight = 60.0F;
    for (int cells = 4; cells <= kTile / 2; cells *= 2) {
        std::vector<float> lattice(static_cast<size_t>(cells * cells));
        for (float& value : lattice)
            value = static_cast<float>(random() % 2001) / 1000.0F - 1.0F;
        const int step = kTile / cells;
        const auto at = [&](int x, int y) {
            return lattice[static_cast<size_t>((y % cells) * cells + x % cells)];
        };
        for (int y = 0; y < kTile; ++y) {
            const float fy = static_cast<float>(y % step) / static_cast<float>(step);
            const float sy = fy * fy * (3 - 2 * fy);
            for (int x = 0; x < kTile; ++x) {
                const float fx = static_cast<float>(x % step) / static_cast<float>(step);
                const float sx = fx * fx * (3 - 2 * fx);
                const int cx = x / step;
                const int cy = y / step;
                const float top = std::lerp(at(cx, cy), at(cx + 1, cy), sx);
                const float bottom = std::lerp(at(cx, cy + 1), at(cx + 1, cy + 1), sx);
                sum[static_cast<size_t>(y * kTile + x)] += weight * std::lerp(top, bottom, sy);
            }
        }
        weight *= 0.58F;
    }
    Tile tile(sum.size());
    std::transform(sum.begin(), sum.end(), tile.begin(), [](float value) {
        return static_cast<signed char>(std::clamp(value, -128.0F, 127.0F));
    });
    return tile;
}

int cloud(int x, int y) {
    static const Tile tile = cloudTile();
    return tile[static_cast<size_t>((y & (kTile - 1)) * kTile + (x & (kTile - 1)))];
}

struct Rgb {
    int r, g, b;
};

Rgb mix(const Rgb& from, const Rgb& to, int share, int whole) {
    return {from.r + (to.r - from.r) * share / whole, from.g + (to.g - from.g) * share / whole,
            from.b + (to.b - from.b) * share / whole};
}

Rgb hsv(int hue, int saturation, int value) {
    const QColor color = QColor::fromHsv(hue % 360, saturation, value);
    return {color.red(), color.green(), color.blue()};
}

// What differs from picture to picture.
class Scene {
public:
    Scene(QSize size, unsigned seed) : iSize(size), iRandom(seed * 7919U + 17U) {
        iShiftX = below(kTile);
        iShiftY = below(kTile);
        iSkyTop = hsv(175 + below(115), 150, 150);
        iSkyBottom = hsv(5 + below(60), 100, 250);
        iSun =
            QPoint(size.width() * (15 + below(70)) / 100, size.height() * (12 + below(25)) / 100);
        iSunRadius = size.width() / 18;
        const int land = 60 + below(230);
        for (int ridge = 0; ridge < kRidges; ++ridge) {
            iRidgeColors[ridge] = hsv(land + ridge * 9, 60 + ridge * 26, 190 - ridge * 32);
            addRidge(ridge);
        }
    }

    // The pixel's colour before its grain.
    Rgb color(int x, int y) const {
        for (int ridge = kRidges - 1; ridge >= 0; --ridge) {
            const int depth = y - iRidges[ridge][static_cast<size_t>(x)];
            if (depth >= 0)
                return land(ridge, depth, x, y);
        }
        return sky(x, y);
    }

private:
    int below(int bound) { return static_cast<int>(iRandom() % static_cast<unsigned>(bound)); }

    void addRidge(int ridge) {
        const double height = iSize.height();
        const double base = height * (0.42 + 0.12 * ridge);
        const double phase = below(1000) / 100.0;
        auto& line = iRidges[ridge];
        line.resize(static_cast<size_t>(iSize.width()));
        for (int x = 0; x < iSize.width(); ++x) {
            const double t = x / static_cast<double>(iSize.width());
            const double wave = std::sin(t * (5 + ridge) + phase) * 0.05 +
                                std::sin(t * 17 + phase * 3) * 0.018 +
                                cloud(x * 600 / iSize.width() + iShiftX, ridge * 90) * 0.0004;
            line[static_cast<size_t>(x)] = static_cast<int>(base - height * wave);
        }
    }

    Rgb land(int ridge, int depth, int x, int y) const {
        const int haze = std::min(depth * 400 / iSize.height(), 100);
        const Rgb lit = mix(iSkyBottom, iRidgeColors[ridge], 55 + haze * 45 / 100, 100);
        const int rough = cloud(x + ridge * 131 + iShiftX, y * 2 + iShiftY) * (ridge + 1) / 9;
        return {lit.r + rough, lit.g + rough, lit.b + rough * 3 / 4};
    }

    Rgb sky(int x, int y) const {
        Rgb result = mix(iSkyTop, iSkyBottom, y, iSize.height() / 2 + iSize.height() / 5);
        const int dx = x - iSun.x();
        const int dy = y - iSun.y();
        const int distance = (dx * dx + dy * dy) / iSunRadius;
        if (distance < iSunRadius)
            return {255, 250, 232};
        result = mix(result, {255, 236, 190}, iSunRadius * 100 / distance, 130);
        const int veil = std::max(0, cloud(x / 2 + iShiftX, y + iShiftY));
        return mix(result, {255, 255, 255}, veil, 200);
    }

    QSize iSize;
    std::mt19937 iRandom;
    int iShiftX = 0;
    int iShiftY = 0;
    Rgb iSkyTop{};
    Rgb iSkyBottom{};
    QPoint iSun;
    int iSunRadius = 1;
    std::array<Rgb, kRidges> iRidgeColors{};
    std::array<std::vector<int>, kRidges> iRidges;
};

char byte(int value) {
    return static_cast<char>(std::clamp(value, 0, 255));
}

} // namespace

int Pictures::grain(int x, int y, unsigned seed) {
    unsigned hash = static_cast<unsigned>(x) * 374761393U + static_cast<unsigned>(y) * 668265263U +
                    seed * 2246822519U;
    hash = (hash ^ (hash >> 13)) * 1274126177U;
    return static_cast<int>((hash >> 16) & 255U) - 128;
}

QByteArray Pictures::landscape(QSize size, unsigned seed) {
    const Scene scene(size, seed);
    QByteArray pixels(qsizetype(3) * size.width() * size.height(), Qt::Uninitialized);
    char* out = pixels.data();
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const Rgb color = scene.color(x, y);
            const int noise = grain(x, y, seed) / 24;
            *out++ = byte(color.r + noise);
            *out++ = byte(color.g + noise);
            *out++ = byte(color.b + noise);
        }
    }
    return pixels;
}

QImage Pictures::landscapeImage(QSize size, unsigned seed) {
    const QByteArray pixels = landscape(size, seed);
    return QImage(reinterpret_cast<const uchar*>(pixels.constData()), size.width(), size.height(),
                  3 * size.width(), QImage::Format_RGB888)
        .copy();
}

QByteArray Pictures::grayLandscape(QSize size, unsigned seed) {
    const QByteArray colored = landscape(size, seed);
    QByteArray gray(qsizetype(size.width()) * size.height(), Qt::Uninitialized);
    for (qsizetype i = 0; i < gray.size(); ++i) {
        const auto at = [&](int channel) {
            return static_cast<unsigned char>(colored[3 * i + channel]);
        };
        gray[i] = static_cast<char>((at(0) * 3 + at(1) * 6 + at(2)) / 10);
    }
    return gray;
}
