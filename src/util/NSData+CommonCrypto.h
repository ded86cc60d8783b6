#pragma once

#include "util/Cryptor.h"

#include <QByteArray>
#include <QString>

// Digests, symmetric ciphers and keyed digests over byte arrays, each in one call. A null byte
// array stands for "no result"; an empty result is empty and not null.

namespace CommonCryptoErrorDomain {

inline constexpr char name[] = "CommonCryptoErrorDomain";

// A cipher status as text. The texts are translated; the reason is null where there is none.
struct Error {
    QString domain;
    int code = 0;
    QString localizedDescription;
    QString localizedFailureReason;
};

Error errorWithCCCryptorStatus(int status);

} // namespace CommonCryptoErrorDomain

namespace CommonDigest {

QByteArray MD2Sum(const QByteArray& data);
QByteArray MD4Sum(const QByteArray& data);
QByteArray MD5Sum(const QByteArray& data);
QByteArray SHA1Hash(const QByteArray& data);
QByteArray SHA224Hash(const QByteArray& data);
QByteArray SHA256Hash(const QByteArray& data);
QByteArray SHA384Hash(const QByteArray& data);
QByteArray SHA512Hash(const QByteArray& data);

} // namespace CommonDigest

// A key or a vector: bytes, or a text in UTF-8. Null means none.
class CipherBytes {
public:
    CipherBytes(const QByteArray& bytes) : iBytes(bytes) {}
    CipherBytes(const QString& text) : iBytes(text.isNull() ? QByteArray() : text.toUtf8()) {}
    CipherBytes(const char* text) : iBytes(text) {}
    CipherBytes(std::nullptr_t) {}

    const QByteArray& bytes() const { return iBytes; }
    bool isNull() const { return iBytes.isNull(); }

private:
    QByteArray iBytes;
};

// Cipher block chaining from a vector of zeros, with padding to whole blocks; RC4 keeps the length.
// On failure the result is null and *error (when given) says why. A null key throws
// PlatformException.
namespace CommonCryptor {

using Error = CommonCryptoErrorDomain::Error;
using Operation = Cryptor::Operation;

// What all of the following do.
QByteArray runPadded(Operation operation, const QByteArray& data, CCAlgorithm algorithm,
                     const CipherBytes& key, Error* error);

inline QByteArray RC4EncryptedDataUsingKey(const QByteArray& data, const CipherBytes& key,
                                           Error* error = nullptr) {
    return runPadded(Operation::encrypt, data, CCAlgorithmRC4, key, error);
}
inline QByteArray decryptedRC4DataUsingKey(const QByteArray& data, const CipherBytes& key,
                                           Error* error = nullptr) {
    return runPadded(Operation::decrypt, data, CCAlgorithmRC4, key, error);
}
// The length of the key decides between 128, 192 and 256 bits; see FixKeyLengths().
inline QByteArray AES256EncryptedDataUsingKey(const QByteArray& data, const CipherBytes& key,
                                              Error* error = nullptr) {
    return runPadded(Operation::encrypt, data, CCAlgorithmAES, key, error);
}
inline QByteArray decryptedAES256DataUsingKey(const QByteArray& data, const CipherBytes& key,
                                              Error* error = nullptr) {
    return runPadded(Operation::decrypt, data, CCAlgorithmAES, key, error);
}
inline QByteArray DESEncryptedDataUsingKey(const QByteArray& data, const CipherBytes& key,
                                           Error* error = nullptr) {
    return runPadded(Operation::encrypt, data, CCAlgorithmDES, key, error);
}
inline QByteArray decryptedDESDataUsingKey(const QByteArray& data, const CipherBytes& key,
                                           Error* error = nullptr) {
    return runPadded(Operation::decrypt, data, CCAlgorithmDES, key, error);
}
inline QByteArray CASTEncryptedDataUsingKey(const QByteArray& data, const CipherBytes& key,
                                            Error* error = nullptr) {
    return runPadded(Operation::encrypt, data, CCAlgorithmCAST, key, error);
}
inline QByteArray decryptedCASTDataUsingKey(const QByteArray& data, const CipherBytes& key,
                                            Error* error = nullptr) {
    return runPadded(Operation::decrypt, data, CCAlgorithmCAST, key, error);
}

} // namespace CommonCryptor

// The same with all options. options is a sum of CCOptions; without a vector the chain starts from
// zeros. error, when given, receives the status of a failure.
namespace LowLevelCommonCryptor {

// Pads a key with zero bytes, or truncates it, to a length that the algorithm supports, and gives a
// non-null vector the same length.
void FixKeyLengths(CCAlgorithm algorithm, QByteArray& key, QByteArray& vector);

QByteArray dataEncryptedUsingAlgorithm(const QByteArray& data, CCAlgorithm algorithm,
                                       const CipherBytes& key,
                                       const CipherBytes& initializationVector, int options,
                                       int* error = nullptr);
inline QByteArray dataEncryptedUsingAlgorithm(const QByteArray& data, CCAlgorithm algorithm,
                                              const CipherBytes& key, int options,
                                              int* error = nullptr) {
    return dataEncryptedUsingAlgorithm(data, algorithm, key, nullptr, options, error);
}
inline QByteArray dataEncryptedUsingAlgorithm(const QByteArray& data, CCAlgorithm algorithm,
                                              const CipherBytes& key, int* error = nullptr) {
    return dataEncryptedUsingAlgorithm(data, algorithm, key, nullptr, 0, error);
}

QByteArray decryptedDataUsingAlgorithm(const QByteArray& data, CCAlgorithm algorithm,
                                       const CipherBytes& key,
                                       const CipherBytes& initializationVector, int options,
                                       int* error = nullptr);
inline QByteArray decryptedDataUsingAlgorithm(const QByteArray& data, CCAlgorithm algorithm,
                                              const CipherBytes& key, int options,
                                              int* error = nullptr) {
    return decryptedDataUsingAlgorithm(data, algorithm, key, nullptr, options, error);
}
inline QByteArray decryptedDataUsingAlgorithm(const QByteArray& data, CCAlgorithm algorithm,
                                              const CipherBytes& key, int* error = nullptr) {
    return decryptedDataUsingAlgorithm(data, algorithm, key, nullptr, 0, error);
}

// Runs a new cryptor over all of the data. *result is set on failure only.
QByteArray _runCryptor(const QByteArray& data, Cryptor& cryptor, int* result = nullptr);

} // namespace LowLevelCommonCryptor

enum CCHmacAlgorithm : int {
    CCHmacAlgSHA1 = 0,
    CCHmacAlgMD5 = 1,
    CCHmacAlgSHA256 = 2,
    CCHmacAlgSHA384 = 3,
    CCHmacAlgSHA512 = 4,
    CCHmacAlgSHA224 = 5,
};

// 16 bytes for MD5 and 20 for every other algorithm: longer results are cut. No key is an empty
// key; an unknown algorithm counts as SHA-1.
namespace CommonHMAC {

QByteArray HMACWithAlgorithm(const QByteArray& data, CCHmacAlgorithm algorithm,
                             const CipherBytes& key = nullptr);

} // namespace CommonHMAC
