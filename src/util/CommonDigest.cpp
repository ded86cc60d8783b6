#include "util/NSData+CommonCrypto.h"

#include <nettle/hmac.h>
#include <nettle/md2.h>
#include <nettle/md4.h>
#include <nettle/md5.h>
#include <nettle/sha1.h>
#include <nettle/sha2.h>

namespace {

const std::uint8_t* bytes(const QByteArray& data) {
    return reinterpret_cast<const std::uint8_t*>(data.constData());
}

std::uint8_t* bytes(QByteArray& data) {
    return reinterpret_cast<std::uint8_t*>(data.data());
}

template <typename Context, typename Init, typename Update, typename Digest>
QByteArray digestOf(const QByteArray& data, qsizetype length, Init init, Update update,
                    Digest digest) {
    Context context;
    init(&context);
    update(&context, data.size(), bytes(data));
    QByteArray result(length, '\0');
    digest(&context, length, bytes(result));
    return result;
}

template <typename Context, typename SetKey, typename Update, typename Digest>
QByteArray hmacOf(const QByteArray& data, const QByteArray& key, qsizetype length, SetKey setKey,
                  Update update, Digest digest) {
    return digestOf<Context>(
        data, length, [&](Context* context) { setKey(context, key.size(), bytes(key)); }, update,
        digest);
}

} // namespace

QByteArray CommonDigest::MD2Sum(const QByteArray& data) {
    return digestOf<md2_ctx>(data, MD2_DIGEST_SIZE, md2_init, md2_update, md2_digest);
}

QByteArray CommonDigest::MD4Sum(const QByteArray& data) {
    return digestOf<md4_ctx>(data, MD4_DIGEST_SIZE, md4_init, md4_update, md4_digest);
}

QByteArray CommonDigest::MD5Sum(const QByteArray& data) {
    return digestOf<md5_ctx>(data, MD5_DIGEST_SIZE, md5_init, md5_update, md5_digest);
}

QByteArray CommonDigest::SHA1Hash(const QByteArray& data) {
    return digestOf<sha1_ctx>(data, SHA1_DIGEST_SIZE, sha1_init, sha1_update, sha1_digest);
}

QByteArray CommonDigest::SHA224Hash(const QByteArray& data) {
    return digestOf<sha224_ctx>(data, SHA224_DIGEST_SIZE, sha224_init, sha224_update,
                                sha224_digest);
}

QByteArray CommonDigest::SHA256Hash(const QByteArray& data) {
    return digestOf<sha256_ctx>(data, SHA256_DIGEST_SIZE, sha256_init, sha256_update,
                                sha256_digest);
}

QByteArray CommonDigest::SHA384Hash(const QByteArray& data) {
    return digestOf<sha384_ctx>(data, SHA384_DIGEST_SIZE, sha384_init, sha384_update,
                                sha384_digest);
}

QByteArray CommonDigest::SHA512Hash(const QByteArray& data) {
    return digestOf<sha512_ctx>(data, SHA512_DIGEST_SIZE, sha512_init, sha512_update,
                                sha512_digest);
}

QByteArray CommonHMAC::HMACWithAlgorithm(const QByteArray& data, CCHmacAlgorithm algorithm,
                                         const CipherBytes& key) {
    constexpr qsizetype length = SHA1_DIGEST_SIZE;
    switch (algorithm) {
    case CCHmacAlgMD5:
        return hmacOf<hmac_md5_ctx>(data, key.bytes(), MD5_DIGEST_SIZE, hmac_md5_set_key,
                                    hmac_md5_update, hmac_md5_digest);
    case CCHmacAlgSHA224:
        return hmacOf<hmac_sha224_ctx>(data, key.bytes(), length, hmac_sha224_set_key,
                                       hmac_sha224_update, hmac_sha224_digest);
    case CCHmacAlgSHA256:
        return hmacOf<hmac_sha256_ctx>(data, key.bytes(), length, hmac_sha256_set_key,
                                       hmac_sha256_update, hmac_sha256_digest);
    case CCHmacAlgSHA384:
        return hmacOf<hmac_sha384_ctx>(data, key.bytes(), length, hmac_sha384_set_key,
                                       hmac_sha384_update, hmac_sha384_digest);
    case CCHmacAlgSHA512:
        return hmacOf<hmac_sha512_ctx>(data, key.bytes(), length, hmac_sha512_set_key,
                                       hmac_sha512_update, hmac_sha512_digest);
    case CCHmacAlgSHA1:
        break;
    }
    return hmacOf<hmac_sha1_ctx>(data, key.bytes(), length, hmac_sha1_set_key, hmac_sha1_update,
                                 hmac_sha1_digest);
}
