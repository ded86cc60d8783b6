#include "app/desktop/RecentCovers.h"

#include "project/ProjectFile.h"
#include "system/Files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QStandardPaths>

namespace {

// Far more than a cover has.
constexpr qint64 mostBytes = 1 << 20;
// For screens with two pixels a pixel of the window.
constexpr int scale = 2;

QString folder() {
    return Files::join(QStandardPaths::writableLocation(QStandardPaths::CacheLocation),
                       QStringLiteral("covers"));
}

QString fileOf(const QString& path) {
    const QByteArray name =
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex();
    return Files::join(folder(), QString::fromLatin1(name) + QStringLiteral(".jpg"));
}

} // namespace

QIcon RecentCovers::of(const QString& path) {
    constexpr int pixels = side * scale;
    QPixmap square(pixels, pixels);
    square.fill(Qt::transparent);
    const QByteArray jpeg = ProjectFile::isProject(path)
                                ? ProjectFile::cover(path)
                                : Files::beginning(fileOf(path), mostBytes);
    if (const QImage cover = QImage::fromData(jpeg, "JPEG"); !cover.isNull()) {
        const QSize size = cover.size().scaled(square.size(), Qt::KeepAspectRatio);
        const QRect place(QPoint((pixels - size.width()) / 2, (pixels - size.height()) / 2), size);
        QPainter painter(&square);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place,
                          cover.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        // White paper ends somewhere in a white menu, too.
        painter.setPen(QPen(Qt::gray, scale / 2));
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
    square.setDevicePixelRatio(scale);
    return QIcon(square);
}

void RecentCovers::keep(const QString& path, const QByteArray& jpeg) {
    if (jpeg.isNull())
        QFile::remove(fileOf(path));
    else if (QDir().mkpath(folder()))
        Files::writeAtomically(fileOf(path), jpeg);
}

void RecentCovers::clear() {
    QDir(folder()).removeRecursively();
}
