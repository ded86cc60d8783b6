#include "output/BookStamp.h"

#include "base/Log.h"
#include "output/BookLayout.h"
#include "system/Files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <chrono>
#include <sys/stat.h>

namespace {

constexpr Log stampLog("BookStamp");

constexpr auto digestMethod = QCryptographicHash::Blake2b_256;

// A file that was modified so shortly before it was read may have changed since without a new time.
constexpr qint64 timeTolerance = 2'000'000'000;

const QString sizeKey = QStringLiteral("documentSize");
const QString modifiedKey = QStringLiteral("documentModified");
const QString readKey = QStringLiteral("documentRead");
const QString documentKey = QStringLiteral("document");
const QString pagesKey = QStringLiteral("pages");
const QString bookKey = QStringLiteral("book");
const QString filesKey = QStringLiteral("files");

QString pathFor(const QString& page) {
    const QFileInfo info(page);
    return Files::join(info.path(), u'.' + info.fileName() + QStringLiteral(".stamp"));
}

qint64 nanosecondsNow() {
    using namespace std::chrono;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

QStringList filesBelow(const QString& path) {
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList files;
    QDirIterator all(path, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (all.hasNext())
        files << all.next();
    return files;
}

// Of the names and sizes of all files that the book may have.
QByteArray digestOfFiles(const QString& page) {
    QStringList files = filesBelow(page);
    if (QFileInfo(page).isFile()) {
        const BookLayout layout(QFileInfo(page).path());
        for (const QString& path : {BookLayout::files, BookLayout::movie, BookLayout::textPage,
                                    BookLayout::serviceWorker, BookLayout::manifest})
            files << filesBelow(layout.at(path));
    }
    std::sort(files.begin(), files.end());
    const qsizetype start = QFileInfo(page).path().size();
    QCryptographicHash hash(digestMethod);
    for (const QString& file : files) {
        hash.addData(file.mid(start).toUtf8());
        hash.addData(' ' + QByteArray::number(QFileInfo(file).size()) + '\n');
    }
    return hash.result().toHex();
}

// Numbers in JSON have 53 bits.
qint64 numberIn(const QJsonObject& object, const QString& key) {
    return object[key].toString().toLongLong();
}

} // namespace

BookStamp::Document BookStamp::documentAt(const QString& path, const BookStamp& earlier) {
    QFile file(path);
    struct stat info {};
    // Opening a pipe would block.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) ||
        ::fstat(file.handle(), &info) != 0)
        return {};
    Document found;
    found.size = info.st_size;
    const auto nanoseconds = [](const timespec& time) {
        return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
    };
    // Programs can set the first when they write, but not the other.
    found.modified = std::max(nanoseconds(info.st_mtim), nanoseconds(info.st_ctim));
    found.read = nanosecondsNow();
    const Document& known = earlier.document;
    const bool isKnown = known.size == found.size && known.modified == found.modified &&
                         known.modified + timeTolerance < known.read;
    if (isKnown)
        return known;
    found.digest = Files::digest(path);
    return found;
}

BookStamp BookStamp::of(const QString& page) {
    const QJsonObject content = QJsonDocument::fromJson(Files::contents(pathFor(page))).object();
    const auto digest = [&content](const QString& key) {
        return content[key].toString().toLatin1();
    };
    if (content.isEmpty() || digest(filesKey) != digestOfFiles(page))
        return {};
    BookStamp stamp;
    stamp.document = {numberIn(content, sizeKey), numberIn(content, modifiedKey),
                      numberIn(content, readKey), digest(documentKey)};
    stamp.pages = digest(pagesKey);
    stamp.book = digest(bookKey);
    return stamp;
}

void BookStamp::write(const QString& page) const {
    const auto text = [](const QByteArray& digest) { return QString::fromLatin1(digest); };
    const QJsonObject content{{sizeKey, QString::number(document.size)},
                              {modifiedKey, QString::number(document.modified)},
                              {readKey, QString::number(document.read)},
                              {documentKey, text(document.digest)},
                              {pagesKey, text(pages)},
                              {bookKey, text(book)},
                              {filesKey, text(digestOfFiles(page))}};
    Message cause;
    if (!Files::writeAtomically(pathFor(page), QJsonDocument(content).toJson(), &cause))
        stampLog.warn(Message::about(pathFor(page), cause).english());
}

BookStamp::Removal::Removal(const QString& page)
    : iPath(pathFor(page)), iContent(Files::contents(iPath)) {
    QFile::remove(iPath);
}

BookStamp::Removal::~Removal() {
    if (!iContent.isEmpty())
        Files::writeAtomically(iPath, iContent);
}
