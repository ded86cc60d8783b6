#include "builder/PDFEncryption.h"

#include <QCryptographicHash>
#include <numeric>
#include <utility>

namespace {

constexpr int kKeyLength = 5;
constexpr int kPasswordLength = 32;
const QByteArray kIdentifier = QByteArrayLiteral("folvero sample 1");

QByteArray md5(const QByteArray& data) {
    return QCryptographicHash::hash(data, QCryptographicHash::Md5);
}

QByteArray rc4(const QByteArray& key, const QByteArray& data) {
    unsigned char state[256];
    std::iota(std::begin(state), std::end(state), static_cast<unsigned char>(0));
    for (unsigned i = 0, j = 0; i < 256; ++i) {
        j = (j + state[i] + static_cast<unsigned char>(key[i % key.size()])) & 255;
        std::swap(state[i], state[j]);
    }
    QByteArray result = data;
    unsigned i = 0;
    unsigned j = 0;
    for (char& byte : result) {
        i = (i + 1) & 255;
        j = (j + state[i]) & 255;
        std::swap(state[i], state[j]);
        byte = static_cast<char>(byte ^ state[(state[i] + state[j]) & 255]);
    }
    return result;
}

// The fixed bytes that fill a password up to 32 bytes.
QByteArray padding() {
    return QByteArray::fromHex("28BF4E5E4E758A4164004E56FFFA01082E2E00B6D0683E802F0CA9FE6453697A");
}

QByteArray padded(const QByteArray& password) {
    return (password + padding()).left(kPasswordLength);
}

QByteArray littleEndian(quint32 value, int bytes) {
    QByteArray result;
    for (int i = 0; i < bytes; ++i)
        result += static_cast<char>((value >> (8 * i)) & 0xFF);
    return result;
}

} // namespace

PDFEncryption::PDFEncryption(const QByteArray& userPassword, const QByteArray& ownerPassword,
                             qint32 permissions)
    : iPermissions(permissions),
      iOwnerEntry(rc4(md5(padded(ownerPassword)).left(kKeyLength), padded(userPassword))) {
    iKey = md5(padded(userPassword) + iOwnerEntry +
               littleEndian(static_cast<quint32>(iPermissions), 4) + kIdentifier)
               .left(kKeyLength);
    iUserEntry = rc4(iKey, padding());
}

QByteArray PDFEncryption::dictionary() const {
    return "<< /Filter /Standard /V 1 /R 2 /O <" + iOwnerEntry.toHex() + "> /U <" +
           iUserEntry.toHex() + "> /P " + QByteArray::number(iPermissions) + " >>";
}

QByteArray PDFEncryption::fileIdentifier() const {
    const QByteArray identifier = "<" + kIdentifier.toHex() + ">";
    return "[" + identifier + " " + identifier + "]";
}

QByteArray PDFEncryption::encrypted(int objectNumber, const QByteArray& data) const {
    const QByteArray objectKey =
        md5(iKey + littleEndian(static_cast<quint32>(objectNumber), 3) + littleEndian(0, 2))
            .left(kKeyLength + 5);
    return rc4(objectKey, data);
}

QByteArray PDFEncryption::withStringsEncrypted(int objectNumber, const QByteArray& body) const {
    QByteArray result;
    qsizetype at = 0;
    while (at < body.size()) {
        if (body[at] == '<' && body.mid(at, 2) != "<<") {
            const qsizetype end = body.indexOf('>', at);
            const QByteArray plain = QByteArray::fromHex(body.mid(at + 1, end - at - 1));
            result += "<" + encrypted(objectNumber, plain).toHex() + ">";
            at = end + 1;
        } else {
            const qsizetype step = body.mid(at, 2) == "<<" ? 2 : 1;
            result += body.mid(at, step);
            at += step;
        }
    }
    return result;
}
