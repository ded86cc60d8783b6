#include "util/NSData+CommonCrypto.h"

#include <gtest/gtest.h>

namespace {

struct DigestCase {
    const char* name;
    QByteArray (*digest)(const QByteArray&);
    const char* ofNothing;
    const char* ofAbc;
};

class Digest : public testing::TestWithParam<DigestCase> {};

TEST_P(Digest, MatchesThePublishedValues) {
    EXPECT_EQ(GetParam().digest("").toHex(), GetParam().ofNothing);
    EXPECT_EQ(GetParam().digest(QByteArray()).toHex(), GetParam().ofNothing);
    EXPECT_EQ(GetParam().digest("abc").toHex(), GetParam().ofAbc);
}

INSTANTIATE_TEST_SUITE_P(
    All, Digest,
    testing::Values(DigestCase{"MD2", CommonDigest::MD2Sum, "8350e5a3e24c153df2275c9f80692773",
                               "da853b0d3f88d99b30283a69e6ded6bb"},
                    DigestCase{"MD4", CommonDigest::MD4Sum, "31d6cfe0d16ae931b73c59d7e0c089c0",
                               "a448017aaf21d8525fc10ae87aa6729d"},
                    DigestCase{"MD5", CommonDigest::MD5Sum, "d41d8cd98f00b204e9800998ecf8427e",
                               "900150983cd24fb0d6963f7d28e17f72"},
                    DigestCase{"SHA1", CommonDigest::SHA1Hash,
                               "da39a3ee5e6b4b0d3255bfef95601890afd80709",
                               "a9993e364706816aba3e25717850c26c9cd0d89d"},
                    DigestCase{"SHA224", CommonDigest::SHA224Hash,
                               "d14a028c2a3a2bc9476102bb288234c415a2b01f828ea62ac5b3e42f",
                               "23097d223405d8228642a477bda255b32aadbce4bda0b3f7e36c9da7"},
                    DigestCase{"SHA256", CommonDigest::SHA256Hash,
                               "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855",
                               "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
                    DigestCase{"SHA384", CommonDigest::SHA384Hash,
                               "38b060a751ac96384cd9327eb1b1e36a21fdb71114be07434c0cc7bf63f6e1da"
                               "274edebfe76f65fbd51ad2f14898b95b",
                               "cb00753f45a35e8bb5a03d699ac65007272c32ab0eded1631a8b605a43ff5bed"
                               "8086072ba1e7cc2358baeca134c825a7"},
                    DigestCase{"SHA512", CommonDigest::SHA512Hash,
                               "cf83e1357eefb8bdf1542850d66d8007d620e4050b5715dc83f4a921d36ce9ce"
                               "47d0d13c5d85f2b0ff8318d2877eec2f63b931bd47417a81a538327af927da3e",
                               "ddaf35a193617abacc417349ae20413112e6fa4e89a97ea20a9eeee64b55d39a"
                               "2192992a274fc1a836ba3c23a3feebbd454d4423643ce80e2a9ac94fa54ca49f"}),
    [](const auto& entry) { return std::string(entry.param.name); });

struct HmacCase {
    const char* name;
    CCHmacAlgorithm algorithm;
    const char* result;
};

class KeyedDigest : public testing::TestWithParam<HmacCase> {};

// Published for the key "Jefe" and "what do ya want for nothing?"; at most 20 bytes of each are
// kept.
TEST_P(KeyedDigest, MatchesTheHeadOfThePublishedValue) {
    const QByteArray text("what do ya want for nothing?");
    const QByteArray result = QByteArray::fromHex(GetParam().result);
    EXPECT_EQ(CommonHMAC::HMACWithAlgorithm(text, GetParam().algorithm, QByteArray("Jefe")).toHex(),
              result.toHex());
    EXPECT_EQ(CommonHMAC::HMACWithAlgorithm(text, GetParam().algorithm, QStringLiteral("Jefe")),
              result);
}

INSTANTIATE_TEST_SUITE_P(
    All, KeyedDigest,
    testing::Values(HmacCase{"MD5", CCHmacAlgMD5, "750c783e6ab0b503eaa86e310a5db738"},
                    HmacCase{"SHA1", CCHmacAlgSHA1, "effcdf6ae5eb2fa2d27416d5f184df9c259a7c79"},
                    HmacCase{"SHA224", CCHmacAlgSHA224, "a30e01098bc6dbbf45690f3a7e9e6d0f8bbea2a3"},
                    HmacCase{"SHA256", CCHmacAlgSHA256, "5bdcc146bf60754e6a042426089575c75a003f08"},
                    HmacCase{"SHA384", CCHmacAlgSHA384, "af45d2e376484031617f78d2b58a6b1b9c7ef464"},
                    HmacCase{"SHA512", CCHmacAlgSHA512,
                             "164b7a7bfcf819e2e395fbe73b56e0a387bd6422"}),
    [](const auto& entry) { return std::string(entry.param.name); });

TEST(CommonHMAC, TakesNoKeyForAnEmptyOne) {
    EXPECT_EQ(CommonHMAC::HMACWithAlgorithm("", CCHmacAlgMD5).toHex(),
              "74e6f7298a9c2d168935f58c001bad88");
    EXPECT_EQ(CommonHMAC::HMACWithAlgorithm("", CCHmacAlgSHA256).toHex(),
              "b613679a0814d9ec772f95d778c35fc5ff1697c4");
    EXPECT_EQ(CommonHMAC::HMACWithAlgorithm("x", CCHmacAlgSHA1),
              CommonHMAC::HMACWithAlgorithm("x", CCHmacAlgSHA1, QByteArray("")));
}

} // namespace
