#include "ui/FlashTmplColorCell.h"
#include "ui/FlashTmplFileCell.h"
#include "ui/ImagePreviewCell.h"
#include "ui/SelectTmplItemCell.h"

#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

const QRectF bounds(100, 50, 200, 40);
const QPointF inButton(292, 58); // of a file cell
const QPointF outside(200, 58);

QImage drawn(const TextFieldCell& cell, const QSize& size = {100, 40}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(cell.isHighlighted() ? Qt::darkBlue : Qt::white);
    QPainter painter(&image);
    cell.drawInteriorWithFrame(painter, QRectF(QPointF(0, 0), size));
    return image;
}

void mouse(TextFieldCell& cell, QEvent::Type type, const QPointF& at) {
    QWidget view;
    const QMouseEvent event(type, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    EXPECT_EQ(cell.trackMouse(event, bounds, view), type == QEvent::MouseButtonRelease);
}

} // namespace

TEST(Cells, PlaceTextButtonAndPicture) {
    const FlashTmplColorCell color("0xff0000");
    const FlashTmplFileCell file("a.png");
    ImagePreviewCell image("Title");
    const SelectTmplItemCell tmpl("float");
    const QFontMetricsF font(color.font());
    const auto text = [&](qreal x, qreal y, const QString& shown) {
        return QRectF(x, y, font.horizontalAdvance(shown), font.height());
    };
    const QRectF title = text(141, 54, "Title");
    EXPECT_TRUE(image.subTitleRectForBounds(bounds).isEmpty());
    image.setSubTitle("A second line");
    const std::pair<QRectF, QRectF> places[] = {
        {color.titleRectForBounds(bounds), text(124, 51, "0xff0000")},
        {color.infoButtonRectForBounds(bounds), {105, 51, 15, 15}},
        {file.titleRectForBounds(bounds), text(104, 51, "a.png")},
        {file.infoButtonRectForBounds(bounds), {286, 53, 13, 13}},
        {file.infoButtonRectForBounds(QRectF(0, 0, 20.4, 20)), {6, 3, 13, 13}},
        {file.infoButtonRectForBounds(QRectF(0, 0, 12, 20)), {}},
        {image.titleRectForBounds(bounds), title},
        {image.subTitleRectForBounds(bounds), text(141, title.bottom(), "A second line")},
        {image.infoButtonRectForBounds(bounds), {std::round(title.right() + 4), 56, 13, 13}},
        {image.infoButtonRectForBounds(QRectF(0, 0, 57, 40)), {}},
        {image.imageRectForBounds(bounds), {105, 54, 32, 32}},
        {tmpl.titleRectForBounds(bounds), text(135, 51, "float")},
        {tmpl.imageRectForBounds(bounds), {1, 53, 32, 32}},
        {tmpl.imageRectForBounds(QRectF(0, 0, 32.5, 35)), {}},
        {TextFieldCell::expansionFrame(bounds), {98, 50, 204, 40}},
        {TextFieldCell::expansionFrame(QRectF()), {}},
    };
    for (const auto& [is, wanted] : places)
        EXPECT_EQ(is, wanted);
    EXPECT_EQ(file.hitTestForEvent({110, 58}, bounds), hitContentArea | hitEditableTextArea);
    EXPECT_EQ(file.hitTestForEvent(inButton, bounds), hitContentArea | hitTrackableArea);
    EXPECT_EQ(file.hitTestForEvent(outside, bounds), hitNone);
    image.setImage(QPixmap(20, 11));
    EXPECT_EQ(image.imageRectForBounds(bounds), QRectF(111, 65, 20, 11));
    EXPECT_EQ(image.titleRectForBounds(QRectF(0, 0, 60, 40)).width(), 2);
    EXPECT_EQ(color.cellSizeForBounds(bounds), QSizeF(font.horizontalAdvance("0xff0000") + 41, 17));
}

TEST(CellButton, HasAPictureForEachState) {
    FlashTmplFileCell cell;
    QSet<QByteArray> looks;
    const auto look = [&](const QString& name) {
        EXPECT_EQ(cell.infoButtonImage(), name);
        const QImage image = drawn(cell, {40, 20});
        looks << QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    };
    for (const auto& [pointer, name] :
         {std::pair{outside, "info-normal"}, {inButton, "info-normal-hovered"}}) {
        EXPECT_EQ(cell.addTrackingAreas(bounds, pointer), cell.infoButtonRectForBounds(bounds));
        EXPECT_EQ(cell.infoButtonImage(), name);
    }
    cell.mouseExited();
    for (const QString name : {"info-normal", "info-selected"}) {
        cell.setHighlighted(name == "info-selected");
        look(name);
        cell.mouseEntered();
        look(name + "-hovered");
        mouse(cell, QEvent::MouseButtonPress, inButton);
        look(name + "-mouse");
        mouse(cell, QEvent::MouseButtonRelease, outside);
        mouse(cell, QEvent::MouseButtonPress, inButton);
        mouse(cell, QEvent::MouseButtonRelease, inButton); // without an action
        cell.mouseExited();
    }
    EXPECT_EQ(looks.size(), 6);
}
