#include "app/MirelUtility.h"
#include "base/Log.h"
#include "system/Files.h"
#include "system/Folders.h"

#include <QDir>
#include <QFile>
#include <QStringConverter>
#include <optional>

namespace {

const QString trustFolder = QStringLiteral("Macromedia/FlashPlayerTrust");

// The text of a UTF-16 file, in either byte order; none when it can't be read or decoded.
std::optional<QString> readUTF16(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray data = file.readAll();
    if (data.size() % 2 != 0)
        return std::nullopt;
    QStringDecoder decode(QStringConverter::Utf16);
    const QString text = decode(data);
    return decode.hasError() ? std::nullopt : std::optional(text);
}

void writeUTF16(const QString& path, const QString& text) {
    QStringEncoder encode(QStringConverter::Utf16, QStringConverter::Flag::WriteBom);
    const QByteArray data = encode(text);
    Files::writeAtomically(path, data);
}

void addLine(const QString& path, const QString& line) {
    if (!QFile::exists(path))
        writeUTF16(path, line);
    const std::optional<QString> text = readUTF16(path);
    if (text && !text->split(u'\n').contains(line))
        writeUTF16(path, *text + u'\n' + line);
}

} // namespace

void MirelUtility::makeDiractoryTrustByFlash(const QString& folder) {
    const QString library = Folders::libraryApplicationSupport();
    const QString machine = Folders::machineApplicationSupport();
    const QString libraryTrust = Files::join(library, trustFolder);
    const QString trust = Files::join(machine.isNull() ? library : machine, trustFolder);
    QDir().mkpath(libraryTrust);
    QDir().mkpath(trust);
    const QString file = Files::join(trust, QStringLiteral("PT.cfg"));
    const Log log("MirelUtility");
    log.debug(QStringLiteral("trust folder is:%1").arg(file));
    addLine(file, folder);
    if (machine.isNull())
        Files::copy(file, libraryTrust + QStringLiteral(".PT.cfg"));
    log.debug(QFile::exists(file) ? QStringLiteral("file is exits!!")
                                  : QStringLiteral("file doest not exits!!!!!!!!!"));
}
