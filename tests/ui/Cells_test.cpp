#include "ui/FlashTmplColorCell.h"
#include "ui/FlashTmplFileCell.h"
#include "ui/ImagePreviewCell.h"
#include "ui/SelectTmplItemCell.h"

#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"

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

bool hasInk(const QImage& image, const QRect& rect) {
    QImage blank(rect.size(), image.format());
    blank.fill(Qt::white);
    return image.copy(rect) != blank;
}

// Whether the click is over.
bool mouse(TextFieldCell& cell, QEvent::Type type, const QPointF& at) {
    QWidget view;
    const QMouseEvent event(type, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    return cell.trackMouse(event, bounds, view);
}

constexpr auto press = QEvent::MouseButtonPress;
constexpr auto release = QEvent::MouseButtonRelease;

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
    const QRectF narrow(0, 0, 60, 40);
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
    image.setImage(QPixmap(20, 11));
    EXPECT_EQ(image.imageRectForBounds(bounds), QRectF(111, 65, 20, 11));
    const auto room = [&](const TextFieldCell& cell) {
        return cell.titleRectForBounds(narrow).width();
    };
    EXPECT_EQ(QList<qreal>({room(color), room(image), room(tmpl)}), QList<qreal>({19, 2, 0}));
    EXPECT_EQ(image.subTitleRectForBounds(narrow).width(), 19);
    EXPECT_EQ(color.cellSizeForBounds(bounds), QSizeF(font.horizontalAdvance("0xff0000") + 41, 17));
    EXPECT_EQ(color.cellSizeForBounds(QRectF(0, 0, 50, 10)), QSizeF(50, 10));
    EXPECT_EQ(file.cellSizeForBounds(bounds), QSizeF(font.horizontalAdvance("a.png") + 21, 3));
    EXPECT_EQ(image.cellSizeForBounds(QRectF(0, 0, 300, 60)), QSizeF(title.width() + 58, 40));
}

TEST(Cells, TellTextFromButtonFromPicture) {
    const FlashTmplColorCell color("0xff0000");
    const FlashTmplFileCell file("a.png");
    ImagePreviewCell image("Title");
    image.setSubTitle("Second");
    for (const TextFieldCell* cell :
         std::initializer_list<const TextFieldCell*>{&color, &file, &image}) {
        EXPECT_EQ(cell->hitTestForEvent(cell->titleRectForBounds(bounds).center(), bounds), 3);
        EXPECT_EQ(cell->hitTestForEvent(cell->infoButtonRectForBounds(bounds).center(), bounds), 5);
        EXPECT_EQ(cell->hitTestForEvent(QPointF(299, 89), bounds), 0);
    }
    for (const QRectF& rect :
         {image.imageRectForBounds(bounds), image.subTitleRectForBounds(bounds)})
        EXPECT_EQ(image.hitTestForEvent(rect.center(), bounds), 1);
}

TEST(Cells, DrawTheirParts) {
    const QRect frame(0, 0, 100, 40);
    FlashTmplColorCell color;
    color.setColor(Qt::darkGreen);
    const QImage swatch = drawn(color);
    EXPECT_EQ(swatch.pixelColor(12, 8), QColor(Qt::darkGreen));
    EXPECT_EQ(swatch.pixelColor(5, 8), QColor(Qt::gray));
    EXPECT_FALSE(hasInk(swatch, QRect(24, 0, 76, 40)));
    const QImage placeholder = drawn(ImagePreviewCell());
    int dashes = 0;
    for (int x = 6; x < 36; ++x)
        dashes += placeholder.pixelColor(x, 4) == QColor(Qt::white) ? 0 : 1;
    EXPECT_TRUE(dashes > 12 && dashes < 25) << dashes;
    EXPECT_FALSE(hasInk(placeholder, QRect(8, 8, 24, 24)));
    ImagePreviewCell image("Title");
    image.setSubTitle("Second");
    image.setImage(QPixmap::fromImage(swatch.scaled(32, 32)));
    const QImage whole = drawn(image);
    for (const QRectF& part :
         {image.titleRectForBounds(frame), image.subTitleRectForBounds(frame),
          image.imageRectForBounds(frame), image.infoButtonRectForBounds(frame)})
        EXPECT_TRUE(hasInk(whole, part.toRect()));
    EXPECT_TRUE(hasInk(drawn(FlashTmplFileCell("a.png")), QRect(4, 1, 30, 15)));
}

TEST(Cells, WriteAPickedColourIntoTheText) {
    FlashTmplColorCell cell("anything");
    EXPECT_EQ(cell.color(), QColor(Qt::red));
    cell.setColor2(QColor(0x12, 0xab, 0x00));
    EXPECT_EQ(cell.color(), QColor(0x12, 0xab, 0x00));
    EXPECT_EQ(cell.title(), "0x12ab00");
}

TEST(Cells, ReadATemplatesIconOnce) {
    const auto write = [](const QString& path, const QColor& color) {
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(color);
        EXPECT_TRUE(image.save(path));
    };
    const TemplateLibrary library;
    SelectTmplItemCell cell("float");
    cell.setTmplIconFile(library.path() + "/icon.png");
    write(cell.tmplIconFile(), Qt::red);
    EXPECT_EQ(cell.itemImage().pixelColor(5, 5), QColor(Qt::red));
    write(cell.tmplIconFile(), Qt::blue);
    const QImage image = drawn(cell);
    EXPECT_EQ(image.pixelColor(16, 18), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(16, 2), QColor(Qt::white));
    EXPECT_EQ(cell.copyWithZone()->title(), "my god");
    EXPECT_EQ(cell.copyWithZone()->tmplIconFile(), cell.tmplIconFile());
}

TEST(CellButton, ActsWhenAClickEndsInside) {
    FlashTmplFileCell cell;
    int actions = 0;
    cell.setInfoButtonAction([&](TextFieldCell& sender) {
        EXPECT_EQ(&sender, &cell);
        ++actions;
    });
    EXPECT_FALSE(mouse(cell, press, inButton));
    EXPECT_TRUE(mouse(cell, release, inButton));
    EXPECT_EQ(actions, 1);
    EXPECT_EQ(cell.infoButtonImage(), "info-normal");

    mouse(cell, press, inButton);
    mouse(cell, QEvent::MouseMove, outside);
    EXPECT_FALSE(cell.isMouseDownInInfoButton());
    EXPECT_TRUE(mouse(cell, release, outside));
    EXPECT_EQ(actions, 1);

    mouse(cell, press, outside);
    mouse(cell, QEvent::MouseMove, inButton);
    for (int time = 0; time < 2; ++time)
        mouse(cell, release, inButton);
    EXPECT_EQ(actions, 2);
}

TEST(CellButton, LogsWhatAClickStarts) {
    FlashTmplFileCell cell;
    const RecordedLog log;
    const auto click = [&] {
        mouse(cell, press, inButton);
        mouse(cell, release, inButton);
    };
    click();
    cell.setInfoButtonAction([](TextFieldCell&) {});
    click();
    EXPECT_EQ(log.texts(), QStringList({"Trigger action now....", "Trigger action now....",
                                        "Trigger action now 222....", "send action ok"}));
}

TEST(CellButton, HasAPictureForEachState) {
    FlashTmplFileCell cell;
    QSet<QByteArray> looks;
    const auto look = [&](const QString& name) {
        EXPECT_EQ(cell.infoButtonImage(), name);
        const QImage image = drawn(cell, {40, 20});
        looks << QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    };
    for (const QString name : {"info-normal", "info-selected"}) {
        cell.setHighlighted(name == "info-selected");
        look(name);
        cell.mouseEntered();
        look(name + "-hovered");
        mouse(cell, press, inButton);
        look(name + "-mouse");
        mouse(cell, release, outside);
        cell.mouseExited();
    }
    EXPECT_EQ(looks.size(), 6);
    EXPECT_EQ(cell.addTrackingAreas(bounds, outside), cell.infoButtonRectForBounds(bounds));
    EXPECT_FALSE(cell.isMouseHoveredInInfoButton());
    cell.addTrackingAreas(bounds, inButton);
    EXPECT_TRUE(cell.isMouseHoveredInInfoButton());
}
