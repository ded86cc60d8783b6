#include "output/BookLayout.h"

#include "system/Files.h"

#include <QRegularExpression>

namespace {

const QString script = QStringLiteral("js");
const QString photograph = QStringLiteral("jpg");

QString numbered(const QString& folder, int number, const QString& extension) {
    return BookLayout::in(folder, QString::number(number) + u'.' + extension);
}

} // namespace

QString BookLayout::in(const QString& folder, const QString& name) {
    return Files::join(Files::join(files, folder), name);
}

QString BookLayout::page(int number, const QString& extension) {
    return numbered(pages, number, extension);
}

QString BookLayout::thumbnail(int number) {
    return numbered(thumbnails, number, photograph);
}

QString BookLayout::largePage(int number, const QString& extension) {
    return numbered(largePages, number, extension);
}

QString BookLayout::text(int number) {
    return numbered(texts, number, script);
}

QString BookLayout::searchPart(int part) {
    return part == 0 ? searchText : in(search, QStringLiteral("text-%1.js").arg(part));
}

QString BookLayout::readingPart(int part) {
    return in(reading, QStringLiteral("text-%1.js").arg(part));
}

QString BookLayout::offlinePart(int part) {
    return in(webData, QStringLiteral("offline-%1.json").arg(part));
}

QStringList BookLayout::webFilesOfPage(int number) {
    QStringList names{thumbnail(number), text(number)};
    for (const char* kind : {"js", "png", "jpg"})
        names << largePage(number, QString::fromLatin1(kind));
    // Of books of earlier versions.
    for (const char* kind : {"svg", "webp"})
        names << largePage(number, QString::fromLatin1(kind));
    return names << numbered(thumbnails, number, QStringLiteral("webp"));
}

QStringList BookLayout::webFiles() {
    return filesOfHTMLPage() + laterScripts() +
           QStringList{searchText, offlineScript, shareImage, metadata};
}

QStringList BookLayout::laterScripts() {
    return {vectorScript, readingScript, notesScript, contentsScript, searchScript};
}

QStringList BookLayout::filesOfHTMLPage() {
    return {pageScript, pageStyle, webScript, webStyle};
}

QStringList BookLayout::offlineFiles() {
    return {serviceWorker, manifest, offlineList, icon, offlineScript};
}

QString BookLayout::namesIn(const QString& folder) {
    if (folder == webData)
        return QStringLiteral("offline-[1-9][0-9]*\\.json");
    if (folder == search || folder == reading)
        return QStringLiteral("text-[1-9][0-9]*\\.js");
    if (folder == languages)
        return QStringLiteral("[a-z]{2,3}\\.js");
    QString extension = QStringLiteral("[A-Za-z0-9]{1,5}");
    if (folder == largePages)
        extension = QStringLiteral("(js|png|jpg)");
    else if (folder == thumbnails)
        extension = photograph;
    else if (folder == texts)
        extension = script;
    return QStringLiteral("[1-9][0-9]*\\.") + extension;
}

int BookLayout::numberOfPage(const QString& path) {
    static const QRegularExpression picture(
        QRegularExpression::anchoredPattern(in(pages, namesIn(pages))));
    return picture.match(path).hasMatch() ? path.section(u'/', -1).section(u'.', 0, 0).toInt() : 0;
}

bool BookLayout::isIn(const QString& folder, const QString& path) {
    return path.startsWith(in(folder, QString()) + u'/');
}

bool BookLayout::isData(const QString& path) {
    const auto isInOne = [&](const QStringList& folders) {
        return std::any_of(folders.begin(), folders.end(),
                           [&](const QString& folder) { return isIn(folder, path); });
    };
    return isInOne({texts, search, reading, webData, largePages}) &&
           Files::pathExtension(path) == script;
}

QString BookLayout::inFiles(const QString& path) {
    const QString start = files + u'/';
    return path.startsWith(start) ? path.sliced(start.size()) : QString();
}

QString BookLayout::dataName(const QString& path) {
    return inFiles(path).section(u'.', 0, -2);
}

QString BookLayout::at(const QString& path) const {
    return Files::join(iFolder, path);
}
