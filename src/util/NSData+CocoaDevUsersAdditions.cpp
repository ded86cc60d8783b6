#include "util/NSData+CocoaDevUsersAdditions.h"

#include "util/NSData+CommonCrypto.h"

#include <zlib.h>

namespace {

constexpr char base32Alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567";
constexpr unsigned base32Bits = 5;

// -1 for characters outside the alphabet.
int base32Value(char16_t letter) {
    if (letter >= u'A' && letter <= u'Z')
        return letter - u'A';
    if (letter >= u'a' && letter <= u'z')
        return letter - u'a';
    if (letter >= u'2' && letter <= u'7')
        return letter - u'2' + 26;
    return -1;
}

QString hexadecimal(const QByteArray& data) {
    return QString::fromLatin1(data.toHex());
}

} // namespace

NSDataExtension::Range NSDataExtension::rangeOfNullTerminatedBytesFrom(const QByteArray& data,
                                                                       qsizetype start) {
    if (start < 0 || start >= data.size())
        return {};
    const qsizetype end = data.indexOf('\0', start);
    return end < 0 ? Range{} : Range{start, end - start};
}

QByteArray NSDataExtension::dataWithBase32String(const QString& text) {
    QByteArray result("");
    unsigned bits = 0;
    unsigned bitCount = 0;
    for (const QChar letter : text) {
        const int value = base32Value(letter.unicode());
        if (value < 0)
            continue;
        bits = (bits << base32Bits | unsigned(value)) & 0xfffU;
        bitCount += base32Bits;
        if (bitCount < 8)
            continue;
        bitCount -= 8;
        result.append(char(bits >> bitCount & 0xffU));
    }
    return result;
}

QString NSDataExtension::base32String(const QByteArray& data) {
    QString result = QStringLiteral("");
    unsigned bits = 0;
    unsigned bitCount = 0;
    for (const char byte : data) {
        bits = (bits << 8U | static_cast<unsigned char>(byte)) & 0xfffU;
        bitCount += 8;
        while (bitCount >= base32Bits) {
            bitCount -= base32Bits;
            result.append(QLatin1Char(base32Alphabet[bits >> bitCount & 31U]));
        }
    }
    if (bitCount > 0)
        result.append(QLatin1Char(base32Alphabet[bits << (base32Bits - bitCount) & 31U]));
    return result;
}

QByteArray NSDataExtension::encodeCOBS(const QByteArray& data) {
    QByteArray result;
    result.reserve(data.size() + data.size() / 254 + 1);
    qsizetype codeAt = 0;
    unsigned code = 1;
    result.append('\1');
    const auto closeBlock = [&] {
        result[codeAt] = char(code);
        codeAt = result.size();
        code = 1;
        result.append('\1');
    };
    for (const char byte : data) {
        if (byte != 0) {
            result.append(byte);
            ++code;
        }
        if (byte == 0 || code == 255)
            closeBlock();
    }
    result[codeAt] = char(code);
    return result;
}

QByteArray NSDataExtension::decodeCOBS(const QByteArray& data) {
    QByteArray result("");
    for (qsizetype at = 0; at < data.size();) {
        const auto code = static_cast<unsigned char>(data[at++]);
        const qsizetype length = code > 0 ? code - 1 : 0;
        if (length > data.size() - at)
            return {};
        result.append(data.constData() + at, length);
        at += length;
        if (code < 255)
            result.append('\0');
    }
    return result;
}

std::uint32_t NSDataExtension::crc32(const QByteArray& data) {
    return std::uint32_t(
        ::crc32_z(0, reinterpret_cast<const Bytef*>(data.constData()), std::size_t(data.size())));
}

QByteArray NSDataExtension::md5Digest(const QByteArray& data) {
    return CommonDigest::MD5Sum(data);
}

QByteArray NSDataExtension::sha1Digest(const QByteArray& data) {
    return CommonDigest::SHA1Hash(data);
}

QString NSDataExtension::md5DigestString(const QByteArray& data) {
    return hexadecimal(md5Digest(data));
}

QString NSDataExtension::sha1DigestString(const QByteArray& data) {
    return hexadecimal(sha1Digest(data));
}

QString NSDataExtension::ripemd160DigestString(const QByteArray& data) {
    return hexadecimal(ripemd160Digest(data));
}
