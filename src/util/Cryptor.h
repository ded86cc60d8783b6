#pragma once

#include <QByteArray>
#include <nettle/nettle-types.h>
#include <optional>

enum CCAlgorithm : int {
    CCAlgorithmAES = 0,
    CCAlgorithmDES = 1,
    CCAlgorithm3DES = 2,
    CCAlgorithmCAST = 3,
    CCAlgorithmRC4 = 4,
};

enum CCOptions : int {
    CCOptionPKCS7Padding = 1,
    CCOptionECBMode = 2,
};

enum CCCryptorStatus : int {
    CCSuccess = 0,
    CCParamError = -4300,
    CCBufferTooSmall = -4301,
    CCMemoryFailure = -4302,
    CCAlignmentError = -4303,
    CCDecodeError = -4304,
    CCUnimplemented = -4305,
};

// A symmetric cipher in one direction, with its key.
class Cryptor {
public:
    enum class Operation { encrypt, decrypt };

    // options is a sum of CCOptions; ignored by RC4. One block of vector is used, padded with
    // zeros; null means all zeros. Returns none and sets *status for a key length that the
    // algorithm does not support (CCParamError) and for algorithms other than those above
    // (CCUnimplemented).
    static std::optional<Cryptor> create(Operation operation, CCAlgorithm algorithm, int options,
                                         const QByteArray& key, const QByteArray& vector,
                                         int* status);

    // Appends the output for all of the input; to be called once. CCAlignmentError for an
    // incomplete block, CCDecodeError for bad padding.
    CCCryptorStatus run(const QByteArray& input, QByteArray& output);

private:
    struct Cipher {
        qsizetype blockSize = 0;                 // 1 for a stream cipher
        QByteArray context;                      // nettle's, with the key
        nettle_cipher_func* transform = nullptr; // whole blocks, without chaining
    };

    Cryptor(Operation operation, int options, Cipher cipher, const QByteArray& vector);

    static Cipher cipherFor(Operation operation, CCAlgorithm algorithm, const QByteArray& key);
    void transform(QByteArray& blocks);

    Operation iOperation;
    int iOptions;
    Cipher iCipher;
    QByteArray iVector;
};
