#include "cli/DecodeCommand.h"

#include "console/CommandError.h"
#include "console/Terminal.h"
#include "output/BookLayout.h"
#include "output/UserConfig.h"
#include "system/Files.h"
#include "util/NSData+CommonCrypto.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <pugixml.hpp>

namespace {

QByteArray decipheredConfiguration(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError(QStringLiteral("%1: %2").arg(path, file.errorString()));
    constexpr qint64 mostBytes = 64 << 20; // far beyond any book
    const QByteArray bytes = file.read(mostBytes + 1);
    if (bytes.size() > mostBytes)
        throw CommandError(QStringLiteral("%1: is larger than any configuration").arg(path));
    return CommonCryptor::decryptedRC4DataUsingKey(bytes, userConfigKey);
}

// An element's text, or an object of its children; children with the same name become an array.
QJsonValue elementAsJson(const pugi::xml_node& element) {
    QJsonObject object;
    for (const pugi::xml_node child : element.children()) {
        if (child.type() != pugi::node_element)
            continue;
        const QString name = QString::fromUtf8(child.name());
        const QJsonValue value = elementAsJson(child);
        if (!object.contains(name)) {
            object[name] = value;
            continue;
        }
        QJsonArray list =
            object[name].isArray() ? object[name].toArray() : QJsonArray{object[name]};
        list.append(value);
        object[name] = list;
    }
    if (object.isEmpty())
        return QString::fromUtf8(element.text().get());
    return object;
}

} // namespace

void runDecode(const QString& book, bool json) {
    const QString path =
        QFileInfo(book).isDir() ? Files::join(book, BookLayout::configuration) : book;
    if (!QFileInfo(path).isFile()) {
        throw CommandError(QStringLiteral("%1: is not a published book (it has no %2)")
                               .arg(book, BookLayout::configuration));
    }
    const QByteArray xml = decipheredConfiguration(path);
    pugi::xml_document document;
    if (!document.load_buffer(xml.constData(), std::size_t(xml.size()))) {
        throw CommandError(
            QStringLiteral("%1: is damaged, or not the configuration of a book").arg(path),
            ExitCode::badDocument);
    }
    if (!json) {
        Terminal::print(QString::fromUtf8(xml).trimmed());
        return;
    }
    const pugi::xml_node root = document.document_element();
    const QJsonObject object{{QString::fromUtf8(root.name()), elementAsJson(root)}};
    Terminal::print(QString::fromUtf8(QJsonDocument(object).toJson()).trimmed());
}
