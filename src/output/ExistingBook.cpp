#include "output/ExistingBook.h"

#include "output/BookLayout.h"
#include "output/UserConfig.h"
#include "output/WebScript.h"
#include "system/Files.h"
#include "util/NSData+CommonCrypto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <algorithm>
#include <pugixml.hpp>

namespace {

// Far beyond any book: the file may be anything.
constexpr qint64 maxConfigurationBytes = 64 << 20;

// How much of a page or a script is read: the title and the marker are far before this, the
// pictures of a single-file book after it.
constexpr qint64 headBytes = 1 << 20;

constexpr char languagesStart[] = "window.folveroTexts=";
constexpr char marker[] = "<meta name=\"generator\" content=\"Folvero\">";

bool loadConfiguration(const QString& folder, pugi::xml_document& document) {
    const QString path = Files::join(folder, BookLayout::configuration);
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

bool offersDocument(const pugi::xml_document& configuration) {
    return configuration.document_element().child("Properties").child("DownloadFile");
}

} // namespace

bool ExistingBook::isIn(const QString& folder) {
    pugi::xml_document document;
    return loadConfiguration(folder, document) && document.document_element().child("Ppts");
}

bool ExistingBook::isWebBookIn(const QString& folder) {
    const QString metadata = Files::join(folder, BookLayout::metadata);
    return isIn(folder) && QFileInfo(metadata).isFile() &&
           Files::beginning(metadata, headBytes).startsWith(WebScript::start(BookLayout::metadata));
}

bool ExistingBook::isPage(const QString& file) {
    return !headOfPage(file).isNull();
}

bool ExistingBook::offersDocument(const QString& folder) {
    pugi::xml_document configuration;
    return loadConfiguration(folder, configuration) && ::offersDocument(configuration);
}

bool ExistingBook::isLanguages(const QString& file) {
    return QFileInfo(file).isFile() && Files::beginning(file, headBytes).startsWith(languagesStart);
}

bool ExistingBook::isTextPage(const QString& file) {
    return QFileInfo(file).isFile() && Files::beginning(file, headBytes).contains(textPageMark);
}

bool ExistingBook::isIIIFManifest(const QString& file) {
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > maxConfigurationBytes)
        return false;
    const auto manifest = QJsonDocument::fromJson(Files::contents(file));
    const auto canvas = manifest["items"][0];
    const QString id = manifest["id"].toString();
    const QString book = id.chopped(std::min(id.size(), BookLayout::iiifManifest.size()));
    return manifest["type"] == QStringLiteral("Manifest") && !book.isEmpty() &&
           canvas["id"].toString().startsWith(book + QStringLiteral("canvas/")) &&
           canvas["items"][0]["items"][0]["body"]["id"].toString().startsWith(
               book + BookLayout::files + u'/');
}

QString ExistingBook::pageOfServiceWorker(const QString& folder) {
    const QString worker = Files::join(folder, BookLayout::serviceWorker);
    const QByteArray script =
        QFileInfo(worker).isFile() ? Files::beginning(worker, headBytes) : QByteArray();
    if (!script.startsWith(serviceWorkerStart))
        return {};
    const QByteArray line = script.left(script.indexOf('\n'));
    const QByteArray about = line.mid(line.indexOf('{')).chopped(1);
    const QJsonObject object = QJsonDocument::fromJson(about).object();
    return object.value(QStringLiteral("page")).toString(QStringLiteral(""));
}

QStringList ExistingBook::pages(const QString& folder) {
    QStringList names = QDir(folder).entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
    names.removeIf([&](const QString& name) { return !isPage(Files::join(folder, name)); });
    std::stable_partition(names.begin(), names.end(),
                          [](const QString& name) { return name == BookLayout::defaultPage; });
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

QStringList ExistingBook::filesNamedAsIn(const QString& folder, const QString& inFiles) {
    const QRegularExpression name(
        QRegularExpression::anchoredPattern(BookLayout::namesIn(inFiles)));
    QStringList paths;
    for (const QString& entry :
         QDir(BookLayout(folder).at(inFiles, {})).entryList(QDir::Files, QDir::Name)) {
        if (name.match(entry).hasMatch())
            paths << BookLayout::in(inFiles, entry);
    }
    return paths;
}

QStringList ExistingBook::files(const QString& folder) {
    pugi::xml_document document;
    if (!loadConfiguration(folder, document))
        return {};
    const bool isWebBook = isWebBookIn(folder);
    QStringList names;
    for (const auto page : document.document_element().child("Ppts").children("Ppt")) {
        const QString picture = BookLayout::in(
            QString(), QString::fromUtf8(page.child("Normal").child("ImgPath").text().get()));
        const int number = BookLayout::numberOfPage(picture);
        if (number == 0)
            continue;
        names << picture;
        if (isWebBook)
            names << BookLayout::webFilesOfPage(number);
    }
    if (isWebBook)
        names << BookLayout::webFiles() << filesNamedAsIn(folder, BookLayout::webData)
              << filesNamedAsIn(folder, BookLayout::search)
              << filesNamedAsIn(folder, BookLayout::reading);
    if (::offersDocument(document))
        names << BookLayout::document;
    for (const QString& path :
         QStringList{BookLayout::languageScript} + filesNamedAsIn(folder, BookLayout::languages)) {
        if (isLanguages(Files::join(folder, path)))
            names << path;
    }
    if (isIIIFManifest(Files::join(folder, BookLayout::iiifManifest)))
        names << BookLayout::iiifManifest;
    return names;
}
