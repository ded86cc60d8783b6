#include "system/ZipReader.h"

#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <memory>
#include <minizip/unzip.h>

namespace {

constexpr int longestName = 255;

Message damaged() {
    return Message::translate("ZipReader", "is damaged");
}

Message tooLarge() {
    return Message::translate("ZipReader", "has far too much in it");
}

struct Closing {
    void operator()(unzFile file) const { ::unzClose(file); }
};
using Archive = std::unique_ptr<void, Closing>;

// Null when the entry can't be used.
QString nameOfEntry(unzFile archive) {
    unz_file_info64 info{};
    std::array<char, longestName + 1> name{};
    const int result =
        ::unzGetCurrentFileInfo64(archive, &info, name.data(), name.size(), nullptr, 0, nullptr, 0);
    constexpr uLong encrypted = 1;
    if (result != UNZ_OK || info.size_filename == 0 || info.size_filename > longestName ||
        (info.flag & encrypted) != 0)
        return {};
    return QString::fromUtf8(name.data(), qsizetype(info.size_filename));
}

// The size that an archive states can be a lie. Null when the entry can't be read or has more than
// that many bytes.
QByteArray contentOfEntry(unzFile archive, qint64 mostBytes, Message* error) {
    *error = damaged();
    if (::unzOpenCurrentFile(archive) != UNZ_OK)
        return {};
    QByteArray content("");
    std::array<char, 1 << 14> piece{};
    int count = 0;
    while ((count = ::unzReadCurrentFile(archive, piece.data(), unsigned(piece.size()))) > 0 &&
           content.size() + count <= mostBytes)
        content.append(piece.data(), count);
    if (count > 0)
        *error = tooLarge();
    // The checksum is compared when the whole entry was read.
    const bool isSound = ::unzCloseCurrentFile(archive) == UNZ_OK && count == 0;
    return isSound ? content : QByteArray();
}

std::optional<ZipReader::Entries> entriesOf(unzFile archive, ZipReader::Limits limits,
                                            Message* error) {
    unz_global_info64 about{};
    *error = damaged();
    if (::unzGetGlobalInfo64(archive, &about) != UNZ_OK)
        return std::nullopt;
    if (about.number_entry > ZPOS64_T(limits.entries)) {
        *error = tooLarge();
        return std::nullopt;
    }
    ZipReader::Entries entries;
    qint64 left = limits.bytes;
    for (ZPOS64_T i = 0; i < about.number_entry; ++i) {
        *error = damaged();
        if ((i == 0 ? ::unzGoToFirstFile(archive) : ::unzGoToNextFile(archive)) != UNZ_OK)
            return std::nullopt;
        const QString name = nameOfEntry(archive);
        const QByteArray content =
            name.isNull() ? QByteArray() : contentOfEntry(archive, left, error);
        // Of two with one name other programs may take the other.
        if (content.isNull() || !entries.emplace(name, content).second)
            return std::nullopt;
        left -= content.size();
    }
    *error = {};
    return entries;
}

} // namespace

std::optional<ZipReader::Entries> ZipReader::read(const QString& path, Limits limits,
                                                  Message* error) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) { // opening a pipe would block
        *error = Message::translate("ZipReader", "is no file");
        return std::nullopt;
    }
    errno = 0;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = Message::ofLastSystemError();
        return std::nullopt;
    }
    const Archive archive(::unzOpen64(QFile::encodeName(path).constData()));
    if (!archive) {
        *error = Message::translate("ZipReader", "is no ZIP archive, or not all of one");
        return std::nullopt;
    }
    return entriesOf(archive.get(), limits, error);
}
