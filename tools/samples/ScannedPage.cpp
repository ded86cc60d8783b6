#include "ScannedPage.h"

#include "Pictures.h"
#include "Prose.h"
#include <QFont>
#include <QImage>
#include <QPainter>
#include <algorithm>

namespace {

constexpr int kMargin = 130;
constexpr int kLineHeight = 32;
constexpr int kLines = 46;

QFont bookFont(int pixels) {
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Serif"), QStringLiteral("DejaVu Serif")});
    font.setPixelSize(pixels);
    return font;
}

QImage print(unsigned number) {
    QImage page(ScannedPage::kSize, QImage::Format_Grayscale8);
    page.fill(244);
    QPainter painter(&page);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setPen(QColor(38, 38, 38));
    // Up to 0.6 degrees to either side, as paper lies on the glass.
    painter.rotate((static_cast<int>(number * 7 % 13) - 6) * 0.1);
    painter.setFont(bookFont(24));
    int y = kMargin;
    for (const QByteArray& line : Prose(number).lines(kLines, 90)) {
        painter.drawText(kMargin, y, QString::fromLatin1(line));
        y += kLineHeight;
    }
    painter.drawText(ScannedPage::kSize.width() / 2, y + kLineHeight, QString::number(number));
    return page;
}

} // namespace

QByteArray ScannedPage::pixels(unsigned number) {
    const QImage page = print(number);
    QByteArray result(qsizetype(kSize.width()) * kSize.height(), Qt::Uninitialized);
    char* out = result.data();
    for (int y = 0; y < kSize.height(); ++y) {
        const uchar* row = page.constScanLine(y);
        for (int x = 0; x < kSize.width(); ++x) {
            // Darker towards the spine on the left.
            const int shade = std::max(0, 40 - x / 4);
            const int value = row[x] - shade + Pictures::grain(x, y, number) / 40;
            *out++ = static_cast<char>(std::clamp(value, 0, 255));
        }
    }
    return result;
}
