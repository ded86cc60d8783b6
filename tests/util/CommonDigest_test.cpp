#include "util/NSData+CommonCrypto.h"

#include <gtest/gtest.h>

TEST(CommonDigest, MatchesThePublishedValuesOfAbc) {
    struct Case {
        QByteArray (*digest)(const QByteArray&);
        const char* result;
    };
    using namespace CommonDigest;
    for (const auto& [digest, result] :
         {Case{MD2Sum, "da853b0d3f88d99b30283a69e6ded6bb"},
          Case{MD4Sum, "a448017aaf21d8525fc10ae87aa6729d"},
          Case{MD5Sum, "900150983cd24fb0d6963f7d28e17f72"},
          Case{SHA1Hash, "a9993e364706816aba3e25717850c26c9cd0d89d"},
          Case{SHA224Hash, "23097d223405d8228642a477bda255b32aadbce4bda0b3f7e36c9da7"},
          Case{SHA256Hash, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
          Case{SHA384Hash, "cb00753f45a35e8bb5a03d699ac65007272c32ab0eded1631a8b605a43ff5bed"
                           "8086072ba1e7cc2358baeca134c825a7"},
          Case{SHA512Hash, "ddaf35a193617abacc417349ae20413112e6fa4e89a97ea20a9eeee64b55d39a"
                           "2192992a274fc1a836ba3c23a3feebbd454d4423643ce80e2a9ac94fa54ca49f"}})
        EXPECT_EQ(digest("abc").toHex(), result);
    EXPECT_EQ(MD5Sum(QByteArray()).toHex(), "d41d8cd98f00b204e9800998ecf8427e");
}

// At most 20 bytes of each are kept.
TEST(CommonHMAC, MatchesTheHeadOfThePublishedValues) {
    const QByteArray text("what do ya want for nothing?");
    for (const auto& [algorithm, result] :
         {std::pair{CCHmacAlgMD5, "750c783e6ab0b503eaa86e310a5db738"},
          {CCHmacAlgSHA1, "effcdf6ae5eb2fa2d27416d5f184df9c259a7c79"},
          {CCHmacAlgSHA224, "a30e01098bc6dbbf45690f3a7e9e6d0f8bbea2a3"},
          {CCHmacAlgSHA256, "5bdcc146bf60754e6a042426089575c75a003f08"},
          {CCHmacAlgSHA384, "af45d2e376484031617f78d2b58a6b1b9c7ef464"},
          {CCHmacAlgSHA512, "164b7a7bfcf819e2e395fbe73b56e0a387bd6422"}})
        EXPECT_EQ(CommonHMAC::HMACWithAlgorithm(text, algorithm, "Jefe").toHex(), result);
    EXPECT_EQ(CommonHMAC::HMACWithAlgorithm("", CCHmacAlgMD5).toHex(),
              "74e6f7298a9c2d168935f58c001bad88");
}
