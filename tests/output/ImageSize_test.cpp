#include "output/ImageSize.h"

#include "support/TemplateLibrary.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>

namespace {

QByteArray encoded(const char* format, int dotsPerMeter) {
    QImage image(300, 150, QImage::Format_RGB32);
    image.fill(Qt::gray);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return buffer.data();
}

// Drops the chunk or segment that states the resolution.
QByteArray pngWithoutResolution() {
    QByteArray data = encoded("PNG", 11811);
    const qsizetype type = data.indexOf("pHYs");
    EXPECT_GT(type, 0);
    return data.remove(type - 4, 21);
}

QByteArray jpegWithoutJfif() {
    QByteArray data = encoded("JPG", 11811);
    EXPECT_EQ(data.mid(2, 2), "\xff\xe0");
    return data.remove(2, 18);
}

// An Exif segment: a TIFF head, one directory with XResolution, YResolution and ResolutionUnit.
QByteArray exif(int dots, char unit) {
    const QByteArray body = "Exif" +
                            QByteArray::fromHex("0000"
                                                "4d4d002a00000008"
                                                "0003"
                                                "011a00050000000100000032"
                                                "011b00050000000100000032"
                                                "0128000300000001"
                                                "00") +
                            unit + QByteArray(8, '\0') + char(dots >> 8) + char(dots) +
                            QByteArray::fromHex("00000001");
    return QByteArray("\xff\xe1") + '\0' + char(body.size() + 2) + body;
}

// In a file whose name says nothing, or the wrong thing.
QSize measured(const QByteArray& data) {
    const QTemporaryDir folder;
    TestFiles::write(folder.filePath("image.png"), data);
    return ImageSize::inPoints(folder.filePath("image.png"));
}

TEST(ImageSize, IsInPointsAtTheStatedResolution) {
    for (const char* format : {"PNG", "JPG", "BMP"}) {
        EXPECT_EQ(measured(encoded(format, 2835)), QSize(300, 150)) << format;
        EXPECT_EQ(measured(encoded(format, 11811)), QSize(72, 36)) << format;
    }
    EXPECT_EQ(measured(encoded("PNG", 3780)), QSize(225, 112));
}

TEST(ImageSize, TakesAnUnstatedResolutionFor72) {
    EXPECT_EQ(measured(pngWithoutResolution()), QSize(300, 150));
    EXPECT_EQ(measured(jpegWithoutJfif()), QSize(300, 150));
    EXPECT_EQ(measured(QByteArray(encoded("JPG", 11811)).replace(13, 1, QByteArray(1, '\0'))),
              QSize(300, 150));
    // Per centimetre.
    EXPECT_EQ(measured(QByteArray(encoded("JPG", 11811)).replace(13, 1, "\2")), QSize(28, 14));
}

TEST(ImageSize, ReadsTheResolutionThatCamerasWrite) {
    EXPECT_EQ(measured(jpegWithoutJfif().insert(2, exif(300, 2))), QSize(72, 36));
    EXPECT_EQ(measured(jpegWithoutJfif().insert(2, exif(100, 3))), QSize(85, 42));
    EXPECT_EQ(measured(jpegWithoutJfif().insert(2, exif(300, 1))), QSize(300, 150));
    EXPECT_EQ(measured(jpegWithoutJfif().insert(2, exif(0, 2))), QSize(300, 150));
}

TEST(ImageSize, IsZeroForWhatIsNoImage) {
    EXPECT_EQ(ImageSize::inPoints("/no/such/file.png"), QSize(0, 0));
    EXPECT_EQ(measured(""), QSize(0, 0));
    EXPECT_EQ(measured("\x89PNG and then something else"), QSize(0, 0));
    EXPECT_EQ(measured("\xff\xd8\xff\xe1\xff"), QSize(0, 0));
}

TEST(ImageResolution, IsReadFromHeadsCutAnywhere) {
    for (QByteArray whole : {jpegWithoutJfif().insert(2, exif(300, 2)), encoded("PNG", 11811)}) {
        std::set<int> seen;
        for (int length = 0; length < 120; ++length) {
            QByteArray head = whole.left(length);
            QBuffer buffer(&head);
            buffer.open(QIODevice::ReadOnly);
            seen.insert(qRound(ImageResolution::ofFile(buffer).dotsPerInchX));
        }
        EXPECT_EQ(seen, (std::set<int>{72, 300}));
    }
}

} // namespace
