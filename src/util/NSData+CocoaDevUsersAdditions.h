#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>

// Encoders, compressors and checksums for byte buffers. Arguments are never modified. A null buffer
// means that there is no result; an empty result is not null.
namespace NSDataExtension {

// A range of a buffer.
struct Range {
    static constexpr qsizetype notFound = INT32_MAX;
    qsizetype location = notFound;
    qsizetype length = 0;
};

// From start (zero-based) up to, but not including, the next zero byte; not found when start is
// outside the buffer or no zero byte follows.
Range rangeOfNullTerminatedBytesFrom(const QByteArray& data, qsizetype start);

// Base32 of RFC 4648, without padding. Decoding ignores case and skips every character outside the
// alphabet, padding included.
QByteArray dataWithBase32String(const QString& text);
QString base32String(const QByteArray& data);

// Consistent Overhead Byte Stuffing; no delimiter is added. Decoding appends a zero byte after the
// last block, one more than was encoded; input that ends within a block has no result.
QByteArray encodeCOBS(const QByteArray& data);
QByteArray decodeCOBS(const QByteArray& data);

// Far more than anything that we read, and little enough for most machines.
inline constexpr qsizetype defaultInflateLimit = qsizetype{256} * 1024 * 1024;

// Decompress a zlib stream; gzipInflate accepts gzip and zlib streams. An empty buffer is returned
// as is. No result when the stream is damaged or incomplete, or contains more bytes than the limit.
QByteArray zlibInflate(const QByteArray& data, qsizetype limit = defaultInflateLimit);
QByteArray gzipInflate(const QByteArray& data, qsizetype limit = defaultInflateLimit);

// Compress to a zlib or gzip stream; an empty buffer is returned as is. No result when the
// compressor can't be initialised.
QByteArray zlibDeflate(const QByteArray& data);
QByteArray gzipDeflate(const QByteArray& data);

// CRC-32 as in zlib and PNG.
std::uint32_t crc32(const QByteArray& data);

// 16, 20 and 20 bytes; the texts have two lower-case hexadecimal digits per byte.
QByteArray md5Digest(const QByteArray& data);
QByteArray sha1Digest(const QByteArray& data);
QByteArray ripemd160Digest(const QByteArray& data);
QString md5DigestString(const QByteArray& data);
QString sha1DigestString(const QByteArray& data);
QString ripemd160DigestString(const QByteArray& data);

} // namespace NSDataExtension
