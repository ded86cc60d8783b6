#include "picture/JPEGDamage.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <vector>

#include <jerror.h>
#include <jpeglib.h>

namespace {

// Others are about what does not show, such as bytes after the picture, which cameras add.
constexpr std::array damages{JWRN_HIT_MARKER, JWRN_HUFF_BAD_CODE, JWRN_MUST_RESYNC};

struct Decoder {
    jpeg_decompress_struct file; // first, so that libjpeg's pointer is one to this
    jpeg_error_mgr errors;
    std::jmp_buf end;
    bool isDamaged;
};

Decoder& decoderOf(j_common_ptr file) {
    return *reinterpret_cast<Decoder*>(file);
}

[[noreturn]] void stop(j_common_ptr file) {
    std::longjmp(decoderOf(file).end, 1);
}

void noticeMessage(j_common_ptr file, int level) {
    Decoder& decoder = decoderOf(file);
    decoder.isDamaged = level < 0 && std::find(damages.begin(), damages.end(),
                                               decoder.errors.msg_code) != damages.end();
    if (decoder.isDamaged)
        stop(file);
}

// Sets what takes the least time, since nobody sees the pixels.
void decode(Decoder& decoder, std::span<const unsigned char> bytes, std::vector<JSAMPLE>& row) {
    constexpr double mostPixels = 100e6;
    jpeg_decompress_struct& file = decoder.file;
    jpeg_create_decompress(&file);
    jpeg_mem_src(&file, bytes.data(), static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&file, TRUE);
    if (jpeg_has_multiple_scans(&file) && double(file.image_width) * file.image_height > mostPixels)
        return;
    file.scale_num = 1;
    file.scale_denom = 8;
    file.dct_method = JDCT_IFAST;
    file.do_fancy_upsampling = FALSE;
    file.out_color_space = file.jpeg_color_space;
    jpeg_start_decompress(&file);
    row.resize(std::size_t(file.output_width) * std::size_t(file.output_components));
    for (JSAMPLE* samples = row.data(); file.output_scanline < file.output_height;)
        jpeg_read_scanlines(&file, &samples, 1);
}

} // namespace

bool JPEGDamage::isIn(std::span<const unsigned char> file) {
    Decoder decoder{};
    std::vector<JSAMPLE> row;
    decoder.file.err = jpeg_std_error(&decoder.errors);
    decoder.errors.error_exit = stop;
    decoder.errors.emit_message = noticeMessage;
    // Nothing that is jumped over has a destructor.
    if (setjmp(decoder.end) == 0)
        decode(decoder, file, row);
    jpeg_destroy_decompress(&decoder.file);
    return decoder.isDamaged;
}
