#include "webbook/SharedPlayer.h"

#include "base/PlatformException.h"
#include "output/BookLayout.h"
#include "output/BookName.h"
#include "output/PlayerFile.h"
#include "output/PublishTransaction.h"
#include "system/Bundle.h"
#include "system/Confinement.h"
#include "system/Files.h"
#include "system/NameAliases.h"
#include "template/FlashTemplate.h"
#include "util/NSData+CommonCrypto.h"
#include "webbook/WebPageTemplate.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>

namespace {

// Digits of the digest in a folder's name.
constexpr int digestLetters = 12;

[[noreturn]] void refuse(const QString& folder, const QString& why) {
    throw PlatformException(ErrorKind::invalidParameter,
                            Message(QStringLiteral("%1: %2").arg(NameAliases::shown(folder), why)));
}

QString absolute(const QString& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

// As browsers encode it in addresses that scripts make.
QByteArray encoded(const QByteArray& path) {
    return path.toPercentEncoding("/!*'()");
}

// From a book's folder to another one.
QByteArray addressOf(const QString& folder, const QString& bookFolder) {
    const QByteArrayList to = NameAliases::encoded(absolute(folder)).split('/');
    const QByteArrayList from = NameAliases::encoded(absolute(bookFolder)).split('/');
    qsizetype common = 0;
    while (common < std::min(to.size(), from.size()) && to[common] == from[common])
        ++common;
    if (common == from.size())
        refuse(folder, QStringLiteral("the shared player can't lie in the book's folder"));
    // The root has no name, and no web server serves it.
    if (common < 2)
        refuse(folder, QStringLiteral("has no address in the book: some folder must contain the "
                                      "shared player and the book"));
    QByteArrayList parts(from.size() - common, "..");
    parts += to.sliced(common);
    const QByteArray address = parts.join('/');
    if (!address.isValidUtf8())
        refuse(folder,
               QStringLiteral("has no address in the book: there are bytes in its name that are "
                              "not UTF-8"));
    return encoded(address) + '/';
}

// Pictures and sounds that come with the template or its style. Those of a user stay in the book,
// and so do names that addresses would change.
void addSettingsFiles(const FlashTemplate::Properties& properties,
                      std::vector<SharedPlayer::File>& to) {
    const QString library = Files::join(Bundle::resourcePath(), QStringLiteral("AppFiles"));
    for (const auto& property : properties) {
        if (!property)
            continue;
        const QString source = property->value();
        const QString name = BookName::withExtensionOf(property->key(), source);
        if (property->propertyType() == pt_file && BookName::isSafe(name) &&
            encoded(name.toUtf8()) == name && QFileInfo(source).isFile() &&
            Confinement::contains(library, source)) {
            const QString path = BookLayout::in(BookLayout::settingsFiles, name);
            to.push_back({BookLayout::inFiles(path), path, PublishTransaction::contents(source)});
        }
        addSettingsFiles(property->childProperties(), to);
    }
}

QByteArray digestOf(const std::vector<SharedPlayer::File>& files) {
    QByteArray all;
    for (const auto& file : files)
        all +=
            file.name.toUtf8() + '\n' + QByteArray::number(file.bytes.size()) + '\n' + file.bytes;
    return CommonDigest::SHA256Hash(all).toHex().left(digestLetters);
}

} // namespace

SharedPlayer::SharedPlayer(const QString& folder, const QString& bookFolder,
                           const FlashTemplate& flashTemplate) {
    const QByteArray address = addressOf(folder, bookFolder);
    addFiles(bookFolder, flashTemplate);
    const QString version = Bundle::version() + u'-' + QString::fromLatin1(digestOf(iFiles));
    iFolder = Files::join(absolute(folder), version);
    iAddress = address + encoded(version.toUtf8()) + '/';
}

void SharedPlayer::addFiles(const QString& bookFolder, const FlashTemplate& flashTemplate) {
    const BookLayout book(bookFolder);
    for (const QString& path :
         QStringList{BookLayout::webScript, BookLayout::webStyle, BookLayout::offlineScript} +
             BookLayout::laterScripts() + PlayerFile::languages())
        iFiles.push_back({BookLayout::inFiles(path), path,
                          PublishTransaction::contents(PlayerFile::installed(book, path))});
    iFiles.push_back(
        {BookLayout::serviceWorker, QString(),
         PublishTransaction::contents(PlayerFile::installed(book, BookLayout::serviceWorker))});
    for (const auto& [path, text] : WebPageTemplate::parts(WebPageTemplate::of(&flashTemplate)))
        iFiles.push_back({BookLayout::inFiles(path), path, text.toUtf8()});
    const QString sound = flashTemplate.playerFile(Files::lastPathComponent(BookLayout::sound));
    if (!sound.isNull())
        iFiles.push_back({BookLayout::inFiles(BookLayout::sound), BookLayout::sound,
                          PublishTransaction::contents(sound)});
    addSettingsFiles(flashTemplate.properties(), iFiles);
    std::stable_sort(iFiles.begin(), iFiles.end(),
                     [](const File& a, const File& b) { return a.name < b.name; });
}

QString SharedPlayer::at(const QString& name) const {
    return Files::join(iFolder, name);
}

QByteArray SharedPlayer::address(const QString& name) const {
    return iAddress + encoded(name.toUtf8());
}

QString SharedPlayer::namesForPage() const {
    QStringList names;
    for (const File& file : iFiles) {
        if (!file.inBook.isNull() && !BookLayout::filesOfHTMLPage().contains(file.inBook))
            names << file.name;
    }
    return names.join(u' ');
}

bool SharedPlayer::isThere() const {
    return std::all_of(iFiles.begin(), iFiles.end(), [this](const File& file) {
        const QFileInfo there(at(file.name));
        return there.isFile() && there.size() == file.bytes.size();
    });
}

void SharedPlayer::put() const {
    for (const File& file : iFiles) {
        const QString path = at(file.name);
        Message error;
        const bool isWritten =
            QDir().mkpath(QFileInfo(path).path()) && Files::writeNew(path, file.bytes, &error);
        if (isWritten || (QFileInfo(path).isFile() && Files::contents(path) == file.bytes))
            continue;
        if (QFileInfo::exists(path) || QFileInfo(path).isSymLink())
            error = Message(QStringLiteral("is not the file of this version of the player, and is "
                                           "not overwritten"));
        else if (error.isNull())
            error = Message::ofSystemError(errno);
        PublishTransaction::fail(path, error);
    }
}
