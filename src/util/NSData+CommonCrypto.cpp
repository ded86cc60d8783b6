#include "util/NSData+CommonCrypto.h"

#include "base/PlatformException.h"

using Operation = Cryptor::Operation;

namespace {

QByteArray run(Operation operation, const QByteArray& data, CCAlgorithm algorithm,
               const CipherBytes& key, const CipherBytes& vector, int options, int* error) {
    if (key.isNull())
        throw PlatformException(ErrorKind::invalidParameter,
                                QStringLiteral("Invalid parameter not satisfying: key"));
    QByteArray keyBytes = key.bytes();
    QByteArray vectorBytes = vector.bytes();
    LowLevelCommonCryptor::FixKeyLengths(algorithm, keyBytes, vectorBytes);
    auto cryptor = Cryptor::create(operation, algorithm, options, keyBytes, vectorBytes, error);
    return cryptor ? LowLevelCommonCryptor::_runCryptor(data, *cryptor, error) : QByteArray();
}

} // namespace

QByteArray CommonCryptor::runPadded(Operation operation, const QByteArray& data,
                                    CCAlgorithm algorithm, const CipherBytes& key, Error* error) {
    int status = CCSuccess;
    const QByteArray result =
        run(operation, data, algorithm, key, nullptr, CCOptionPKCS7Padding, &status);
    if (result.isNull() && error)
        *error = CommonCryptoErrorDomain::errorWithCCCryptorStatus(status);
    return result;
}

void LowLevelCommonCryptor::FixKeyLengths(CCAlgorithm algorithm, QByteArray& key,
                                          QByteArray& vector) {
    qsizetype length = key.size();
    switch (algorithm) {
    case CCAlgorithmAES:
        // A key of exactly 16 bytes is extended to 24.
        length = length <= 15 ? 16 : length <= 23 ? 24 : 32;
        break;
    case CCAlgorithmDES:
        length = 8;
        break;
    case CCAlgorithm3DES:
        length = 24;
        break;
    case CCAlgorithmCAST:
        length = qBound(qsizetype(5), length, qsizetype(16));
        break;
    case CCAlgorithmRC4:
        length = qMin(length, qsizetype(512));
        break;
    }
    key.resize(length, '\0');
    if (!vector.isNull())
        vector.resize(length, '\0');
}

QByteArray LowLevelCommonCryptor::dataEncryptedUsingAlgorithm(
    const QByteArray& data, CCAlgorithm algorithm, const CipherBytes& key,
    const CipherBytes& initializationVector, int options, int* error) {
    return run(Operation::encrypt, data, algorithm, key, initializationVector, options, error);
}

QByteArray LowLevelCommonCryptor::decryptedDataUsingAlgorithm(
    const QByteArray& data, CCAlgorithm algorithm, const CipherBytes& key,
    const CipherBytes& initializationVector, int options, int* error) {
    return run(Operation::decrypt, data, algorithm, key, initializationVector, options, error);
}

QByteArray LowLevelCommonCryptor::_runCryptor(const QByteArray& data, Cryptor& cryptor,
                                              int* result) {
    QByteArray output("");
    const CCCryptorStatus status = cryptor.run(data, output);
    if (status == CCSuccess)
        return output;
    if (result)
        *result = status;
    return {};
}
