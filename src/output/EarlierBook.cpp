#include "output/EarlierBook.h"

#include "output/UserConfig.h"
#include "platform/Files.h"
#include "util/NSData+CommonCrypto.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <pugixml.hpp>

namespace {

// Far beyond any book: the file may be anybody's.
constexpr qint64 mostBytes = 64 << 20;

} // namespace

QStringList EarlierBook::files(const QString& filesFolder) {
    const QString path = Files::join(filesFolder, QStringLiteral("UserConfig.bin"));
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > mostBytes)
        return {};
    const QByteArray xml =
        CommonCryptor::decryptedRC4DataUsingKey(Files::contents(path), userConfigKey);
    pugi::xml_document document;
    if (!document.load_buffer(xml.constData(), std::size_t(xml.size())))
        return {};
    static const QRegularExpression pageFile(
        QStringLiteral("\\Apage/([1-9][0-9]{0,8})\\.[A-Za-z0-9]{1,5}\\z"));
    // What a web book has of all its pages, and its player.
    QStringList names{QStringLiteral("search/text.js"), QStringLiteral("web/book.js"),
                      QStringLiteral("web.js"), QStringLiteral("web.css")};
    for (const auto page : document.document_element().child("Ppts").children("Ppt")) {
        const QString picture =
            QString::fromUtf8(page.child("Normal").child("ImgPath").text().get());
        const auto match = pageFile.match(picture);
        if (!match.hasMatch())
            continue;
        names << picture;
        for (const auto* kind : {"thumb/%1.webp", "large/%1.svg", "large/%1.webp", "text/%1.js"})
            names << QString::fromLatin1(kind).arg(match.captured(1));
    }
    return names;
}
