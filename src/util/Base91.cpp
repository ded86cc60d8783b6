#include "util/Base91.h"

namespace {

constexpr unsigned base = 91;
constexpr int pairBits = 13;

// The printable letters from "#" on, without "\". "!" stands for "<".
constexpr unsigned firstLetter = '#';

char letterOf(unsigned value) {
    const unsigned letter = firstLetter + value;
    return letter == '<' ? '!' : char(letter < '\\' ? letter : letter + 1);
}

// Not below base for what is no letter.
unsigned valueOf(char letter) {
    if (letter == '!')
        return '<' - firstLetter;
    if (letter == '<' || letter == '\\')
        return base;
    return static_cast<unsigned char>(letter) - firstLetter - (letter > '\\' ? 1 : 0);
}

} // namespace

QByteArray Base91::encode(const QByteArray& bytes) {
    QByteArray text;
    text.reserve(qsizetype(encodedSize(bytes.size())));
    unsigned bits = 0;
    int count = 0; // of bits not written
    const auto write = [&](unsigned pair) {
        pair &= (1U << pairBits) - 1;
        text.append(letterOf(pair / base)).append(letterOf(pair % base));
    };
    for (const char byte : bytes) {
        bits = bits << 8 | static_cast<unsigned char>(byte);
        count += 8;
        if (count >= pairBits) {
            count -= pairBits;
            write(bits >> count);
        }
    }
    if (count > 0)
        write(bits << (pairBits - count));
    // The last pair has room for another byte: a letter says that there is none.
    if (text.size() < encodedSize(bytes.size()))
        text.append(letterOf(0));
    return text;
}

qint64 Base91::encodedSize(qint64 bytes) {
    const qint64 pairs = (bytes * 8 + pairBits - 1) / pairBits;
    return pairs * 2 + (pairs * pairBits / 8 > bytes ? 1 : 0);
}

QByteArray Base91::decode(const QByteArray& text) {
    QByteArray bytes;
    unsigned bits = 0;
    int count = 0; // of bits not decoded
    for (qsizetype i = 1; i < text.size(); i += 2) {
        const unsigned first = valueOf(text[i - 1]);
        const unsigned second = valueOf(text[i]);
        if (first >= base || second >= base)
            return {};
        bits = bits << pairBits | (first * base + second);
        for (count += pairBits; count >= 8;) {
            count -= 8;
            bytes.append(char(bits >> count));
        }
    }
    bytes.chop(text.size() % 2);
    return bytes;
}
