#include "system/NameAliases.h"

#include "base/PlatformException.h"
#include "system/Files.h"
#include "system/TemporaryFolders.h"

#include <QFile>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

struct Alias {
    QString link;
    QByteArray target; // absolute
};

std::vector<Alias>& aliases() {
    static std::vector<Alias> all;
    return all;
}

// The same name as for page files, whose makers remove what a killed program leaves.
const QString& folderOfLinks() {
    static const struct Folder {
        QString path = TemporaryFolders::make(QStringLiteral("Lumivex"));
        ~Folder() { TemporaryFolders::remove(path); }
    } folder;
    return folder.path;
}

// Null for what is no letter or mark of a written name.
QChar windows1252(uchar byte) {
    constexpr char16_t from80[] = u"\0\0\0ƒ\0\0\0\0\0\0Š\0Œ\0Ž\0\0‘’“”\0–—\0\0š\0œ\0žŸ";
    if (byte < 0xA0)
        return from80[byte - 0x80];
    return byte >= 0xC0 || QChar(byte).isLetter() || byte == 0xAB || byte == 0xBB ? QChar(byte)
                                                                                  : QChar();
}

// Passes each byte that is not of UTF-8 through the function.
template <class Convert>
QString textOf(QByteArray bytes, Convert convert) {
    QString text = QStringLiteral("");
    while (!bytes.isEmpty()) {
        constexpr qsizetype longest = 4;
        qsizetype length = 1;
        while (length < std::min(longest, bytes.size()) && !bytes.first(length).isValidUtf8())
            ++length;
        const bool isValid = bytes.first(length).isValidUtf8();
        text += isValid ? QString::fromUtf8(bytes.first(length)) : convert(uchar(bytes.front()));
        bytes.remove(0, isValid ? length : 1);
    }
    return text;
}

QString withUnderscores(const QByteArray& bytes) {
    return textOf(bytes, [](uchar) { return QString(u'_'); });
}

QString escaped(const QByteArray& bytes) {
    return textOf(bytes,
                  [](uchar byte) { return QStringLiteral("\\x%1").arg(byte, 2, 16, QChar(u'0')); });
}

QByteArray currentFolder() {
    const std::unique_ptr<char, void (*)(void*)> path(::getcwd(nullptr, 0), std::free);
    return path.get();
}

[[noreturn]] void fail(const QByteArray& target) {
    throw PlatformException(ErrorKind::temporaryFolder,
                            Message::about(escaped(target), Message::ofLastSystemError()));
}

QString aliasOf(QByteArray target) {
    while (target.size() > 1 && target.endsWith('/'))
        target.chop(1);
    for (const Alias& known : aliases()) {
        if (known.target == target)
            return known.link;
    }
    QByteArray name = target.mid(target.lastIndexOf('/') + 1);
    if (name.isEmpty() || name == "." || name == "..")
        name = "folder";
    const QString folder = Files::join(folderOfLinks(), QString::number(aliases().size()));
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0)
        fail(target);
    // Letters take more bytes than they did, perhaps too many for a file name.
    for (const QString& shown : {NameAliases::text(name), withUnderscores(name)}) {
        const QString link = Files::join(folder, shown);
        if (::symlink(target.constData(), QFile::encodeName(link).constData()) == 0) {
            aliases().push_back({link, target});
            return link;
        }
    }
    fail(target);
}

// The length up to the end of the last name that is not UTF-8, or of the last "..", which behind a
// link would lead elsewhere.
qsizetype lengthToAlias(const QByteArray& path) {
    qsizetype length = 0;
    qsizetype end = 0;
    for (const QByteArray& name : path.split('/')) {
        end += name.size();
        if (!name.isValidUtf8() || (length > 0 && name == ".."))
            length = end;
        ++end;
    }
    return length;
}

} // namespace

QString NameAliases::decoded(const QByteArray& path) {
    const bool isRelative = !path.isEmpty() && !path.startsWith('/');
    const QByteArray current = isRelative ? currentFolder() : QByteArray();
    if (path.isValidUtf8() && current.isValidUtf8())
        return QString::fromUtf8(path);
    const QByteArray whole = isRelative ? current + '/' + path : path;
    const qsizetype length = lengthToAlias(whole);
    return aliasOf(whole.first(length)) + QString::fromUtf8(whole.sliced(length));
}

QString NameAliases::text(const QByteArray& bytes) {
    if (!bytes.isEmpty() && bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    bool areLetters = true;
    const QString letters = textOf(bytes, [&](uchar byte) {
        areLetters = areLetters && !windows1252(byte).isNull();
        return QString(windows1252(byte));
    });
    return areLetters ? letters : withUnderscores(bytes);
}

QByteArray NameAliases::encoded(const QString& path) {
    for (const Alias& alias : aliases()) {
        if (path.startsWith(alias.link) &&
            (path.size() == alias.link.size() || path[alias.link.size()] == u'/'))
            return alias.target + QFile::encodeName(path.mid(alias.link.size()));
    }
    return QFile::encodeName(path);
}

// What follows links by QString, as QSaveFile does, would write a file with another name.
bool NameAliases::write(const QString& path, const QByteArray& data, Message* error) {
    const QByteArray name = encoded(path);
    if (name.mid(name.lastIndexOf('/')).isValidUtf8())
        return Files::writeAtomically(path, data, error);
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
    return Files::replace(name, name + ".part", {bytes, std::size_t(data.size())}, error);
}

QString NameAliases::shown(QString text) {
    for (const Alias& alias : aliases())
        text.replace(alias.link, escaped(alias.target));
    return text;
}

QByteArray NameAliases::unchanged(const QString& text) {
    QByteArray bytes = text.toLocal8Bit();
    for (const Alias& alias : aliases())
        bytes.replace(alias.link.toLocal8Bit(), alias.target);
    return bytes;
}
