#include "BookStyle.h"
#include "Documents.h"
#include "DrawnPages.h"
#include "PictureBookDrawings.h"
#include "Pictures.h"

#include <functional>

using namespace PictureBookDrawings;

namespace {

using Draw = std::function<void(QPainter&)>;

const QColor kDusk(92, 74, 122);
const QColor kRose(236, 150, 128);
const QColor kWall(222, 186, 140);
const QColor kWallAtNight(108, 92, 116);
const QColor kMeadow(46, 98, 92);
const QColor kMeadowDark(28, 68, 76);
const QColor kWood(20, 44, 56);

void nightSky(QPainter& painter, unsigned seed) {
    sky(painter, kNight, {70, 84, 126});
    stars(painter, seed, 70, 330);
}

// Trunks from edge to edge, nearer ones darker.
void trunks(QPainter& painter) {
    sky(painter, {22, 38, 58}, {40, 74, 82});
    for (int layer = 0; layer < 3; ++layer)
        for (int i = 0; i < 8; ++i) {
            const double width = 12 + layer * 14;
            const double x = (i * 97 + layer * 41) % 620 - 20;
            painter.fillRect(QRectF(x, 0, width, 500), kWood.lighter(170 - layer * 35));
        }
    hill(painter, 500, 10, 2, {14, 32, 42});
}

void title(QPainter& painter, double y, double size, const QColor& color) {
    painter.setPen(color);
    painter.setFont(BookStyle::serif(size, true));
    painter.drawText(QRectF(20, y, 536, size * 3), Qt::AlignHCenter | Qt::TextWordWrap,
                     QStringLiteral("The Lantern That\nWent for a Walk"));
}

void cover(QPainter& painter) {
    nightSky(painter, 5);
    moon(painter, {448, 236}, 46);
    hill(painter, 452, 22, 1, kMeadow);
    pines(painter, 4, 470, 90, kMeadowDark);
    hill(painter, 500, 16, 3, kMeadowDark);
    lantern(painter, {250, 528}, 1.7);
    title(painter, 48, 46, kCream);
}

void titlePage(QPainter& painter) {
    painter.fillRect(kPage, kCream);
    title(painter, 96, 36, {70, 44, 48});
    lantern(painter, {288, 430}, 1.4, false);
    painter.setFont(BookStyle::serif(15, false, true));
    painter.setPen(QColor(122, 92, 84));
    painter.drawText(QRectF(0, 486, 576, 30), Qt::AlignHCenter,
                     QStringLiteral("told and drawn by a small program"));
}

void seaside(QPainter& painter, const QColor& top, const QColor& bottom) {
    sky(painter, top, bottom);
    stars(painter, 21, 60, 250);
    sea(painter, 320, {64, 98, 138}, {20, 44, 78});
}

// A page of the story: a picture and its words, above or below.
struct Page {
    const char* words;
    double y;
    QColor color;
    Draw picture;
};

std::vector<Page> atHome() {
    return {{"On a hook by the door hung a small lantern.",
             28,
             {70, 40, 40},
             [](QPainter& painter) {
                 doorway(painter, kWall);
                 lantern(painter, {360, 246}, 1, false);
             }},
            {"Every night it shone on the same three steps.", 28, kCream,
             [](QPainter& painter) {
                 doorway(painter, kWallAtNight);
                 lantern(painter, {360, 246}, 1, false);
             }},
            {"“What comes after the third step?” it asked. Nobody knew.", 440, kCream,
             [](QPainter& painter) {
                 sky(painter, kDusk, {60, 52, 92});
                 lantern(painter, {288, 400}, 2.6, false);
             }},
            {"So one evening it climbed down to see.", 28, kCream,
             [](QPainter& painter) {
                 doorway(painter, kWallAtNight);
                 lantern(painter, {330, 534}, 1.1);
             }},
            {"It walked along the garden wall,", 40, kCream,
             [](QPainter& painter) {
                 sky(painter, kDusk, kRose);
                 hill(painter, 400, 26, 0, kMeadow);
                 pines(painter, 9, 420, 70, kMeadowDark);
                 painter.fillRect(QRectF(0, 430, 576, 146), QColor(86, 72, 92));
                 for (int stone = 0; stone < 14; ++stone)
                     painter.fillRect(QRectF(stone * 72 % 576, 446 + (stone / 8) * 48, 66, 40),
                                      QColor(102, 86, 104));
                 lantern(painter, {210, 432}, 1.3);
             }},
            {"past the cat, who pretended not to see.", 40, kCream, [](QPainter& painter) {
                 sky(painter, kDusk, kRose);
                 hill(painter, 400, 26, 3.4, kMeadow);
                 painter.fillRect(QRectF(0, 430, 576, 146), QColor(86, 72, 92));
                 for (int stone = 0; stone < 14; ++stone)
                     painter.fillRect(QRectF(stone * 72 % 576, 446 + (stone / 8) * 48, 66, 40),
                                      QColor(102, 86, 104));
                 cat(painter, {200, 432}, 1.25);
                 lantern(painter, {400, 432}, 1.3);
             }}};
}

std::vector<Page> outside() {
    return {{"In the street all the windows were asleep.", 40, kCream,
             [](QPainter& painter) {
                 nightSky(painter, 12);
                 street(painter, 500, -1, {96, 92, 132});
                 painter.fillRect(QRectF(0, 500, 576, 76), QColor(44, 44, 74));
                 lantern(painter, {180, 540}, 0.9);
             }},
            {"All but one.", 40, kCream,
             [](QPainter& painter) {
                 nightSky(painter, 13);
                 moon(painter, {120, 150}, 34);
                 street(painter, 500, 3, {96, 92, 132});
                 painter.fillRect(QRectF(0, 500, 576, 76), QColor(44, 44, 74));
                 lantern(painter, {430, 540}, 0.9);
             }},
            {"Behind the town the trees stood close together.", 40, kCream,
             [](QPainter& painter) {
                 nightSky(painter, 14);
                 pines(painter, 2, 420, 150, {40, 70, 92});
                 pines(painter, 7, 480, 210, {26, 52, 70});
                 hill(painter, 490, 12, 1, kWood);
                 lantern(painter, {150, 530}, 0.8);
             }},
            {"“Who is there?” asked the dark. “Only me,” said the lantern.", 470, kCream,
             [](QPainter& painter) {
                 painter.fillRect(kPage, QColor(12, 18, 30));
                 for (const QPointF at : {QPointF(90, 110), QPointF(430, 80), QPointF(500, 260)})
                     eyes(painter, at, 12);
                 eyes(painter, {130, 300}, 8);
                 lantern(painter, {300, 430}, 1.2, false);
             }},
            {"And the dark had owls in it,", 470, kCream,
             [](QPainter& painter) {
                 trunks(painter);
                 owl(painter, {170, 160}, 1.3);
                 owl(painter, {400, 210}, 1);
                 lantern(painter, {290, 450}, 1);
             }},
            {"and mushrooms,", 40, kCream,
             [](QPainter& painter) {
                 trunks(painter);
                 mushroom(painter, {120, 510}, 2, {206, 74, 60});
                 mushroom(painter, {240, 520}, 1.2, {226, 150, 70});
                 mushroom(painter, {480, 516}, 1.6, {206, 74, 60});
                 lantern(painter, {360, 520}, 1);
             }},
            {"and a hedgehog who had lost her way.", 40, kCream, [](QPainter& painter) {
                 trunks(painter);
                 hedgehog(painter, {400, 506}, 1.5);
                 lantern(painter, {180, 516}, 1.2, false);
             }}};
}

std::vector<Page> atTheSea() {
    return {{"Together they came to the end of the trees.", 508, kCream,
             [](QPainter& painter) {
                 painter.drawImage(kPage, Pictures::landscapeImage({864, 864}, 23));
                 painter.fillRect(kPage, QColor(24, 26, 70, 130));
                 pines(painter, 31, 470, 250, kWood);
                 hill(painter, 470, 10, 2, kWood);
                 lantern(painter, {250, 474}, 0.8);
                 hedgehog(painter, {370, 474}, 0.7);
             }},
            {"There was the sea. It had no steps at all.", 40, kCream,
             [](QPainter& painter) {
                 seaside(painter, kNight, kDusk);
                 moon(painter, {420, 200}, 40);
                 hill(painter, 540, 18, 1, {60, 54, 78});
                 lantern(painter, {150, 540}, 1);
                 hedgehog(painter, {260, 556}, 0.7);
             }},
            {"Far out a boat was looking for the land.", 40, kCream,
             [](QPainter& painter) {
                 seaside(painter, {16, 24, 50}, {50, 58, 96});
                 boat(painter, {290, 360}, 0.9);
             }},
            {"The lantern stood as tall as it could.", 28, kCream,
             [](QPainter& painter) {
                 seaside(painter, {16, 24, 50}, {50, 58, 96});
                 hill(painter, 556, 14, 2, {60, 54, 78});
                 lantern(painter, {288, 560}, 3, false);
             }},
            {"And the boat came in.",
             40,
             {72, 42, 62},
             [](QPainter& painter) {
                 sky(painter, {250, 190, 140}, {255, 232, 190});
                 sea(painter, 330, {236, 170, 140}, {90, 110, 150});
                 boat(painter, {360, 440}, 1.9);
                 hill(painter, 548, 12, 1, {96, 78, 92});
                 lantern(painter, {120, 546}, 1);
                 hedgehog(painter, {210, 560}, 0.6);
             }},
            {"In the morning it hung on its hook again, a little sandy, and shone at nothing much.",
             20,
             {70, 40, 40},
             [](QPainter& painter) {
                 doorway(painter, {238, 206, 160});
                 lantern(painter, {360, 246}, 1, false);
                 hedgehog(painter, {470, 536}, 0.8);
             }}};
}

void backCover(QPainter& painter) {
    nightSky(painter, 6);
    hill(painter, 452, 22, 4.2, kMeadow);
    pines(painter, 14, 470, 90, kMeadowDark);
    hill(painter, 500, 16, 5, kMeadowDark);
    hedgehog(painter, {300, 506}, 0.9);
    caption(painter, 150, QStringLiteral("What comes after the third step?"), kCream);
}

std::vector<Draw> leaves() {
    std::vector<Draw> all = {cover, [](QPainter& painter) { endpaper(painter, kDusk, kRose); },
                             titlePage};
    for (const auto& part : {atHome(), outside(), atTheSea()})
        for (const Page& page : part)
            all.push_back([page](QPainter& painter) {
                page.picture(painter);
                caption(painter, page.y, QString::fromUtf8(page.words), page.color);
            });
    all.push_back([](QPainter& painter) { endpaper(painter, kRose, kDusk); });
    all.push_back(backCover);
    return all;
}

} // namespace

QByteArray makePictureBook() {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("The Lantern That Went for a Walk"));
    DrawnPages pages(pdf, kPage.size());
    pages.drawEach(leaves());
    pages.finish();
    return pdf.build();
}
