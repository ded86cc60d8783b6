#include "picture/FastDeflater.h"

#include <isa-l/igzip_lib.h>

namespace {

constexpr int level = 2;
constexpr std::size_t tableSize = ISAL_DEF_LVL2_EXTRA_LARGE;

} // namespace

FastDeflater::FastDeflater() : iTables(new unsigned char[tableSize]) {}

QByteArray FastDeflater::zlib(std::string_view data) {
    QByteArray packed(qsizetype(data.size()) + 64, Qt::Uninitialized);
    isal_zstream stream;
    isal_deflate_stateless_init(&stream);
    stream.level = level;
    stream.level_buf = iTables.get();
    stream.level_buf_size = tableSize;
    stream.gzip_flag = IGZIP_ZLIB;
    stream.end_of_stream = 1;
    // It does not write to its input.
    stream.next_in = reinterpret_cast<unsigned char*>(const_cast<char*>(data.data()));
    stream.avail_in = static_cast<std::uint32_t>(data.size());
    stream.next_out = reinterpret_cast<unsigned char*>(packed.data());
    stream.avail_out = static_cast<std::uint32_t>(packed.size());
    if (isal_deflate_stateless(&stream) != COMP_OK)
        return iOther.zlib(data);
    packed.truncate(qsizetype(stream.total_out));
    return packed;
}
