#include "webbook/ShareImage.h"

#include <QBuffer>
#include <QImage>

ShareImage ShareImage::of(const QString& picture, QSize box) {
    constexpr int quality = 85;
    const QImage page(picture);
    if (page.isNull())
        return {};
    const QImage image =
        page.convertToFormat(page.isGrayscale() ? QImage::Format_Grayscale8 : QImage::Format_RGB32)
            .scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    ShareImage result;
    QBuffer buffer(&result.jpeg);
    if (!image.save(&buffer, "JPEG", quality))
        return {};
    result.size = image.size();
    return result;
}
