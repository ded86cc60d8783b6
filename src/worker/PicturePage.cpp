#include "worker/PicturePage.h"

#include "base/PlatformException.h"
#include "pdf/PDFFile.h"
#include "picture/JPEGFile.h"

#include <QFile>
#include <QImage>
#include <QImageIOHandler>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <optional>

namespace {

constexpr double pointsAnInch = 72;
constexpr double inchesAMetre = 39.37;
constexpr double longSideOfA4 = 842;
// Programs that know nothing write the resolution of a screen.
constexpr double leastDotsOfScan = 150;
constexpr double mostDotsOfScan = 2400;
// A page of a billion pixels takes more memory than this process may have.
constexpr int mostMegabytes = 1024;

// Reads whatever the content is, the way up that its camera was held.
class Reader : public QImageReader {
public:
    explicit Reader(const QString& path) : QImageReader(path) {
        setDecideFormatFromContent(true);
        setAutoTransform(true);
    }
};

bool swapsSides(QImageIOHandler::Transformations transformation) {
    return transformation.testFlag(QImageIOHandler::TransformationRotate90);
}

// Clockwise degrees of a page that shows the picture as its camera was held; none for mirrored
// ones, which pages can't be.
std::optional<int> turnOf(QImageIOHandler::Transformations transformation) {
    switch (int(transformation)) {
    case QImageIOHandler::TransformationNone:
        return 0;
    case QImageIOHandler::TransformationRotate90:
        return 90;
    case QImageIOHandler::TransformationRotate180:
        return 180;
    case QImageIOHandler::TransformationRotate270:
        return 270;
    default:
        return std::nullopt;
    }
}

struct Picture {
    QPDFObjectHandle image;
    QSize size; // in pixels, before the turn
    int turn = 0;
};

QPDFObjectHandle imageOf(QPDF& document, const QSize& size, bool isGray, const QByteArray& data) {
    QPDFObjectHandle image = document.newStream(data.toStdString());
    QPDFObjectHandle facts = image.getDict();
    facts.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    facts.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
    facts.replaceKey("/Width", QPDFObjectHandle::newInteger(size.width()));
    facts.replaceKey("/Height", QPDFObjectHandle::newInteger(size.height()));
    facts.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
    facts.replaceKey("/ColorSpace",
                     QPDFObjectHandle::newName(isGray ? "/DeviceGray" : "/DeviceRGB"));
    return image;
}

std::optional<Picture> takenOver(QPDF& document, const QString& path, QImageReader& reader) {
    const auto turn = turnOf(reader.transformation());
    QFile file(path);
    if (reader.format() != "jpeg" || !turn || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray data = file.readAll();
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
    const int components = JPEGFile::plainComponents({bytes, std::size_t(data.size())});
    if (components == 0)
        return std::nullopt;
    Picture picture{imageOf(document, reader.size(), components == 1, data), reader.size(), *turn};
    picture.image.getDict().replaceKey("/Filter", QPDFObjectHandle::newName("/DCTDecode"));
    return picture;
}

// The rows of the picture on white, one after the other. Row by row, since Qt would convert a whole
// picture in threads, which the sandbox forbids.
QByteArray pixelsOf(const QImage& image, bool isGray) {
    QImage row(image.width(), 1, QImage::Format_RGB32);
    const qsizetype bytes = qsizetype{image.width()} * (isGray ? 1 : 3);
    QByteArray pixels;
    pixels.reserve(bytes * image.height());
    for (int y = 0; y < image.height(); ++y) {
        row.fill(Qt::white);
        QPainter(&row).drawImage(QPoint(0, -y), image);
        const QImage plain =
            row.convertToFormat(isGray ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
        pixels.append(reinterpret_cast<const char*>(plain.constScanLine(0)), bytes);
    }
    return pixels;
}

Picture decoded(QPDF& document, const QString& path, QImageReader& reader) {
    const QImage image = reader.read();
    if (image.isNull())
        PDFFile::failToOpen(
            path, reader.error() == QImageReader::UnsupportedFormatError
                      ? Message::translate("PDFDocument", "is neither a PDF nor a picture")
                      : Message::translate("PDFDocument", "the picture can't be read (%1)")
                            .arg(reader.errorString()));
    const bool isGray = image.isGrayscale();
    return {imageOf(document, image.size(), isGray, pixelsOf(image, isGray)), image.size()};
}

QPDFObjectHandle boxOf(const QSizeF& size) {
    return QPDFObjectHandle::newArray(
        QPDFObjectHandle::Rectangle(0, 0, size.width(), size.height()));
}

std::string contentFor(const QSizeF& picture, const QSizeF& page) {
    const double left = (page.width() - picture.width()) / 2;
    const double bottom = (page.height() - picture.height()) / 2;
    const auto number = [](double value) { return QByteArray::number(value, 'f', 3) + ' '; };
    return ("q " + number(picture.width()) + "0 0 " + number(picture.height()) + number(left) +
            number(bottom) + "cm /Picture Do Q\n")
        .toStdString();
}

} // namespace

QSizeF PicturePage::ownSize(const QString& path) {
    Reader reader(path);
    QSizeF size = reader.size();
    if (size.isEmpty())
        return {longSideOfA4 / 1.414, longSideOfA4};
    // Only the whole picture tells, but its first row is enough.
    reader.setClipRect(QRect(0, 0, int(size.width()), 1));
    const double dots = reader.read().dotsPerMeterX() / inchesAMetre;
    if (swapsSides(reader.transformation()))
        size.transpose();
    if (dots >= leastDotsOfScan && dots <= mostDotsOfScan)
        return size * pointsAnInch / dots;
    return size.scaled(longSideOfA4, longSideOfA4, Qt::KeepAspectRatio);
}

QPDFObjectHandle PicturePage::make(QPDF& document, const QString& path, const QSizeF& size) {
    QImageReader::setAllocationLimit(mostMegabytes);
    Reader reader(path);
    const auto kept = takenOver(document, path, reader);
    const Picture picture = kept ? *kept : decoded(document, path, reader);
    const QSizeF page = picture.turn % 180 == 0 ? size : size.transposed();
    const QSizeF shown = QSizeF(picture.size).scaled(page, Qt::KeepAspectRatio);
    QPDFObjectHandle object = document.makeIndirectObject(
        QPDFObjectHandle::parse("<< /Type /Page /Resources << /XObject << >> >> >>"));
    object.replaceKey("/MediaBox", boxOf(page));
    object.replaceKey("/Rotate", QPDFObjectHandle::newInteger(picture.turn));
    object.getKey("/Resources").getKey("/XObject").replaceKey("/Picture", picture.image);
    object.replaceKey("/Contents", document.newStream(contentFor(shown, page)));
    return object;
}
