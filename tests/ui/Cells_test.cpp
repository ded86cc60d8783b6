#include "ui/FlashTmplColorCell.h"
#include "ui/FlashTmplFileCell.h"
#include "ui/ImagePreviewCell.h"

#include "support/RecordedLog.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

const QRectF wide(100, 50, 200, 20);

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

QSizeF sizeOf(const TextFieldCell& cell, const QString& text) {
    const QFontMetricsF metrics(cell.font());
    return {metrics.horizontalAdvance(text), metrics.height()};
}

QImage drawn(const TextFieldCell& cell, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(cell.isHighlighted() ? Qt::darkBlue : Qt::white);
    QPainter painter(&image);
    cell.drawInteriorWithFrame(painter, QRectF(QPointF(0, 0), size));
    return image;
}

bool hasInk(const QImage& image, const QRect& rect) {
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white))
                return true;
        }
    }
    return false;
}

// A mouse over a cell in a view.
class CellMouse {
public:
    explicit CellMouse(TextFieldCell& cell) : iCell(cell) {}

    bool press(const QPointF& at) { return send(QEvent::MouseButtonPress, at); }
    bool move(const QPointF& at) { return send(QEvent::MouseMove, at); }
    bool release(const QPointF& at) { return send(QEvent::MouseButtonRelease, at); }

private:
    bool send(QEvent::Type type, const QPointF& at) {
        const QMouseEvent event(type, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        return iCell.trackMouse(event, wide, iView);
    }

    TextFieldCell& iCell;
    QWidget iView;
};

} // namespace

TEST(ColorCell, LeavesRoomForSwatchAndButtonRoom) {
    const FlashTmplColorCell cell(text("0xff0000"));
    const QSizeF size = sizeOf(cell, cell.title());
    EXPECT_EQ(cell.titleRectForBounds(wide), QRectF(124, 51, size.width(), size.height()));
    EXPECT_EQ(cell.imageRectForBounds(wide), QRectF(105, 51, 15, 15));
    EXPECT_EQ(cell.infoButtonRectForBounds(wide), cell.imageRectForBounds(wide));
    EXPECT_EQ(cell.titleRectForBounds(QRectF(0, 0, 60, 20)).width(), 19);
    EXPECT_EQ(cell.titleRectForBounds(QRectF(0, 0, 30, 20)).width(), 0);
    EXPECT_EQ(cell.cellSizeForBounds(wide), QSizeF(size.width() + 41, 17));
    EXPECT_EQ(cell.cellSizeForBounds(QRectF(0, 0, 50, 10)), QSizeF(50, 10));
    EXPECT_EQ(FlashTmplColorCell().cellSizeForBounds(wide), QSizeF(41, 17));
}

TEST(ColorCell, StartsRedAndWritesAPickedColourIntoItsText) {
    FlashTmplColorCell cell(text("anything"));
    EXPECT_EQ(cell.color(), QColor(Qt::red));
    cell.setColor(Qt::blue);
    EXPECT_EQ(cell.title(), text("anything"));
    cell.setColor2(QColor(0x12, 0xab, 0x00));
    EXPECT_EQ(cell.color(), QColor(0x12, 0xab, 0x00));
    EXPECT_EQ(cell.title(), text("0x12ab00"));
}

TEST(ColorCell, DrawsItsSwatchEvenWithoutText) {
    FlashTmplColorCell cell;
    cell.setColor(Qt::darkGreen);
    const QImage image = drawn(cell, QSize(100, 20));
    EXPECT_EQ(image.pixelColor(12, 8), QColor(Qt::darkGreen));
    EXPECT_EQ(image.pixelColor(5, 8), QColor(Qt::gray));
    EXPECT_EQ(image.pixelColor(4, 8), QColor(Qt::white));
    EXPECT_FALSE(hasInk(image, QRect(24, 0, 76, 20)));
}

TEST(FileCell, HasItsButtonAtTheRightEdge) {
    FlashTmplFileCell cell;
    cell.setFileName2(text("/home/me/picture.png"));
    const QSizeF size = sizeOf(cell, cell.title());
    EXPECT_EQ(cell.titleRectForBounds(wide), QRectF(104, 51, size.width(), size.height()));
    EXPECT_EQ(cell.infoButtonRectForBounds(wide), QRectF(286, 53, 13, 13));
    EXPECT_EQ(cell.infoButtonRectForBounds(QRectF(0, 0, 20.4, 20)), QRectF(6, 3, 13, 13));
    EXPECT_TRUE(cell.infoButtonRectForBounds(QRectF(0, 0, 12, 20)).isEmpty());
    EXPECT_EQ(cell.hitTestForEvent(QPointF(5, 5), QRectF(0, 0, 12, 20)), hitNone);
    EXPECT_EQ(cell.cellSizeForBounds(wide), QSizeF(size.width() + 21, 3));
}

TEST(ImageCell, LaysOutPictureTextsAndButton) {
    ImagePreviewCell cell(text("Title"));
    const QRectF bounds(10, 20, 300, 40);
    const QSizeF size = sizeOf(cell, cell.title());
    EXPECT_EQ(cell.titleRectForBounds(bounds), QRectF(51, 24, size.width(), size.height()));
    EXPECT_EQ(cell.infoButtonRectForBounds(bounds),
              QRectF(std::round(51 + size.width() + 4), 26, 13, 13));
    EXPECT_EQ(cell.imageRectForBounds(bounds), QRectF(15, 24, 32, 32));
    EXPECT_TRUE(cell.subTitleRectForBounds(bounds).isEmpty());
    cell.setSubTitle(text("A second line"));
    EXPECT_EQ(cell.subTitleRectForBounds(bounds),
              QRectF(51, 24 + size.height(), sizeOf(cell, cell.subTitle()).width(), size.height()));
    EXPECT_EQ(cell.subTitleRectForBounds(QRectF(10, 20, 60, 40)).width(), 19);
    cell.setImage(QPixmap(20, 11));
    EXPECT_EQ(cell.imageRectForBounds(bounds), QRectF(21, 35, 20, 11));
    EXPECT_EQ(cell.cellSizeForBounds(QRectF(0, 0, 300, 60)), QSizeF(size.width() + 58, 40));
    EXPECT_TRUE(cell.infoButtonRectForBounds(QRectF(0, 0, 57, 40)).isEmpty());
}

TEST(ImageCell, DrawsADashedFrameWithoutAPicture) {
    const QImage image = drawn(ImagePreviewCell(), QSize(60, 40));
    int gray = 0;
    int white = 0;
    for (int x = 6; x < 36; ++x)
        ++(image.pixelColor(x, 4) == QColor(Qt::white) ? white : gray);
    EXPECT_GT(gray, 12);
    EXPECT_GT(white, 5);
    EXPECT_FALSE(hasInk(image, QRect(8, 8, 24, 24)));
}

TEST(CellHits, TellTextFromButtonFromPicture) {
    FlashTmplColorCell color(text("0xff0000"));
    FlashTmplFileCell file(text("a.png"));
    ImagePreviewCell image(text("Title"));
    image.setSubTitle(text("Second"));
    const QRectF tall(100, 50, 200, 40);
    struct Case {
        const TextFieldCell& cell;
        QRectF bounds;
        QPointF at;
        int hit;
    };
    for (const auto& [cell, bounds, at, hit] :
         {Case{color, wide, {126, 55}, 3}, Case{color, wide, {110, 60}, 5},
          Case{color, wide, {290, 60}, 0}, Case{file, wide, {106, 55}, 3},
          Case{file, wide, {290, 60}, 5}, Case{file, wide, {101, 69}, 0},
          Case{image, tall, {110, 60}, 1}, Case{image, tall, {143, 56}, 3},
          Case{image, tall, image.subTitleRectForBounds(tall).center(), 1},
          Case{image, tall, image.infoButtonRectForBounds(tall).center(), 5},
          Case{image, tall, {299, 89}, 0}})
        EXPECT_EQ(cell.hitTestForEvent(at, bounds), hit) << at.x() << ',' << at.y();
}

TEST(CellButton, ActsWhenAClickEndsInside) {
    FlashTmplFileCell cell;
    int actions = 0;
    cell.setInfoButtonAction([&](TextFieldCell& sender) {
        EXPECT_EQ(&sender, &cell);
        ++actions;
    });
    const QPointF inside(292, 58);
    const QPointF outside(200, 58);
    CellMouse mouse(cell);

    EXPECT_FALSE(mouse.press(inside));
    EXPECT_EQ(cell.infoButtonImage(), text("info-normal-mouse"));
    EXPECT_TRUE(mouse.release(inside));
    EXPECT_EQ(actions, 1);
    EXPECT_EQ(cell.infoButtonImage(), text("info-normal"));

    mouse.press(inside);
    mouse.move(outside);
    EXPECT_FALSE(cell.isMouseDownInInfoButton());
    EXPECT_TRUE(mouse.release(outside));
    EXPECT_EQ(actions, 1);

    mouse.press(outside);
    mouse.move(inside);
    mouse.release(inside);
    EXPECT_EQ(actions, 2);
    mouse.release(inside);
    EXPECT_EQ(actions, 2);
}

TEST(CellButton, WithoutAnActionTellsOnlyThatItWasClicked) {
    FlashTmplColorCell cell;
    const RecordedLog log;
    CellMouse mouse(cell);
    mouse.press(QPointF(110, 60));
    mouse.release(QPointF(110, 60));
    EXPECT_EQ(log.texts(), QStringList{text("Trigger action now....")});
    cell.setInfoButtonAction([](TextFieldCell&) {});
    mouse.press(QPointF(110, 60));
    mouse.release(QPointF(110, 60));
    EXPECT_EQ(log.texts().mid(1),
              (QStringList{text("Trigger action now...."), text("Trigger action now 222...."),
                           text("send action ok")}));
}

TEST(CellButton, HasAPictureForEachState) {
    FlashTmplFileCell cell;
    QList<QImage> images;
    for (const bool highlighted : {false, true}) {
        cell.setHighlighted(highlighted);
        const QString name = highlighted ? text("info-selected") : text("info-normal");
        EXPECT_EQ(cell.infoButtonImage(), name);
        images << drawn(cell, QSize(40, 20));
        cell.mouseEntered();
        EXPECT_EQ(cell.infoButtonImage(), name + text("-hovered"));
        images << drawn(cell, QSize(40, 20));
        CellMouse mouse(cell);
        mouse.press(QPointF(292, 58));
        EXPECT_EQ(cell.infoButtonImage(), name + text("-mouse"));
        images << drawn(cell, QSize(40, 20));
        mouse.release(QPointF(0, 0));
        cell.mouseExited();
    }
    for (qsizetype one = 0; one < images.size(); ++one) {
        for (qsizetype other = 0; other < one; ++other)
            EXPECT_FALSE(images[one] == images[other]) << one << ' ' << other;
    }
}

TEST(CellButton, TakesNoteOfAPointerThatIsThereAlready) {
    FlashTmplFileCell cell;
    EXPECT_EQ(cell.addTrackingAreas(wide, QPointF(0, 0)), QRectF(286, 53, 13, 13));
    EXPECT_FALSE(cell.isMouseHoveredInInfoButton());
    cell.addTrackingAreas(wide, QPointF(290, 55));
    EXPECT_TRUE(cell.isMouseHoveredInInfoButton());
}

TEST(CellTip, IsALittleWiderThanAPlainOne) {
    EXPECT_EQ(TextFieldCell::expansionFrame(QRectF(10, 10, 50, 20)), QRectF(8, 10, 54, 20));
    EXPECT_TRUE(TextFieldCell::expansionFrame(QRectF()).isEmpty());
}
