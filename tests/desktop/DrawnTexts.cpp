#include "desktop/DrawnTexts.h"

#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QScreen>
#include <QWidget>

namespace {

// Takes note of texts and draws nothing.
class TextEngine : public QPaintEngine {
public:
    TextEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                    const QRectF& /*from*/) override {}
    void drawImage(const QRectF& /*to*/, const QImage& /*image*/, const QRectF& /*from*/,
                   Qt::ImageConversionFlags /*flags*/) override {}
    void drawTiledPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                         const QPointF& /*from*/) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QRectF box(at.x(), at.y() - item.ascent(), item.width(),
                         item.ascent() + item.descent());
        const QPaintDevice* device = painter()->device();
        if (device->devType() == QInternal::Widget)
            texts.push_back({item.text(), painter()->deviceTransform().mapRect(box),
                             static_cast<const QWidget*>(device)});
    }
    Type type() const override { return User; }

    std::vector<DrawnText> texts;
};

// As large as a widget, with the pixels of the screen.
class TextDevice : public QPaintDevice {
public:
    explicit TextDevice(const QSize& size) : iSize(size) {}

    QPaintEngine* paintEngine() const override { return &iEngine; }
    const std::vector<DrawnText>& texts() const { return iEngine.texts; }

private:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth:
            return iSize.width();
        case PdmHeight:
            return iSize.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch());
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDepth:
            return 32;
        default:
            return 0;
        }
    }

    QSize iSize;
    mutable TextEngine iEngine;
};

} // namespace

std::vector<DrawnText> DrawnText::in(QWidget& widget) {
    TextDevice device(widget.size());
    widget.render(&device);
    return device.texts();
}
