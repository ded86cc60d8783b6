#include "BookStyle.h"
#include "Documents.h"
#include "DrawnPages.h"
#include "Pictures.h"
#include "SlideCharts.h"

#include <functional>

using SlideCharts::kAccent;
using SlideCharts::kBack;
using SlideCharts::kDeep;
using SlideCharts::kInk;
using SlideCharts::kMuted;

namespace {

constexpr QSizeF kSize(960, 540);
constexpr QRectF kSlide(0, 0, 960, 540);
constexpr QRectF kBody(72, 152, 816, 318);

const QString kTalk = QStringLiteral("A quieter harbour");

void words(QPainter& painter, const QRectF& area, const QString& text, double size, bool bold,
           const QColor& color, int flags = Qt::AlignLeft | Qt::AlignTop) {
    painter.setFont(BookStyle::sans(size, bold));
    painter.setPen(color);
    painter.drawText(area, flags | Qt::TextWordWrap, text);
}

// Ground, title and foot that every inner slide has.
void frame(QPainter& painter, int number, const QString& title) {
    painter.fillRect(kSlide, kBack);
    painter.fillRect(QRectF(72, 58, 44, 5), kAccent);
    words(painter, {72, 74, 816, 60}, title, 32, true, kInk);
    words(painter, {72, 498, 400, 20}, kTalk, 11, false, kMuted);
    words(painter, {488, 498, 400, 20}, QString::number(number), 11, false, kMuted, Qt::AlignRight);
}

void bullets(QPainter& painter, const QRectF& area, const QStringList& lines) {
    double y = area.top();
    for (const QString& line : lines) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(kAccent);
        painter.drawEllipse(QPointF(area.left() + 6, y + 15), 5, 5);
        const QString head = line.section(QLatin1Char('|'), 0, 0);
        words(painter, {area.left() + 28, y, area.width() - 28, 30}, head, 21, true, kInk);
        words(painter, {area.left() + 28, y + 30, area.width() - 28, 52},
              line.section(QLatin1Char('|'), 1), 16, false, kMuted);
        y += area.height() / static_cast<double>(lines.size());
    }
}

// A picture that fills an area, cut at its edges.
void picture(QPainter& painter, const QRectF& area, unsigned seed) {
    const QSize size = (area.size() * 1.5).toSize();
    painter.drawImage(area, Pictures::landscapeImage(size, seed));
}

void titleSlide(QPainter& painter) {
    picture(painter, kSlide, 41);
    // Darker at the left, where the words stand; in strips, because a gradient in a PDF made here
    // cannot be transparent.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int strip = 0; strip < 60; ++strip)
        painter.fillRect(QRectF(strip * 16, 0, 16, 540), QColor(14, 34, 52, 225 - strip * 3));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(72, 176, 64, 6), kAccent);
    words(painter, {72, 196, 640, 80}, kTalk, 58, true, Qt::white);
    words(painter, {72, 280, 520, 70},
          QStringLiteral("What three years of listening taught a small "
                         "port"),
          22, false, QColor(226, 236, 240));
    words(painter, {72, 470, 600, 24}, QStringLiteral("Harbour office, annual meeting"), 14, false,
          QColor(200, 214, 222));
}

void section(QPainter& painter, const QString& number, const QString& title) {
    painter.fillRect(kSlide, kDeep);
    painter.setPen(Qt::NoPen);
    for (int ring = 5; ring > 0; --ring) {
        painter.setBrush(QColor(255, 255, 255, 10));
        painter.drawEllipse(QPointF(800, 430), ring * 86, ring * 86);
    }
    words(painter, {72, 150, 300, 120}, number, 96, true, kAccent);
    words(painter, {72, 270, 700, 130}, title, 44, true, Qt::white);
}

void quote(QPainter& painter) {
    painter.fillRect(kSlide, kAccent);
    words(painter, {68, 60, 200, 150}, QString::fromUtf8("“"), 150, true,
          QColor(255, 255, 255, 90));
    painter.setFont(BookStyle::serif(38, false, true));
    painter.setPen(Qt::white);
    painter.drawText(QRectF(120, 160, 740, 190), Qt::AlignLeft | Qt::TextWordWrap,
                     QString::fromUtf8("For the first time since the new crane came, I hear the "
                                       "halyards at night again."));
    words(painter, {120, 380, 600, 30}, QStringLiteral("A resident of Quay Street, second winter"),
          17, false, QColor(255, 236, 228));
}

void photograph(QPainter& painter) {
    picture(painter, kSlide, 12);
    painter.fillRect(QRectF(0, 410, 960, 130), QColor(12, 26, 40, 170));
    words(painter, {72, 430, 760, 40}, QStringLiteral("Where the second microphone stands"), 28,
          true, Qt::white);
    words(painter, {72, 470, 760, 30},
          QStringLiteral("Two kilometres inland, above the last houses"), 16, false,
          QColor(220, 230, 236));
}

void figures(QPainter& painter) {
    frame(painter, 4, QStringLiteral("The harbour in three figures"));
    const struct {
        const char* figure;
        const char* what;
    } facts[] = {{"1,140", "ships a year, one in five of them at night"},
                 {"63 dB", "at the nearest window when we began"},
                 {"9", "places where we measured, for three years"}};
    for (int i = 0; i < 3; ++i) {
        const QRectF box(72 + i * 280, 168, 256, 270);
        painter.fillRect(box, i == 1 ? kDeep : QColor(233, 239, 241));
        words(painter, box.adjusted(24, 56, -10, 0), QString::fromLatin1(facts[i].figure), 50, true,
              i == 1 ? QColor(Qt::white) : kInk);
        words(painter, box.adjusted(24, 142, -24, 0), QString::fromLatin1(facts[i].what), 18, false,
              i == 1 ? QColor(205, 220, 228) : kMuted);
    }
}

void twoColumns(QPainter& painter) {
    frame(painter, 9, QStringLiteral("What we changed"));
    picture(painter, {516, 152, 372, 318}, 77);
    bullets(painter, {72, 156, 410, 310},
            {QStringLiteral("Power from the shore|Engines stop within ten minutes of mooring."),
             QStringLiteral("Rubber on the ramps|Steel no longer falls on steel."),
             QStringLiteral("A later first crane|Seven instead of five in the morning.")});
}

void closing(QPainter& painter) {
    picture(painter, kSlide, 41);
    painter.fillRect(kSlide, QColor(14, 34, 52, 200));
    words(painter, {72, 190, 816, 80}, QStringLiteral("Thank you for listening"), 52, true,
          Qt::white, Qt::AlignHCenter);
    words(painter, {72, 276, 816, 40}, QStringLiteral("Questions, and then coffee on the quay"), 22,
          false, QColor(226, 236, 240), Qt::AlignHCenter);
    painter.fillRect(QRectF(448, 338, 64, 6), kAccent);
}

std::vector<std::function<void(QPainter&)>> slides() {
    return {
        titleSlide,
        [](QPainter& painter) {
            frame(painter, 2, QStringLiteral("Today"));
            bullets(painter, kBody,
                    {QStringLiteral("Where the noise comes from|Ships, cranes, and a surprise."),
                     QStringLiteral("What we tried|Three measures, one of them a failure."),
                     QStringLiteral("What it did|Nine microphones over three years."),
                     QStringLiteral("What comes next|A plan that costs less than it sounds.")});
        },
        [](QPainter& painter) {
            section(painter, QStringLiteral("1"), QStringLiteral("Where the noise comes from"));
        },
        figures,
        [](QPainter& painter) {
            frame(painter, 5, QStringLiteral("Half of it was never the ships"));
            SlideCharts::ring(painter, QRectF(96, 168, 290, 290),
                              {{QStringLiteral("Cranes and ramps"), 46},
                               {QStringLiteral("Engines at rest"), 31},
                               {QStringLiteral("Lorries"), 15},
                               {QStringLiteral("Gulls"), 8}},
                              QStringLiteral("%"));
        },
        [](QPainter& painter) {
            frame(painter, 6, QStringLiteral("A day, hour by hour"));
            SlideCharts::lines(painter, kBody,
                               {{52, 49, 47, 48, 58, 66, 70, 71, 69, 67, 66, 64,
                                 62, 66, 67, 66, 64, 61, 60, 61, 63, 60, 57, 54},
                                {47, 45, 43, 43, 45, 49, 56, 63, 64, 62, 61, 60,
                                 58, 61, 62, 60, 58, 55, 54, 53, 52, 51, 50, 48}},
                               {QStringLiteral("Before"), QStringLiteral("Now")}, 40, 75);
        },
        [](QPainter& painter) {
            section(painter, QStringLiteral("2"), QStringLiteral("What we tried, and what it did"));
        },
        photograph,
        twoColumns,
        [](QPainter& painter) {
            frame(painter, 10, QStringLiteral("Nights above 55 decibels"));
            SlideCharts::bars(painter, kBody,
                              {{QStringLiteral("Year 1"), 214},
                               {QStringLiteral("Year 2"), 166},
                               {QStringLiteral("Year 3"), 91},
                               {QStringLiteral("This year"), 38}});
        },
        [](QPainter& painter) {
            frame(painter, 11, QStringLiteral("What it cost"));
            SlideCharts::table(painter, kBody,
                               {{QStringLiteral("Measure"), QStringLiteral("Cost"),
                                 QStringLiteral("Saved a year"), QStringLiteral("Quieter by")},
                                {QStringLiteral("Power from the shore"), QStringLiteral("420,000"),
                                 QStringLiteral("95,000"), QStringLiteral("6 dB")},
                                {QStringLiteral("Rubber on the ramps"), QStringLiteral("38,000"),
                                 QStringLiteral("4,000"), QStringLiteral("5 dB")},
                                {QStringLiteral("A later first crane"), QStringLiteral("0"),
                                 QStringLiteral("12,000"), QStringLiteral("3 dB")},
                                {QStringLiteral("Noise wall"), QStringLiteral("260,000"),
                                 QStringLiteral("0"), QStringLiteral("1 dB")}});
        },
        quote,
        [](QPainter& painter) {
            frame(painter, 13, QStringLiteral("What comes next"));
            SlideCharts::steps(painter, kBody,
                               {QStringLiteral("Spring|Sockets for the fishing boats"),
                                QStringLiteral("Summer|Quiet lorries on Quay Street"),
                                QStringLiteral("Autumn|A tenth microphone, at the school"),
                                QStringLiteral("Winter|We count the nights again")});
        },
        closing,
    };
}

} // namespace

QByteArray makeSlides() {
    PDFBuilder pdf;
    pdf.setInfo("Title", kTalk);
    DrawnPages pages(pdf, kSize);
    pages.drawEach(slides());
    pages.finish();
    return pdf.build();
}
