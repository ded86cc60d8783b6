#include "support/BookReader.h"

#include "support/TemplateLibrary.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>
#include <memory>
#include <openssl/evp.h>
#include <openssl/provider.h>
#include <stdexcept>

namespace {

constexpr char playersKey[] = "zq4mk2pw7rxv1bn8ty";

void require(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

// RC4 lives in a provider that is not loaded by default.
const EVP_CIPHER* rc4() {
    static OSSL_PROVIDER* const provider = OSSL_PROVIDER_load(nullptr, "legacy");
    static OSSL_PROVIDER* const others = OSSL_PROVIDER_load(nullptr, "default");
    require(provider && others, "OpenSSL has no legacy provider");
    static EVP_CIPHER* const cipher = EVP_CIPHER_fetch(nullptr, "RC4", nullptr);
    require(cipher, "OpenSSL has no RC4");
    return cipher;
}

BookElement readElement(QXmlStreamReader& reader) {
    BookElement element;
    element.name = reader.name().toString();
    QString text;
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::EndElement) {
        if (reader.isStartElement())
            element.children.push_back(readElement(reader));
        else if (reader.isCharacters())
            text += reader.text();
    }
    if (element.children.empty())
        element.text = text;
    return element;
}

} // namespace

QStringList BookElement::childNames() const {
    QStringList names;
    for (const BookElement& child : children)
        names << child.name;
    return names;
}

const BookElement& BookElement::at(const QString& path) const {
    const BookElement* element = this;
    for (const QString& step : path.split(u'/')) {
        const auto& list = element->children;
        const auto found = std::find_if(list.begin(), list.end(),
                                        [&](const auto& child) { return child.name == step; });
        if (found == list.end())
            throw std::out_of_range("no element " + path.toStdString());
        element = &*found;
    }
    return *element;
}

BookElement BookReader::configuration(const QString& bookFolder) {
    return parse(decipher(TestFiles::read(bookFolder + QStringLiteral("/files/UserConfig.bin"))));
}

BookElement BookReader::parse(const QByteArray& xml) {
    QXmlStreamReader reader(xml);
    require(reader.readNextStartElement(), "no root element");
    BookElement root = readElement(reader);
    while (!reader.atEnd())
        reader.readNext();
    require(!reader.hasError(), "malformed configuration");
    return root;
}

QByteArray BookReader::decipher(const QByteArray& bytes) {
    const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(
        EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
    QByteArray result(bytes.size(), '\0');
    int length = 0;
    const auto* key = reinterpret_cast<const unsigned char*>(playersKey);
    const bool done =
        EVP_DecryptInit_ex2(context.get(), rc4(), nullptr, nullptr, nullptr) == 1 &&
        EVP_CIPHER_CTX_set_key_length(context.get(), sizeof playersKey - 1) == 1 &&
        EVP_DecryptInit_ex2(context.get(), nullptr, key, nullptr, nullptr) == 1 &&
        EVP_DecryptUpdate(context.get(), reinterpret_cast<unsigned char*>(result.data()), &length,
                          reinterpret_cast<const unsigned char*>(bytes.constData()),
                          static_cast<int>(bytes.size())) == 1;
    require(done && length == bytes.size(), "RC4 failed");
    return result;
}

QByteArray BookReader::bytesOfScript(const QByteArray& script) {
    static const QRegularExpression whole(
        QStringLiteral("\\Awindow\\.FolveroUserConfig = \"([A-Za-z0-9+/=]*)\";\n\\z"));
    const QRegularExpressionMatch match = whole.match(QString::fromUtf8(script));
    require(match.hasMatch(), "not the script of a configuration");
    return QByteArray::fromBase64(match.captured(1).toLatin1());
}

QStringList BookReader::filesBeneath(const QString& folder) {
    QStringList files;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        files << QDir(folder).relativeFilePath(entries.next());
    files.sort();
    return files;
}

std::map<QString, QByteArray> BookReader::contentsBeneath(const QString& folder) {
    std::map<QString, QByteArray> contents;
    for (const QString& name : filesBeneath(folder)) {
        if (name.endsWith(QStringLiteral(".stamp")))
            continue; // the time differs
        QFile file(QDir(folder).filePath(name));
        require(file.open(QIODevice::ReadOnly), "a file can't be read");
        contents[name] = file.readAll();
    }
    return contents;
}
