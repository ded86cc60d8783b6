#include "app/desktop/BookCover.h"

#include "pages/Book.h"
#include "pages/FlashPageSource.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

QByteArray BookCover::of(const Book& book) {
    constexpr QSize box(256, 256);
    constexpr int quality = 85;
    const auto page = book.pageSource ? book.pageSource->getPageAtIndex(0) : nullptr;
    if (!page)
        return {};
    QImageReader reader(page->pageFilePath());
    if (reader.size().isValid())
        reader.setScaledSize(reader.size().scaled(box, Qt::KeepAspectRatio));
    const QImage image = reader.read();
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    const bool isWritten =
        !image.isNull() &&
        image.convertToFormat(QImage::Format_RGB32).save(&buffer, "JPEG", quality);
    return isWritten ? jpeg : QByteArray();
}
