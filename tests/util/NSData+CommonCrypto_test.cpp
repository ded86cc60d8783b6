#include "util/NSData+CommonCrypto.h"

#include "base/PlatformException.h"

#include <gtest/gtest.h>
#include <map>

using namespace LowLevelCommonCryptor;

namespace {

QByteArray fromHex(const char* text) {
    return QByteArray::fromHex(text);
}

TEST(CommonCryptor, MatchesPublishedValuesOfOneBlockInBothDirections) {
    struct Case {
        CCAlgorithm algorithm;
        const char *key, *plain, *cipher;
    };
    for (const auto& [algorithm, key, plain, cipher] :
         {// Published keys that end in zeros are given without them where that leads to their size.
          Case{CCAlgorithmAES, "000000000000000000000000000000", "f34481ec3cc627bacd5dc3fb08f273e6",
               "0336763e966d92595a567cc9ce537f5e"},
          Case{CCAlgorithmAES, "80000000000000000000000000000000",
               "00000000000000000000000000000000", "de885dc87f5a92594082d02cc1e1b42c"},
          Case{CCAlgorithmAES, "000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f",
               "00112233445566778899aabbccddeeff", "8ea2b7ca516745bfeafc49904b496089"},
          Case{CCAlgorithmDES, "133457799bbcdff1", "0123456789abcdef", "85e813540f0ab405"},
          // A weak key.
          Case{CCAlgorithmDES, "0101010101010101", "8000000000000000", "95f8a5e5dd31d900"},
          Case{CCAlgorithm3DES, "0123456789abcdef23456789abcdef01456789abcdef0123",
               "5468652071756663", "a826fd8ce53b855f"},
          Case{CCAlgorithmCAST, "0123456712345678234567893456789a", "0123456789abcdef",
               "238b4fe5847e44b2"},
          Case{CCAlgorithmCAST, "01234567123456782345", "0123456789abcdef", "eb6a711a2c02271b"},
          Case{CCAlgorithmCAST, "0123456712", "0123456789abcdef", "7ac816d16e9b302e"},
          Case{CCAlgorithmRC4, "0102030405", "00000000000000000000000000000000",
               "b2396305f03dc027ccc3524a0a1118a8"},
          Case{CCAlgorithmRC4, "0102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f20",
               "00000000000000000000000000000000", "eaa6bd25880bf93d3f5d1e4ca2611d91"}}) {
        EXPECT_EQ(
            dataEncryptedUsingAlgorithm(fromHex(plain), algorithm, fromHex(key), CCOptionECBMode)
                .toHex(),
            cipher);
        EXPECT_EQ(
            decryptedDataUsingAlgorithm(fromHex(cipher), algorithm, fromHex(key), CCOptionECBMode)
                .toHex(),
            plain);
    }
}

TEST(CommonCryptor, ChainsBlocksFromTheVector) {
    const QByteArray key =
        fromHex("603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4");
    const QByteArray vector = fromHex("000102030405060708090a0b0c0d0e0f");
    const QByteArray plain =
        fromHex("6bc1bee22e409f96e93d7e117393172aae2d8a571e03ac9c9eb76fac45af8e51");
    const QByteArray cipher =
        fromHex("f58c4c04d6e5f1ba779eabfb5f7bfbd69cfc4e967edb808d679f777bc6702c7d");
    EXPECT_EQ(dataEncryptedUsingAlgorithm(plain, CCAlgorithmAES, key, vector, 0).toHex(),
              cipher.toHex());
    EXPECT_EQ(decryptedDataUsingAlgorithm(cipher, CCAlgorithmAES, key, vector, 0).toHex(),
              plain.toHex());
    EXPECT_EQ(dataEncryptedUsingAlgorithm(plain, CCAlgorithmAES, key),
              dataEncryptedUsingAlgorithm(plain, CCAlgorithmAES, key, QByteArray(16, '\0'), 0));
}

struct Pair {
    QByteArray (*encrypt)(const QByteArray&, const CipherBytes&, CommonCryptor::Error*);
    QByteArray (*decrypt)(const QByteArray&, const CipherBytes&, CommonCryptor::Error*);
    qsizetype block;
};

const Pair pairs[] = {
    {CommonCryptor::RC4EncryptedDataUsingKey, CommonCryptor::decryptedRC4DataUsingKey, 1},
    {CommonCryptor::AES256EncryptedDataUsingKey, CommonCryptor::decryptedAES256DataUsingKey, 16},
    {CommonCryptor::DESEncryptedDataUsingKey, CommonCryptor::decryptedDESDataUsingKey, 8},
    {CommonCryptor::CASTEncryptedDataUsingKey, CommonCryptor::decryptedCASTDataUsingKey, 8}};

TEST(CommonCryptor, RestoresInputOfAnyLengthAndRefusesNoKey) {
    const QString key = "zq4mk2pw7rxv1bn8ty";
    for (const auto& [encrypt, decrypt, block] : pairs) {
        EXPECT_THROW(encrypt("x", QString(), nullptr), PlatformException);
        EXPECT_THROW(decrypt("x", QByteArray(), nullptr), PlatformException);
        for (qsizetype length = 0; length < 50; ++length) {
            const QByteArray plain(length, 'x');
            const QByteArray cipher = encrypt(plain, key, nullptr);
            EXPECT_EQ(cipher.size(), block == 1 ? length : length - length % block + block);
            const QByteArray back = decrypt(cipher, key.toUtf8(), nullptr);
            EXPECT_EQ(back, plain);
            EXPECT_FALSE(back.isNull());
        }
    }
}

TEST(CommonCryptor, RefusesPaddingThatIsNotWhole) {
    for (const auto& [end, status] : {std::pair{"00", CCDecodeError},
                                      {"0102", CCDecodeError},
                                      {"030203", CCDecodeError},
                                      {"11", CCDecodeError},
                                      {"01", CCSuccess},
                                      {"030303", CCSuccess}}) {
        const QByteArray block = QByteArray(16, 'p') + fromHex(end);
        CommonCryptor::Error error;
        CommonCryptor::decryptedAES256DataUsingKey(
            dataEncryptedUsingAlgorithm(block.right(16), CCAlgorithmAES, "k"), "k", &error);
        EXPECT_EQ(error.code, status) << end;
    }
}

TEST(CommonCryptor, ReportsWhyItFailed) {
    using namespace CommonCryptor;
    Error error;
    EXPECT_TRUE(decryptedAES256DataUsingKey("fifteen bytes..", "k", &error).isNull());
    EXPECT_EQ(error.code, CCAlignmentError);
    EXPECT_TRUE(decryptedDESDataUsingKey("", "k", &error).isNull());
    EXPECT_EQ(error.code, CCDecodeError);
    EXPECT_EQ(error.localizedDescription, "Decode Error");
    EXPECT_EQ(error.localizedFailureReason, "Input data did not decode or decrypt correctly");
    EXPECT_TRUE(RC4EncryptedDataUsingKey("x", QByteArray(""), &error).isNull());
    EXPECT_EQ(error.code, CCParamError);
    EXPECT_TRUE(RC4EncryptedDataUsingKey("x", QByteArray(""), nullptr).isNull());

    int status = 0;
    EXPECT_TRUE(dataEncryptedUsingAlgorithm("odd", CCAlgorithmDES, "k", &status).isNull());
    EXPECT_EQ(status, CCAlignmentError);
    const auto unknown = static_cast<CCAlgorithm>(5);
    EXPECT_TRUE(dataEncryptedUsingAlgorithm("x", unknown, "k", &status).isNull());
    EXPECT_EQ(status, CCUnimplemented);
}

TEST(FixKeyLengths, BringsEveryKeyToALengthOfItsAlgorithm) {
    const std::pair<CCAlgorithm, std::map<int, int>> fixedLengths[] = {
        {CCAlgorithmAES, {{0, 16}, {15, 16}, {16, 24}, {23, 24}, {24, 32}, {40, 32}}},
        {CCAlgorithmDES, {{1, 8}, {9, 8}}},
        {CCAlgorithm3DES, {{8, 24}, {30, 24}}},
        {CCAlgorithmCAST, {{3, 5}, {5, 5}, {16, 16}, {17, 16}}},
        {CCAlgorithmRC4, {{0, 0}, {18, 18}, {512, 512}, {513, 512}}},
        {static_cast<CCAlgorithm>(6), {{99, 99}}}};
    for (const auto& [algorithm, lengths] : fixedLengths) {
        for (const auto& [length, fixed] : lengths) {
            QByteArray key(length, 'k');
            QByteArray vector(3, 'v');
            FixKeyLengths(algorithm, key, vector);
            EXPECT_EQ(key, QByteArray(length, 'k').leftJustified(fixed, '\0', true)) << algorithm;
            EXPECT_EQ(vector.size(), fixed);
            QByteArray none;
            FixKeyLengths(algorithm, key, none);
            EXPECT_TRUE(none.isNull());
        }
    }
}

} // namespace
