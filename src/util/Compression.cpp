#include "util/NSData+CocoaDevUsersAdditions.h"

#include <algorithm>
#include <limits>
#include <zlib.h>

// Streams are processed in pieces, since zlib counts bytes with 32 bits.
namespace {

constexpr qsizetype firstDeflated = 16384;
constexpr qsizetype minInflatedBytes = 64;
constexpr int zlibHeader = MAX_WBITS;
constexpr int gzipHeader = MAX_WBITS + 16;
constexpr int eitherHeader = MAX_WBITS + 32;
constexpr int usualMemory = 8;

uInt piece(qsizetype size) {
    return uInt(std::min<qsizetype>(size, std::numeric_limits<uInt>::max()));
}

// An output buffer that grows as it fills.
class Output {
public:
    explicit Output(qsizetype size) : iBytes(size, '\0') {}

    bool isFull() const { return iUsed == iBytes.size(); }
    void grow(qsizetype size) { iBytes.resize(size); }
    qsizetype size() const { return iBytes.size(); }
    qsizetype used() const { return iUsed; }

    void offerTo(z_stream& stream) {
        stream.next_out = reinterpret_cast<Bytef*>(iBytes.data()) + iUsed;
        stream.avail_out = iOffered = piece(iBytes.size() - iUsed);
    }
    void takeFrom(const z_stream& stream) { iUsed += iOffered - stream.avail_out; }

    QByteArray cut() {
        iBytes.resize(iUsed);
        return iBytes;
    }

private:
    QByteArray iBytes;
    qsizetype iUsed = 0;
    uInt iOffered = 0;
};

void feed(z_stream& stream, const QByteArray& data) {
    const auto* end = reinterpret_cast<const Bytef*>(data.constData()) + data.size();
    if (!stream.next_in)
        stream.next_in = reinterpret_cast<z_const Bytef*>(const_cast<char*>(data.constData()));
    stream.avail_in = piece(end - stream.next_in);
}

// True when the stream ended within the limit.
bool inflateAll(z_stream& stream, const QByteArray& data, Output& output, qsizetype limit) {
    int status = Z_OK;
    while (status == Z_OK) {
        if (output.isFull()) {
            // One byte past the limit distinguishes a stream that fits from one that doesn't.
            if (output.used() > limit)
                return false;
            const qsizetype more = std::max({data.size() / 2, output.size() / 2, minInflatedBytes});
            output.grow(std::min(output.size() + more, limit + 1));
        }
        feed(stream, data);
        output.offerTo(stream);
        status = ::inflate(&stream, Z_SYNC_FLUSH);
        output.takeFrom(stream);
    }
    return status == Z_STREAM_END && output.used() <= limit;
}

QByteArray inflated(const QByteArray& data, int windowBits, qsizetype limit) {
    if (data.isEmpty())
        return data;
    z_stream stream{};
    if (::inflateInit2(&stream, windowBits) != Z_OK)
        return {};
    Output output(std::min(data.size() + data.size() / 2 + minInflatedBytes, limit + 1));
    const bool complete = inflateAll(stream, data, output, limit);
    if (::inflateEnd(&stream) != Z_OK || !complete)
        return {};
    return output.cut();
}

QByteArray deflated(const QByteArray& data, int windowBits) {
    if (data.isEmpty())
        return data;
    z_stream stream{};
    if (::deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, windowBits, usualMemory,
                       Z_DEFAULT_STRATEGY) != Z_OK)
        return {};
    Output output(firstDeflated);
    int status = Z_OK;
    while (status == Z_OK || status == Z_BUF_ERROR) {
        if (output.isFull())
            output.grow(output.size() + std::max(firstDeflated, output.size() / 2));
        feed(stream, data);
        const auto* end = reinterpret_cast<const Bytef*>(data.constData()) + data.size();
        const bool isLastPiece = stream.next_in + stream.avail_in == end;
        output.offerTo(stream);
        status = ::deflate(&stream, isLastPiece ? Z_FINISH : Z_NO_FLUSH);
        output.takeFrom(stream);
    }
    ::deflateEnd(&stream);
    return status == Z_STREAM_END ? output.cut() : QByteArray();
}

} // namespace

QByteArray NSDataExtension::zlibInflate(const QByteArray& data, qsizetype limit) {
    return inflated(data, zlibHeader, limit);
}

QByteArray NSDataExtension::gzipInflate(const QByteArray& data, qsizetype limit) {
    return inflated(data, eitherHeader, limit);
}

QByteArray NSDataExtension::zlibDeflate(const QByteArray& data) {
    return deflated(data, zlibHeader);
}

QByteArray NSDataExtension::gzipDeflate(const QByteArray& data) {
    return deflated(data, gzipHeader);
}
