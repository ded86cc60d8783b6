#include "ui/Icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace {

// Renders the SVG for each size instead of scaling a bitmap.
class VectorEngine : public QIconEngine {
public:
    VectorEngine(QByteArray drawing, const QColor& ink) : iDrawing(std::move(drawing)) {
        iDrawing.replace("currentColor", ink.name().toLatin1());
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        QSvgRenderer renderer(iDrawing);
        painter->save();
        if (mode == QIcon::Disabled)
            painter->setOpacity(painter->opacity() * 0.35);
        renderer.render(painter, rect);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect({0, 0}, size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new VectorEngine(*this); }

private:
    QByteArray iDrawing;
};

} // namespace

QIcon Icons::icon(const QString& name, const QColor& ink) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new VectorEngine(file.readAll(), ink));
}
