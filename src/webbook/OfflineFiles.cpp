#include "webbook/OfflineFiles.h"

#include "output/ExistingBook.h"
#include "output/PlayerFile.h"
#include "output/PublishRun.h"
#include "system/Files.h"
#include "system/MediaType.h"
#include "template/FlashTemplate.h"
#include "util/ColorCategory.h"
#include "util/NSData+CommonCrypto.h"
#include "webbook/SharedPlayer.h"
#include "webbook/WebBook.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <array>
#include <map>

using Phase = PublishTransaction::Phase;

namespace {

// Some systems truncate longer names.
constexpr qsizetype maxShortName = 30;

// Digits of a digest that the service worker compares; enough to distinguish versions of a file.
constexpr int digestLetters = 16;

QByteArray digestOf(const QByteArray& bytes) {
    return CommonDigest::SHA256Hash(bytes).toHex().left(digestLetters);
}

// The order in which files are fetched when a reader saves the whole book: first what is read
// first, last the plain page and what shows only on enlarged pages. The files needed to open the
// book are cached when the service worker is installed.
enum class Kind { shell, picture, text, last, none };

Kind kindOf(const QString& path, const QString& page) {
    // Browsers request sounds in ranges, which the service worker does not handle; the page has a
    // start list in place of the configuration; other sites show the picture for links; a download
    // is kept elsewhere.
    if (MediaType::ofFile(path).startsWith("audio/") || path == BookLayout::configuration ||
        path == BookLayout::configurationScript || path == BookLayout::shareImage ||
        path == BookLayout::document)
        return Kind::none;
    if (BookLayout::isIn(BookLayout::texts, path) ||
        BookLayout::isIn(BookLayout::thumbnails, path) ||
        BookLayout::isIn(BookLayout::search, path) || path == BookLayout::searchScript)
        return Kind::text;
    if (BookLayout::isIn(BookLayout::largePages, path) ||
        BookLayout::isIn(BookLayout::reading, path) ||
        BookLayout::isIn(BookLayout::languages, path) || path == BookLayout::textPage ||
        BookLayout::laterScripts().contains(path))
        return Kind::last;
    if (BookLayout::isIn(BookLayout::pages, path))
        return Kind::picture;
    return path == page || !BookLayout::inFiles(path).isNull() ? Kind::shell : Kind::none;
}

// Pages whose files are in one part of the list; sw.js counts the same. The first part is in the
// list itself, with the files of no page.
constexpr int pagesOfPart = 100;

int partOf(const QString& path) {
    const int number = Files::lastPathComponent(path).section(u'.', 0, 0).toInt();
    return number > 0 ? (number - 1) / pagesOfPart : 0;
}

QByteArray quoted(const QString& text) {
    return QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

// QJsonObject sorts by name, and pages must stay in order.
QByteArray member(const QString& path, const QByteArray& digest) {
    return quoted(path) + ":\"" + digest + '"';
}

// JSON objects of files and their digests.
struct List {
    QByteArray shell;
    std::map<int, QByteArray> parts; // of the rest
    qint64 bytes = 0;
    qsizetype count = 0; // of files in the parts
};

// A file of the shared player as the service worker knows it: relative to the book, decoded.
QString addressFor(const SharedPlayer& player, const QString& name) {
    return QString::fromUtf8(QByteArray::fromPercentEncoding(player.address(name)));
}

// What a service worker with a shared player ends with, after its version.
QByteArray ending(const SharedPlayer& player) {
    return "\",\"player\":\"" + player.address() + "\"};\nimportScripts(\"" +
           player.address(BookLayout::serviceWorker) + "\");\n";
}

List listOf(const PublishTarget& to, const WebBook& book) {
    List list;
    std::map<int, std::array<QByteArrayList, 4>> parts; // members by part and kind
    const auto add = [&](int part, Kind kind, const QString& path, const QByteArray& bytes) {
        parts[part][std::size_t(kind)] << member(path, digestOf(bytes));
        list.bytes += bytes.size();
    };
    const QDir root(to.layout.folder());
    for (const auto& [target, staged] : to.transaction.stagedFiles()) {
        const QString path = root.relativeFilePath(target);
        const Kind kind = kindOf(path, book.htmlName());
        if (kind != Kind::none)
            add(kind == Kind::shell ? 0 : partOf(path), kind, path,
                PublishTransaction::contents(staged));
    }
    if (book.player) {
        for (const SharedPlayer::File& file : book.player->files()) {
            const Kind kind = file.inBook.isNull() ? Kind::shell : kindOf(file.inBook, {});
            if (kind != Kind::none && file.name != BookLayout::serviceWorker)
                add(0, kind, addressFor(*book.player, file.name), file.bytes);
        }
    }
    list.parts[0] = "{}";
    for (const auto& [number, kinds] : parts) {
        const QByteArrayList files = kinds[std::size_t(Kind::picture)] +
                                     kinds[std::size_t(Kind::text)] +
                                     kinds[std::size_t(Kind::last)];
        list.parts[number] = '{' + files.join(',') + '}';
        list.count += files.size();
    }
    list.shell = '{' + parts[0][std::size_t(Kind::shell)].join(',') + '}';
    return list;
}

QString shortened(const QString& title) {
    if (title.size() <= maxShortName)
        return title;
    const qsizetype blank = title.lastIndexOf(u' ', maxShortName);
    // Not between the two halves of a surrogate pair.
    const qsizetype cut = title[maxShortName - 1].isHighSurrogate() ? 1 : 0;
    return title.left(blank > 0 ? blank : maxShortName - cut);
}

QColor colourOf(const WebBook& book, const char* key, const char* usual) {
    const QString value = QString::fromLatin1(usual);
    return MyColorOper::colorFromHexRGB(
        book.flashTemplate ? book.flashTemplate->propertyValueFor(QString::fromLatin1(key), value)
                           : value);
}

// Around the book.
QColor ground(const WebBook& book) {
    return colourOf(book, "bgBeginColor", "0xC0C0C0");
}

QByteArray manifestOf(const WebBook& book) {
    QJsonObject object{
        {QStringLiteral("name"), book.metadata.facts.title},
        {QStringLiteral("short_name"), shortened(book.metadata.facts.title)},
        {QStringLiteral("start_url"),
         QString::fromLatin1(QUrl::toPercentEncoding(book.htmlName()))},
        {QStringLiteral("scope"), QStringLiteral("./")},
        {QStringLiteral("display"), QStringLiteral("standalone")},
        {QStringLiteral("background_color"), ground(book).name()},
        {QStringLiteral("theme_color"), colourOf(book, "mainColor", "0xffffff").name()},
        {QStringLiteral("icons"),
         QJsonArray{QJsonObject{{QStringLiteral("src"), BookLayout::icon},
                                {QStringLiteral("sizes"), QStringLiteral("any")},
                                {QStringLiteral("type"), QStringLiteral("image/svg+xml")}}}}};
    if (!book.metadata.facts.language.isEmpty())
        object[QStringLiteral("lang")] = book.metadata.facts.language;
    return QJsonDocument(object).toJson();
}

// The cover on a square background, as systems expect icons.
QByteArray iconOf(const PublishTarget& to, const WebBook& book) {
    const QString& cover = book.metadata.cover;
    QByteArray picture =
        "<path d=\"M256 150c-48-32-96-32-144-16v228c48-16 96-16 144 16 48-32 96-32 "
        "144-16V134c-48-16-96-16-144 16z\" fill=\"#fff\" stroke=\"#2f5d7c\" "
        "stroke-width=\"12\"/>";
    const QByteArray bytes =
        cover.isEmpty()
            ? QByteArray()
            : PublishTransaction::contents(to.transaction.stagedFile(to.layout.at(cover)));
    if (!bytes.isEmpty())
        picture = "<image x=\"40\" y=\"40\" width=\"432\" height=\"432\" "
                  "href=\"data:image/jpeg;base64," +
                  bytes.toBase64() + "\"/>";
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 512 512\" width=\"512\" "
           "height=\"512\"><rect width=\"512\" height=\"512\" fill=\"" +
           ground(book).name().toLatin1() + "\"/>" + picture + "</svg>\n";
}

} // namespace

bool OfflineFiles::canWriteTo(const BookLayout& book) {
    if (QFileInfo::exists(book.at(BookLayout::serviceWorker)))
        return !ExistingBook::pageOfServiceWorker(book.folder()).isNull();
    return !QFileInfo::exists(book.at(BookLayout::manifest));
}

void OfflineFiles::write(PublishTarget& to, const WebBook& book) {
    if (!book.metadata.offline)
        return;
    const QByteArray script =
        PublishTransaction::contents(PlayerFile::installed(to.layout, BookLayout::serviceWorker));
    const auto write = [&to](const QString& path, const QByteArray& data,
                             Phase phase = Phase::contents) {
        to.transaction.write(to.layout.at(path), data, phase);
    };
    write(BookLayout::icon, iconOf(to, book));
    if (!book.player)
        write(BookLayout::offlineScript, PublishTransaction::contents(PlayerFile::installed(
                                             to.layout, BookLayout::offlineScript)));
    const List list = listOf(to, book);
    QByteArrayList parts;
    for (const auto& [number, files] : list.parts) {
        if (number == 0)
            continue;
        const QString path = BookLayout::offlinePart(number);
        write(path, files, Phase::configuration);
        parts << member(path, digestOf(files));
    }
    const QByteArray files = "\"shell\":" + list.shell + ",\"rest\":" + list.parts.at(0) +
                             ",\"parts\":{" + parts.join(',') + '}';
    const QByteArray version = digestOf(files + script);
    write(BookLayout::offlineList,
          "{\"version\":\"" + version + "\",\"bytes\":" + QByteArray::number(list.bytes) +
              ",\"count\":" + QByteArray::number(list.count) + ',' + files + "}\n",
          Phase::configuration);
    write(BookLayout::manifest, manifestOf(book), Phase::page);
    write(BookLayout::serviceWorker,
          ExistingBook::serviceWorkerStart + quoted(book.htmlName()) + ",\"version\":\"" + version +
              (book.player ? ending(*book.player) : "\"};\n" + script),
          Phase::page);
}
