#pragma once

#include <QByteArray>
#include <cstdint>
#include <functional>
#include <memory>

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

// A symmetric cipher in one direction, over data that may come in pieces.
class Cryptor {
public:
    enum class Operation { encrypt, decrypt };

    // options is a sum of CCOptions; ignored by RC4. One block of vector is used, padded with
    // zeros; null means all zeros. Returns null and sets *status for a key length that the
    // algorithm does not support (CCParamError) and for algorithms other than those above
    // (CCUnimplemented).
    static std::unique_ptr<Cryptor> create(Operation operation, CCAlgorithm algorithm, int options,
                                           const QByteArray& key, const QByteArray& vector,
                                           int* status);

    // Appends the output available so far.
    CCCryptorStatus update(const QByteArray& input, QByteArray& output);
    // Appends the remaining output. CCAlignmentError for an incomplete block, CCDecodeError for bad
    // padding.
    CCCryptorStatus final(QByteArray& output);

private:
    using Transform =
        std::function<void(std::size_t length, std::uint8_t* target, const std::uint8_t* source)>;

    // The cipher for whole blocks, without chaining; blockSize is 1 for a stream cipher.
    struct Cipher {
        qsizetype blockSize = 0;
        Transform transform;
    };

    Cryptor(Operation operation, int options, Cipher cipher, const QByteArray& vector);

    static Cipher cipherFor(Operation operation, CCAlgorithm algorithm, const QByteArray& key);
    bool pads() const;
    void appendTransformed(const QByteArray& blocks, QByteArray& output);
    void chain(QByteArray& blocks);

    Operation iOperation;
    int iOptions;
    Cipher iCipher;
    QByteArray iPreviousBlock;
    QByteArray iPending;
};
