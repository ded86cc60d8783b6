#include "pdf/PictureFile.h"

#include "system/Files.h"

const QStringList& PictureFile::types() {
    static const QStringList all{QStringLiteral("jpg"), QStringLiteral("jpeg"),
                                 QStringLiteral("png"), QStringLiteral("webp"),
                                 QStringLiteral("tif"), QStringLiteral("tiff"),
                                 QStringLiteral("gif"), QStringLiteral("bmp")};
    return all;
}

bool PictureFile::isOne(const QString& path) {
    return types().contains(Files::pathExtension(path).toLower());
}
