#include "util/Cryptor.h"

#include <algorithm>
#include <nettle/aes.h>
#include <nettle/arcfour.h>
#include <nettle/cast128.h>
#include <nettle/des.h>
#include <utility>

namespace {

const std::uint8_t* bytes(const QByteArray& data) {
    return reinterpret_cast<const std::uint8_t*>(data.constData());
}

std::uint8_t* bytes(QByteArray& data) {
    return reinterpret_cast<std::uint8_t*>(data.data());
}

// The direction is part of the key schedule for some ciphers, of the block function for others.
template <typename Context, typename SetKey, typename Crypt>
auto transformWith(SetKey setKey, Crypt crypt) {
    Context context;
    setKey(&context);
    return [context, crypt](std::size_t length, std::uint8_t* target,
                            const std::uint8_t* source) mutable {
        crypt(&context, length, target, source);
    };
}

} // namespace

Cryptor::Cipher Cryptor::cipherFor(Operation operation, CCAlgorithm algorithm,
                                   const QByteArray& key) {
    const bool encrypts = operation == Operation::encrypt;
    const auto keyed = [&key](auto setKey) {
        return [setKey, &key](auto* context) { setKey(context, bytes(key)); };
    };
    const auto keyedByLength = [&key](auto setKey, qsizetype longest) {
        return [setKey, longest, &key](auto* context) {
            setKey(context, std::min(key.size(), longest), bytes(key));
        };
    };
    switch (algorithm) {
    case CCAlgorithmAES:
        if (key.size() == AES128_KEY_SIZE)
            return {AES_BLOCK_SIZE,
                    transformWith<aes128_ctx>(
                        keyed(encrypts ? aes128_set_encrypt_key : aes128_set_decrypt_key),
                        encrypts ? aes128_encrypt : aes128_decrypt)};
        if (key.size() == AES192_KEY_SIZE)
            return {AES_BLOCK_SIZE,
                    transformWith<aes192_ctx>(
                        keyed(encrypts ? aes192_set_encrypt_key : aes192_set_decrypt_key),
                        encrypts ? aes192_encrypt : aes192_decrypt)};
        if (key.size() == AES256_KEY_SIZE)
            return {AES_BLOCK_SIZE,
                    transformWith<aes256_ctx>(
                        keyed(encrypts ? aes256_set_encrypt_key : aes256_set_decrypt_key),
                        encrypts ? aes256_encrypt : aes256_decrypt)};
        break;
    case CCAlgorithmDES:
        if (key.size() == DES_KEY_SIZE)
            return {DES_BLOCK_SIZE, transformWith<des_ctx>(keyed(des_set_key),
                                                           encrypts ? des_encrypt : des_decrypt)};
        break;
    case CCAlgorithm3DES:
        if (key.size() == DES3_KEY_SIZE)
            return {DES3_BLOCK_SIZE,
                    transformWith<des3_ctx>(keyed(des3_set_key),
                                            encrypts ? des3_encrypt : des3_decrypt)};
        break;
    case CCAlgorithmCAST:
        if (key.size() >= CAST5_MIN_KEY_SIZE && key.size() <= CAST5_MAX_KEY_SIZE)
            return {CAST128_BLOCK_SIZE,
                    transformWith<cast128_ctx>(keyedByLength(cast5_set_key, CAST5_MAX_KEY_SIZE),
                                               encrypts ? cast128_encrypt : cast128_decrypt)};
        break;
    case CCAlgorithmRC4:
        // The key schedule has 256 steps: bytes of a longer key beyond that have no effect.
        if (!key.isEmpty())
            return {1, transformWith<arcfour_ctx>(
                           keyedByLength(arcfour_set_key, ARCFOUR_MAX_KEY_SIZE), arcfour_crypt)};
        break;
    }
    return {};
}

std::unique_ptr<Cryptor> Cryptor::create(Operation operation, CCAlgorithm algorithm, int options,
                                         const QByteArray& key, const QByteArray& vector,
                                         int* status) {
    Cipher cipher = cipherFor(operation, algorithm, key);
    if (cipher.transform)
        return std::unique_ptr<Cryptor>(new Cryptor(operation, options, std::move(cipher), vector));
    const bool known = algorithm >= CCAlgorithmAES && algorithm <= CCAlgorithmRC4;
    if (status)
        *status = known ? CCParamError : CCUnimplemented;
    return nullptr;
}

Cryptor::Cryptor(Operation operation, int options, Cipher cipher, const QByteArray& vector)
    : iOperation(operation),
      iOptions(options),
      iCipher(std::move(cipher)),
      iPreviousBlock(vector.left(iCipher.blockSize).leftJustified(iCipher.blockSize, '\0')) {}

bool Cryptor::pads() const {
    return iCipher.blockSize > 1 && (iOptions & CCOptionPKCS7Padding) != 0;
}

CCCryptorStatus Cryptor::update(const QByteArray& input, QByteArray& output) {
    iPending += input;
    qsizetype ready = iPending.size() - iPending.size() % iCipher.blockSize;
    // The last block contains the padding and is kept for final().
    if (pads() && iOperation == Operation::decrypt && ready == iPending.size() && ready > 0)
        ready -= iCipher.blockSize;
    appendTransformed(iPending.left(ready), output);
    iPending.remove(0, ready);
    return CCSuccess;
}

CCCryptorStatus Cryptor::final(QByteArray& output) {
    if (pads() && iOperation == Operation::encrypt) {
        const qsizetype missing = iCipher.blockSize - iPending.size();
        appendTransformed(iPending + QByteArray(missing, static_cast<char>(missing)), output);
        return CCSuccess;
    }
    if (iPending.size() % iCipher.blockSize != 0)
        return CCAlignmentError;
    if (!pads())
        return CCSuccess;

    QByteArray last;
    appendTransformed(iPending, last);
    const int count = last.isEmpty() ? 0 : static_cast<unsigned char>(last.back());
    if (count < 1 || count > iCipher.blockSize || !last.endsWith(QByteArray(count, last.back())))
        return CCDecodeError;
    output += last.chopped(count);
    return CCSuccess;
}

void Cryptor::appendTransformed(const QByteArray& blocks, QByteArray& output) {
    QByteArray result = blocks;
    if (iCipher.blockSize > 1 && (iOptions & CCOptionECBMode) == 0)
        chain(result);
    else
        iCipher.transform(result.size(), bytes(result), bytes(blocks));
    output += result;
}

void Cryptor::chain(QByteArray& blocks) {
    const auto size = static_cast<std::size_t>(iCipher.blockSize);
    std::uint8_t* previous = bytes(iPreviousBlock);
    const auto mix = [&](std::uint8_t* block) {
        for (std::size_t i = 0; i < size; ++i)
            block[i] ^= previous[i];
    };
    std::uint8_t* const begin = bytes(blocks);
    for (std::uint8_t* block = begin; block != begin + blocks.size(); block += size) {
        if (iOperation == Operation::encrypt) {
            mix(block);
            iCipher.transform(size, block, block);
            std::copy_n(block, size, previous);
        } else {
            const QByteArray cipherText(reinterpret_cast<const char*>(block), iCipher.blockSize);
            iCipher.transform(size, block, block);
            mix(block);
            std::copy_n(bytes(cipherText), size, previous);
        }
    }
}
