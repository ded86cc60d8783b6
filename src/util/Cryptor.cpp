#include "util/Cryptor.h"

#include <algorithm>
#include <nettle/arcfour.h>
#include <nettle/cast128.h>
#include <nettle/cbc.h>
#include <nettle/des.h>
#include <nettle/nettle-meta.h>
#include <utility>

namespace {

const std::uint8_t* bytes(const QByteArray& data) {
    return reinterpret_cast<const std::uint8_t*>(data.constData());
}

std::uint8_t* bytes(QByteArray& data) {
    return reinterpret_cast<std::uint8_t*>(data.data());
}

// A cipher's own function as nettle's general type. RC4 changes its context.
template <class Context, auto function>
void transformWith(const void* context, std::size_t length, std::uint8_t* target,
                   const std::uint8_t* source) {
    function(static_cast<Context*>(const_cast<void*>(context)), length, target, source);
}

template <class Context, class SetKey>
QByteArray contextWith(SetKey setKey) {
    QByteArray context(sizeof(Context), '\0');
    setKey(reinterpret_cast<Context*>(context.data()));
    return context;
}

} // namespace

Cryptor::Cipher Cryptor::cipherFor(Operation operation, CCAlgorithm algorithm,
                                   const QByteArray& key) {
    const bool encrypts = operation == Operation::encrypt;
    const auto length = std::size_t(key.size());
    switch (algorithm) {
    case CCAlgorithmAES:
        for (const auto* aes : {&nettle_aes128, &nettle_aes192, &nettle_aes256}) {
            if (length != aes->key_size)
                continue;
            QByteArray context(aes->context_size, '\0');
            (encrypts ? aes->set_encrypt_key : aes->set_decrypt_key)(context.data(), bytes(key));
            return {aes->block_size, context, encrypts ? aes->encrypt : aes->decrypt};
        }
        break;
    case CCAlgorithmDES:
        if (length == DES_KEY_SIZE)
            return {DES_BLOCK_SIZE,
                    contextWith<des_ctx>([&](auto* des) { des_set_key(des, bytes(key)); }),
                    encrypts ? transformWith<des_ctx, des_encrypt>
                             : transformWith<des_ctx, des_decrypt>};
        break;
    case CCAlgorithm3DES:
        if (length == DES3_KEY_SIZE)
            return {DES3_BLOCK_SIZE,
                    contextWith<des3_ctx>([&](auto* des) { des3_set_key(des, bytes(key)); }),
                    encrypts ? transformWith<des3_ctx, des3_encrypt>
                             : transformWith<des3_ctx, des3_decrypt>};
        break;
    case CCAlgorithmCAST:
        if (length >= CAST5_MIN_KEY_SIZE && length <= CAST5_MAX_KEY_SIZE)
            return {CAST128_BLOCK_SIZE, contextWith<cast128_ctx>([&](auto* cast) {
                        cast5_set_key(cast, length, bytes(key));
                    }),
                    encrypts ? transformWith<cast128_ctx, cast128_encrypt>
                             : transformWith<cast128_ctx, cast128_decrypt>};
        break;
    case CCAlgorithmRC4:
        // The key schedule has 256 steps: bytes of a longer key beyond that have no effect.
        if (length > 0)
            return {1, contextWith<arcfour_ctx>([&](auto* rc4) {
                        arcfour_set_key(rc4, std::min<std::size_t>(length, ARCFOUR_MAX_KEY_SIZE),
                                        bytes(key));
                    }),
                    transformWith<arcfour_ctx, arcfour_crypt>};
        break;
    }
    return {};
}

std::optional<Cryptor> Cryptor::create(Operation operation, CCAlgorithm algorithm, int options,
                                       const QByteArray& key, const QByteArray& vector,
                                       int* status) {
    Cipher cipher = cipherFor(operation, algorithm, key);
    if (cipher.transform)
        return Cryptor(operation, options, std::move(cipher), vector);
    const bool known = algorithm >= CCAlgorithmAES && algorithm <= CCAlgorithmRC4;
    if (status)
        *status = known ? CCParamError : CCUnimplemented;
    return std::nullopt;
}

Cryptor::Cryptor(Operation operation, int options, Cipher cipher, const QByteArray& vector)
    : iOperation(operation),
      iOptions(options),
      iCipher(std::move(cipher)),
      iVector(vector.left(iCipher.blockSize).leftJustified(iCipher.blockSize, '\0')) {}

CCCryptorStatus Cryptor::run(const QByteArray& input, QByteArray& output) {
    const qsizetype size = iCipher.blockSize;
    const bool isPadded = size > 1 && (iOptions & CCOptionPKCS7Padding) != 0;
    QByteArray blocks = input;
    if (isPadded && iOperation == Operation::encrypt) {
        const qsizetype missing = size - blocks.size() % size;
        blocks += QByteArray(missing, static_cast<char>(missing));
    }
    if (blocks.size() % size != 0)
        return CCAlignmentError;
    transform(blocks);
    if (isPadded && iOperation == Operation::decrypt) {
        const int count = blocks.isEmpty() ? 0 : static_cast<unsigned char>(blocks.back());
        if (count < 1 || count > size || !blocks.endsWith(QByteArray(count, blocks.back())))
            return CCDecodeError;
        blocks.chop(count);
    }
    output += blocks;
    return CCSuccess;
}

void Cryptor::transform(QByteArray& blocks) {
    const auto size = std::size_t(iCipher.blockSize);
    const auto length = std::size_t(blocks.size());
    const void* context = iCipher.context.constData();
    std::uint8_t* data = bytes(blocks);
    if (size == 1 || (iOptions & CCOptionECBMode) != 0)
        iCipher.transform(context, length, data, data);
    else if (iOperation == Operation::encrypt)
        cbc_encrypt(context, iCipher.transform, size, bytes(iVector), length, data, data);
    else
        cbc_decrypt(context, iCipher.transform, size, bytes(iVector), length, data, data);
}
