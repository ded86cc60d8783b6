#include "output/ExistingBook.h"

#include "output/UserConfig.h"
#include "output/WebScript.h"
#include "system/Files.h"
#include "util/NSData+CommonCrypto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <pugixml.hpp>

namespace {

// Far beyond any book: the file may be anything.
constexpr qint64 maxConfigurationBytes = 64 << 20;

// How much of a page is read: the title and the marker are far before this, the pictures of a
// single-file book after it.
constexpr qint64 headBytes = 1 << 20;

const QString webMetadataFile = QStringLiteral("web/book.js");

constexpr char marker[] = "<meta name=\"generator\" content=\"Folvero\">";

bool loadConfiguration(const QString& filesFolder, pugi::xml_document& document) {
    const QString path = Files::join(filesFolder, QStringLiteral("UserConfig.bin"));
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > maxConfigurationBytes)
        return false;
    const QByteArray xml =
        CommonCryptor::decryptedRC4DataUsingKey(Files::contents(path), userConfigKey);
    return bool(document.load_buffer(xml.constData(), std::size_t(xml.size())));
}

// The beginning of a book's page; null for other files.
QByteArray headOfPage(const QString& path) {
    QFile file(path);
    // Opening a pipe would block.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray head = file.read(headBytes);
    return head.contains(marker) ? head : QByteArray();
}

// Reverses QString::toHtmlEscaped().
QString unescaped(QString text) {
    return text.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

} // namespace

bool ExistingBook::isIn(const QString& filesFolder) {
    pugi::xml_document document;
    return loadConfiguration(filesFolder, document) && document.document_element().child("Ppts");
}

bool ExistingBook::isWebBookIn(const QString& filesFolder) {
    const QString metadata = Files::join(filesFolder, webMetadataFile);
    return isIn(filesFolder) && QFileInfo(metadata).isFile() &&
           Files::contents(metadata).startsWith(WebScript::start(QStringLiteral("web/book")));
}

bool ExistingBook::isPage(const QString& file) {
    return !headOfPage(file).isNull();
}

QStringList ExistingBook::pages(const QString& folder) {
    QStringList names = QDir(folder).entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
    names.removeIf([&](const QString& name) { return !isPage(Files::join(folder, name)); });
    std::stable_partition(names.begin(), names.end(),
                          [](const QString& name) { return name == u"index.html"; });
    return names;
}

QString ExistingBook::title(const QString& page) {
    const QByteArray head = headOfPage(page);
    const qsizetype start = head.indexOf("<title>");
    const qsizetype end = head.indexOf("</title>", start);
    if (start < 0 || end < 0)
        return {};
    const qsizetype text = start + qsizetype(qstrlen("<title>"));
    return unescaped(QString::fromUtf8(head.mid(text, end - text)));
}

QStringList ExistingBook::files(const QString& filesFolder) {
    pugi::xml_document document;
    if (!loadConfiguration(filesFolder, document))
        return {};
    static const QRegularExpression pageFile(
        QStringLiteral("\\Apage/([1-9][0-9]{0,8})\\.[A-Za-z0-9]{1,5}\\z"));
    const bool isWebBook = isWebBookIn(filesFolder);
    QStringList names;
    for (const auto page : document.document_element().child("Ppts").children("Ppt")) {
        const QString picture =
            QString::fromUtf8(page.child("Normal").child("ImgPath").text().get());
        const auto match = pageFile.match(picture);
        if (!match.hasMatch())
            continue;
        names << picture;
        if (!isWebBook)
            continue;
        for (const auto* kind : {"thumb/%1.webp", "large/%1.svg", "large/%1.webp", "text/%1.js"})
            names << QString::fromLatin1(kind).arg(match.captured(1));
    }
    // Data of all pages, and the player; last the file by which a web book is recognised.
    if (isWebBook)
        names << QStringLiteral("search/text.js") << QStringLiteral("web.js")
              << QStringLiteral("web.css") << webMetadataFile;
    return names;
}
