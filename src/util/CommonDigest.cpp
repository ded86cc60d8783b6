#include "util/NSData+CocoaDevUsersAdditions.h"
#include "util/NSData+CommonCrypto.h"

#include <QMessageAuthenticationCode>
#include <array>
#include <nettle/nettle-meta.h>

namespace {

QByteArray digestOf(const QByteArray& data, const nettle_hash& algorithm) {
    QByteArray context(algorithm.context_size, '\0');
    QByteArray result(algorithm.digest_size, '\0');
    algorithm.init(context.data());
    algorithm.update(context.data(), std::size_t(data.size()),
                     reinterpret_cast<const std::uint8_t*>(data.constData()));
    algorithm.digest(context.data(), std::size_t(result.size()),
                     reinterpret_cast<std::uint8_t*>(result.data()));
    return result;
}

} // namespace

QByteArray CommonDigest::MD2Sum(const QByteArray& data) {
    return digestOf(data, nettle_md2);
}

QByteArray CommonDigest::MD4Sum(const QByteArray& data) {
    return digestOf(data, nettle_md4);
}

QByteArray CommonDigest::MD5Sum(const QByteArray& data) {
    return digestOf(data, nettle_md5);
}

QByteArray CommonDigest::SHA1Hash(const QByteArray& data) {
    return digestOf(data, nettle_sha1);
}

QByteArray CommonDigest::SHA224Hash(const QByteArray& data) {
    return digestOf(data, nettle_sha224);
}

QByteArray CommonDigest::SHA256Hash(const QByteArray& data) {
    return digestOf(data, nettle_sha256);
}

QByteArray CommonDigest::SHA384Hash(const QByteArray& data) {
    return digestOf(data, nettle_sha384);
}

QByteArray CommonDigest::SHA512Hash(const QByteArray& data) {
    return digestOf(data, nettle_sha512);
}

QByteArray NSDataExtension::ripemd160Digest(const QByteArray& data) {
    return digestOf(data, nettle_ripemd160);
}

QByteArray CommonHMAC::HMACWithAlgorithm(const QByteArray& data, CCHmacAlgorithm algorithm,
                                         const CipherBytes& key) {
    constexpr qsizetype longest = 20;
    constexpr std::array algorithms{// In enum order.
                                    QCryptographicHash::Sha1,   QCryptographicHash::Md5,
                                    QCryptographicHash::Sha256, QCryptographicHash::Sha384,
                                    QCryptographicHash::Sha512, QCryptographicHash::Sha224};
    const auto index = std::size_t(algorithm);
    return QMessageAuthenticationCode::hash(data, key.bytes(),
                                            algorithms[index < algorithms.size() ? index : 0])
        .left(longest);
}
