#include "util/NSData+CommonCrypto.h"

#include "platform/PlatformException.h"

#include <gtest/gtest.h>

namespace {

QByteArray hex(const char* text) {
    return QByteArray::fromHex(text);
}

// Published vectors of one block or one key stream, without padding and without chaining.
struct CipherCase {
    const char* name;
    CCAlgorithm algorithm;
    const char* key;
    const char* plain;
    const char* cipher;
};

class PublishedCipher : public testing::TestWithParam<CipherCase> {};

TEST_P(PublishedCipher, IsMatchedInBothDirections) {
    using namespace LowLevelCommonCryptor;
    const CipherCase& vector = GetParam();
    const QByteArray plain = hex(vector.plain);
    const QByteArray cipher = hex(vector.cipher);
    EXPECT_EQ(dataEncryptedUsingAlgorithm(plain, vector.algorithm, hex(vector.key), CCOptionECBMode)
                  .toHex(),
              cipher.toHex());
    EXPECT_EQ(
        decryptedDataUsingAlgorithm(cipher, vector.algorithm, hex(vector.key), CCOptionECBMode)
            .toHex(),
        plain.toHex());
}

INSTANTIATE_TEST_SUITE_P(
    All, PublishedCipher,
    testing::Values(
        // Published keys that end in zeros are given without them where that leads to their size.
        CipherCase{"Aes128", CCAlgorithmAES, "000000000000000000000000000000",
                   "f34481ec3cc627bacd5dc3fb08f273e6", "0336763e966d92595a567cc9ce537f5e"},
        CipherCase{"Aes192OfSixteenBytes", CCAlgorithmAES, "80000000000000000000000000000000",
                   "00000000000000000000000000000000", "de885dc87f5a92594082d02cc1e1b42c"},
        CipherCase{"Aes256", CCAlgorithmAES,
                   "000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f",
                   "00112233445566778899aabbccddeeff", "8ea2b7ca516745bfeafc49904b496089"},
        CipherCase{"Des", CCAlgorithmDES, "133457799bbcdff1", "0123456789abcdef",
                   "85e813540f0ab405"},
        CipherCase{"DesWeakKey", CCAlgorithmDES, "0101010101010101", "8000000000000000",
                   "95f8a5e5dd31d900"},
        CipherCase{"TripleDes", CCAlgorithm3DES, "0123456789abcdef23456789abcdef01456789abcdef0123",
                   "5468652071756663", "a826fd8ce53b855f"},
        CipherCase{"CastOf128Bits", CCAlgorithmCAST, "0123456712345678234567893456789a",
                   "0123456789abcdef", "238b4fe5847e44b2"},
        CipherCase{"CastOf80Bits", CCAlgorithmCAST, "01234567123456782345", "0123456789abcdef",
                   "eb6a711a2c02271b"},
        CipherCase{"CastOf40Bits", CCAlgorithmCAST, "0123456712", "0123456789abcdef",
                   "7ac816d16e9b302e"},
        CipherCase{"Rc4Of40Bits", CCAlgorithmRC4, "0102030405", "00000000000000000000000000000000",
                   "b2396305f03dc027ccc3524a0a1118a8"},
        CipherCase{"Rc4Of256Bits", CCAlgorithmRC4,
                   "0102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f20",
                   "00000000000000000000000000000000", "eaa6bd25880bf93d3f5d1e4ca2611d91"}),
    [](const auto& entry) { return std::string(entry.param.name); });

TEST(CommonCryptor, ChainsBlocksFromTheVector) {
    using namespace LowLevelCommonCryptor;
    const QByteArray key = hex("603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4");
    const QByteArray vector = hex("000102030405060708090a0b0c0d0e0f");
    const QByteArray plain =
        hex("6bc1bee22e409f96e93d7e117393172aae2d8a571e03ac9c9eb76fac45af8e51");
    const QByteArray cipher =
        hex("f58c4c04d6e5f1ba779eabfb5f7bfbd69cfc4e967edb808d679f777bc6702c7d");
    EXPECT_EQ(dataEncryptedUsingAlgorithm(plain, CCAlgorithmAES, key, vector, 0).toHex(),
              cipher.toHex());
    EXPECT_EQ(decryptedDataUsingAlgorithm(cipher, CCAlgorithmAES, key, vector, 0).toHex(),
              plain.toHex());
}

TEST(CommonCryptor, StartsTheChainFromZerosWithoutAVector) {
    using namespace LowLevelCommonCryptor;
    const QByteArray plain(32, 'p');
    const QByteArray key(24, 'k');
    EXPECT_EQ(dataEncryptedUsingAlgorithm(plain, CCAlgorithmAES, key),
              dataEncryptedUsingAlgorithm(plain, CCAlgorithmAES, key, QByteArray(16, '\0'), 0));
    EXPECT_NE(dataEncryptedUsingAlgorithm(plain, CCAlgorithmAES, key),
              dataEncryptedUsingAlgorithm(plain, CCAlgorithmAES, key, CCOptionECBMode));
}

using Operation = QByteArray (*)(const QByteArray&, const CipherBytes&, CommonCryptor::Error*);

struct Pair {
    const char* name;
    Operation encrypt;
    Operation decrypt;
    qsizetype block;
};

class CipherPair : public testing::TestWithParam<Pair> {};

TEST_P(CipherPair, RestoresInputOfAnyLength) {
    const Pair& pair = GetParam();
    const QString key = QStringLiteral("zq4mk2pw7rxv1bn8ty");
    for (qsizetype length = 0; length < 50; ++length) {
        const QByteArray plain(length, 'x');
        const QByteArray cipher = pair.encrypt(plain, key, nullptr);
        const QByteArray back = pair.decrypt(cipher, key.toUtf8(), nullptr);
        EXPECT_EQ(cipher.size(),
                  pair.block == 1 ? length : length - length % pair.block + pair.block);
        EXPECT_EQ(back, plain);
        EXPECT_FALSE(back.isNull());
    }
}

TEST_P(CipherPair, RefusesNoKey) {
    EXPECT_THROW(GetParam().encrypt("x", QString(), nullptr), PlatformException);
    EXPECT_THROW(GetParam().decrypt("x", QByteArray(), nullptr), PlatformException);
}

INSTANTIATE_TEST_SUITE_P(All, CipherPair,
                         testing::Values(Pair{"Rc4", CommonCryptor::RC4EncryptedDataUsingKey,
                                              CommonCryptor::decryptedRC4DataUsingKey, 1},
                                         Pair{"Aes", CommonCryptor::AES256EncryptedDataUsingKey,
                                              CommonCryptor::decryptedAES256DataUsingKey, 16},
                                         Pair{"Des", CommonCryptor::DESEncryptedDataUsingKey,
                                              CommonCryptor::decryptedDESDataUsingKey, 8},
                                         Pair{"Cast", CommonCryptor::CASTEncryptedDataUsingKey,
                                              CommonCryptor::decryptedCASTDataUsingKey, 8}),
                         [](const auto& entry) { return std::string(entry.param.name); });

TEST(CommonCryptor, ReportsWhyItFailed) {
    CommonCryptor::Error error;
    EXPECT_TRUE(
        CommonCryptor::decryptedAES256DataUsingKey("fifteen bytes..", "k", &error).isNull());
    EXPECT_EQ(error.code, CCAlignmentError);
    EXPECT_TRUE(
        CommonCryptor::decryptedAES256DataUsingKey("sixteen bytes...", "k", &error).isNull());
    EXPECT_EQ(error.code, CCDecodeError);
    EXPECT_EQ(error.localizedDescription, QStringLiteral("Decode Error"));
    EXPECT_TRUE(CommonCryptor::decryptedDESDataUsingKey("", "k", &error).isNull());
    EXPECT_EQ(error.code, CCDecodeError);
    EXPECT_TRUE(CommonCryptor::RC4EncryptedDataUsingKey("x", QByteArray(""), &error).isNull());
    EXPECT_EQ(error.code, CCParamError);
    EXPECT_TRUE(CommonCryptor::RC4EncryptedDataUsingKey("x", QByteArray(""), nullptr).isNull());

    int status = 0;
    EXPECT_TRUE(
        LowLevelCommonCryptor::dataEncryptedUsingAlgorithm("odd", CCAlgorithmDES, "k", &status)
            .isNull());
    EXPECT_EQ(status, CCAlignmentError);
    EXPECT_TRUE(LowLevelCommonCryptor::dataEncryptedUsingAlgorithm("x", static_cast<CCAlgorithm>(5),
                                                                   "k", &status)
                    .isNull());
    EXPECT_EQ(status, CCUnimplemented);
}

TEST(CommonCryptor, TakesDataInPieces) {
    const QByteArray plain(100, 'p');
    int status = 0;
    auto encrypt = Cryptor::create(Cryptor::Operation::encrypt, CCAlgorithmDES,
                                   CCOptionPKCS7Padding, "8 bytes.", QByteArray(), &status);
    ASSERT_TRUE(encrypt);
    QByteArray pieces;
    for (const char byte : plain)
        ASSERT_EQ(encrypt->update(QByteArray(1, byte), pieces), CCSuccess);
    ASSERT_EQ(encrypt->final(pieces), CCSuccess);
    EXPECT_EQ(pieces, CommonCryptor::DESEncryptedDataUsingKey(plain, QByteArray("8 bytes.")));
}

struct KeyCase {
    CCAlgorithm algorithm;
    int length;
    int fixed;
};

TEST(FixKeyLengths, BringsEveryKeyToALengthOfItsAlgorithm) {
    const KeyCase cases[] = {
        {CCAlgorithmAES, 0, 16},
        {CCAlgorithmAES, 15, 16},
        {CCAlgorithmAES, 16, 24},
        {CCAlgorithmAES, 23, 24},
        {CCAlgorithmAES, 24, 32},
        {CCAlgorithmAES, 40, 32},
        {CCAlgorithmDES, 1, 8},
        {CCAlgorithmDES, 9, 8},
        {CCAlgorithm3DES, 8, 24},
        {CCAlgorithm3DES, 30, 24},
        {CCAlgorithmCAST, 3, 5},
        {CCAlgorithmCAST, 5, 5},
        {CCAlgorithmCAST, 16, 16},
        {CCAlgorithmCAST, 17, 16},
        {CCAlgorithmRC4, 18, 18},
        {CCAlgorithmRC4, 512, 512},
        {CCAlgorithmRC4, 513, 512},
        {CCAlgorithmRC4, 0, 0},
        {static_cast<CCAlgorithm>(6), 99, 99},
    };
    for (const KeyCase& entry : cases) {
        SCOPED_TRACE(testing::Message() << entry.algorithm << " with " << entry.length);
        QByteArray key(entry.length, 'k');
        QByteArray vector(3, 'v');
        LowLevelCommonCryptor::FixKeyLengths(entry.algorithm, key, vector);
        const int kept = std::min(entry.length, entry.fixed);
        EXPECT_EQ(key, QByteArray(kept, 'k') + QByteArray(entry.fixed - kept, '\0'));
        EXPECT_EQ(vector.size(), entry.fixed);

        QByteArray none;
        LowLevelCommonCryptor::FixKeyLengths(entry.algorithm, key, none);
        EXPECT_TRUE(none.isNull());
    }
}

TEST(FixKeyLengths, LetsAVectorBeShorterThanABlock) {
    // Five bytes of key leave five of the vector; the other three of the block are zero.
    using namespace LowLevelCommonCryptor;
    const QByteArray plain(8, 'p');
    EXPECT_EQ(dataEncryptedUsingAlgorithm(plain, CCAlgorithmCAST, "12345", "vvvvvvvv", 0),
              dataEncryptedUsingAlgorithm(plain, CCAlgorithmCAST, "12345",
                                          QByteArray("vvvvv\0\0\0", 8), 0));
}

TEST(FixKeyLengths, LetsLongRc4KeysDifferOnlyInTheirFirst256Bytes) {
    const QByteArray key(256, 'k');
    EXPECT_EQ(CommonCryptor::RC4EncryptedDataUsingKey("text", key + "a"),
              CommonCryptor::RC4EncryptedDataUsingKey("text", key + "b"));
}

TEST(CommonCryptoErrorDomain, PutsAStatusInWords) {
    struct Row {
        int status;
        const char* description;
        const char* reason;
    };
    const Row rows[] = {
        {0, "Success", nullptr},
        {-4300, "Parameter Error", "Illegal parameter supplied to encryption/decryption algorithm"},
        {-4301, "Buffer Too Small", "Insufficient buffer provided for specified operation"},
        {-4302, "Memory Failure", "Failed to allocate memory"},
        {-4303, "Alignment Error", "Input size to encryption algorithm was not aligned correctly"},
        {-4304, "Decode Error", "Input data did not decode or decrypt correctly"},
        {-4305, "Unimplemented Function", "Function not implemented for the current algorithm"},
        {-1, "Unknown Error", nullptr},
    };
    for (const Row& row : rows) {
        const auto error = CommonCryptoErrorDomain::errorWithCCCryptorStatus(row.status);
        EXPECT_EQ(error.domain, QStringLiteral("CommonCryptoErrorDomain"));
        EXPECT_EQ(error.code, row.status);
        EXPECT_EQ(error.localizedDescription, QString::fromLatin1(row.description));
        EXPECT_EQ(error.localizedFailureReason, QString::fromLatin1(row.reason));
        EXPECT_EQ(error.localizedFailureReason.isNull(), row.reason == nullptr);
    }
}

} // namespace
