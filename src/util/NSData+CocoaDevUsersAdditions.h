#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>

// Encoders, compressors and checksums over byte buffers. No operation changes its argument. A null
// buffer comes back where a result is said to be missing; an empty result is not null.
namespace NSDataExtension {

// A stretch of a buffer.
struct Range {
    static constexpr qsizetype notFound = INT32_MAX;
    qsizetype location = notFound;
    qsizetype length = 0;
};

// From the start (zero-based) up to, not including, the first zero byte at or after it; not found
// when the start is outside the buffer or no zero byte follows.
Range rangeOfNullTerminatedBytesFrom(const QByteArray& data, qsizetype start);

// Base32 of RFC 4648, without padding. Reading takes small letters too and skips every character
// that is not one of the alphabet, padding included.
QByteArray dataWithBase32String(const QString& text);
QString base32String(const QByteArray& data);

// Consistent Overhead Byte Stuffing; no delimiter is added. Decoding appends a zero byte after the
// last block, one more than was encoded; input that ends within a block has no result.
QByteArray encodeCOBS(const QByteArray& data);
QByteArray decodeCOBS(const QByteArray& data);

// More than most machines would miss, and far more than anything that we read.
inline constexpr qsizetype defaultInflateLimit = qsizetype{256} * 1024 * 1024;

// What a zlib stream holds; gzipInflate takes a gzip stream or a zlib stream. An empty buffer is
// returned as it stands. Missing when the stream is damaged or incomplete, or holds more bytes than
// the limit.
QByteArray zlibInflate(const QByteArray& data, qsizetype limit = defaultInflateLimit);
QByteArray gzipInflate(const QByteArray& data, qsizetype limit = defaultInflateLimit);

// A zlib or gzip stream; an empty buffer is returned as it stands. Missing when the compressor
// cannot start.
QByteArray zlibDeflate(const QByteArray& data);
QByteArray gzipDeflate(const QByteArray& data);

// The CRC of zlib and PNG.
std::uint32_t crc32(const QByteArray& data);

// 16, 20 and 20 bytes; the texts hold two lower-case hexadecimal digits a byte.
QByteArray md5Digest(const QByteArray& data);
QByteArray sha1Digest(const QByteArray& data);
QByteArray ripemd160Digest(const QByteArray& data);
QString md5DigestString(const QByteArray& data);
QString sha1DigestString(const QByteArray& data);
QString ripemd160DigestString(const QByteArray& data);

} // namespace NSDataExtension
