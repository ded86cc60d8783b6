#include "util/NSData+CocoaDevUsersAdditions.h"

#include "support/Program.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

using namespace NSDataExtension;

namespace {

QByteArray hex(const char* text) {
    return QByteArray::fromHex(text);
}

QByteArray noise(qsizetype size) {
    std::mt19937 random(unsigned(size) + 1);
    QByteArray bytes(size, '\0');
    for (char& byte : bytes)
        byte = char(random() % 7 == 0 ? 0 : random());
    return bytes;
}

} // namespace

TEST(NullTerminatedBytes, ReachFromTheStartToTheNextZero) {
    struct Case {
        const char* bytes;
        qsizetype start, location, length;
    };
    constexpr qsizetype none = 2147483647;
    for (const auto& [bytes, start, location, length] :
         {Case{"41424300", 2, 2, 1}, Case{"41424300", 3, 3, 0}, Case{"00410042", 1, 1, 1},
          Case{"41424300", 4, none, 0}, Case{"414243", 0, none, 0}, Case{"", 0, none, 0},
          Case{"00", -1, none, 0}}) {
        const Range range = rangeOfNullTerminatedBytesFrom(hex(bytes), start);
        EXPECT_EQ(range.location, location) << bytes << ' ' << start;
        EXPECT_EQ(range.length, length) << bytes << ' ' << start;
    }
}

TEST(Base32, AgreesWithTheStandardsExamplesWithoutTheirPadding) {
    const char* examples[] = {"", "MY", "MZXQ", "MZXW6", "MZXW6YQ", "MZXW6YTB", "MZXW6YTBOI"};
    for (int length = 0; length <= 6; ++length) {
        const QByteArray plain = QByteArray("foobar").left(length);
        const QString encoded = QString::fromLatin1(examples[length]);
        EXPECT_EQ(base32String(plain), encoded);
        EXPECT_EQ(dataWithBase32String(encoded), plain);
    }
    EXPECT_FALSE(base32String(QByteArray("")).isNull());
}

TEST(Base32, ReadsSmallLettersAndSkipsWhatIsNotInTheAlphabet) {
    for (const char* text :
         {"mzxw6ytboi", "MZXW6YTBOI======", "MZ XW\n6Y=TB-1089OI", "=MZXW6YTBOI~"})
        EXPECT_EQ(dataWithBase32String(QString::fromLatin1(text)), "foobar") << text;
    EXPECT_EQ(dataWithBase32String("MZXWé6YTBOI"), "foobar");
}

TEST(COBS, StuffsAsPublished) {
    const std::map<const char*, const char*> examples{
        {"11220033", "0311220233"}, {"00", "0101"},
        {"0000", "010101"},         {"", "01"},
        {"11000000", "0211010101"}, {"11223344", "0511223344"}};
    for (const auto& [plain, encoded] : examples) {
        EXPECT_EQ(encodeCOBS(hex(plain)).toHex(), QByteArray(encoded));
        EXPECT_EQ(decodeCOBS(hex(encoded)).toHex(), QByteArray(plain) + "00");
    }
    EXPECT_EQ(encodeCOBS(QByteArray(254, 'a')), '\xff' + QByteArray(254, 'a') + '\1');
    EXPECT_EQ(encodeCOBS(QByteArray(255, 'a')), '\xff' + QByteArray(254, 'a') + "\2a");
    EXPECT_EQ(decodeCOBS(encodeCOBS(noise(100000))), noise(100000) + '\0');
    EXPECT_TRUE(decodeCOBS(hex("0511")).isNull());
}

TEST(Deflate, OthersReadWhatItWrites) {
    const QByteArray bytes = noise(300000) + QByteArray(300000, 'z');
    const auto environment = QProcessEnvironment::systemEnvironment();
    EXPECT_EQ(Program::runOther("gzip", {"-dc"}, environment, gzipDeflate(bytes)).output, bytes);
    const QByteArray sizeFirst = hex("000927c0"); // as Qt wants it
    EXPECT_EQ(qUncompress(sizeFirst + zlibDeflate(bytes)), bytes);
    EXPECT_TRUE(zlibDeflate(QByteArray()).isNull());
    EXPECT_TRUE(gzipDeflate("").isEmpty() && !gzipDeflate("").isNull());
}

TEST(Inflate, RestoresStreamsOfAnySize) {
    for (const qsizetype size : {1, 2, 1000, 16384, 1000000}) {
        for (const QByteArray& bytes : {noise(size), QByteArray(size, 'z')}) {
            EXPECT_EQ(zlibInflate(zlibDeflate(bytes)), bytes);
            EXPECT_EQ(gzipInflate(gzipDeflate(bytes)), bytes);
            EXPECT_EQ(gzipInflate(zlibDeflate(bytes)), bytes);
        }
    }
    EXPECT_EQ(gzipInflate(hex("1f8b0800000000000203cb48cdc9c9070086a6103605000000")), "hello");
    const QByteArray nothing = zlibInflate(hex("789c030000000001"));
    EXPECT_TRUE(nothing.isEmpty() && !nothing.isNull());
}

TEST(Inflate, HasNoResultForDamagedStreams) {
    const QByteArray stream = zlibDeflate(noise(5000));
    QByteArray flipped = stream;
    flipped[2500] = char(flipped[2500] ^ 0x55);
    for (const QByteArray& bad :
         {stream.chopped(1), stream.left(1), flipped, QByteArray("no stream")}) {
        EXPECT_TRUE(zlibInflate(bad).isNull());
        EXPECT_TRUE(gzipInflate(bad).isNull());
    }
    EXPECT_TRUE(zlibInflate(gzipDeflate("gzip has another header")).isNull());
    EXPECT_TRUE(zlibInflate("").isEmpty());
}

TEST(Inflate, StopsAtItsLimit) {
    const QByteArray bomb = zlibDeflate(QByteArray(300 * 1024 * 1024, '\0'));
    EXPECT_LT(bomb.size(), 400 * 1024);
    EXPECT_TRUE(zlibInflate(bomb).isNull());
    const QByteArray stream = gzipDeflate(QByteArray(1000, 'z'));
    EXPECT_TRUE(gzipInflate(stream, 999).isNull());
    EXPECT_EQ(gzipInflate(stream, 1000).size(), 1000);
}

TEST(Checksums, AgreeWithPublishedValues) {
    EXPECT_EQ(crc32("123456789"), 0xCBF43926U);
    EXPECT_EQ(crc32(""), 0U);
    EXPECT_EQ(md5DigestString("abc"), "900150983cd24fb0d6963f7d28e17f72");
    EXPECT_EQ(sha1DigestString("abc"), "a9993e364706816aba3e25717850c26c9cd0d89d");
    EXPECT_EQ(ripemd160DigestString("abc"), "8eb208f7e05d987a9b044a8e98c6b087f15a0bfc");
}
