#pragma once

#include <QImage>
#include <QString>
#include <utility>

// A template style in the chooser: its picture with its name below.
class IKBTmplStyleItem {
public:
    IKBTmplStyleItem(QImage image, const QString& imageID, const QString& styleName)
        : iImage(std::move(image)), iImageID(imageID), iStyleName(styleName) {}

    // Null when the style has no picture.
    const QImage& image() const { return iImage; }
    void setImage(const QImage& image) { iImage = image; }
    // Full path of the picture's file, which may not exist.
    QString imageID() const { return iImageID; }
    void setImageID(const QString& imageID) { iImageID = imageID; }
    QString styleName() const { return iStyleName; }

    // The same under the names that an image browser uses.
    QString imageUID() const { return iImageID; }
    static QString imageRepresentationType() {
        return QStringLiteral("IKImageBrowserNSImageRepresentationType");
    }
    const QImage& imageRepresentation() const { return iImage; }
    QString imageTitle() const { return iStyleName; }

private:
    QImage iImage;
    QString iImageID;
    QString iStyleName;
};
