#include "pdf/PageDamage.h"

#include <QByteArrayList>
#include <algorithm>

namespace {

using Sign = bool PageDamage::*;

constexpr Sign images = &PageDamage::images;
constexpr Sign fonts = &PageDamage::fonts;
constexpr Sign data = &PageDamage::data;

// How messages begin that are about something that shows. Left out on purpose is what MuPDF repairs
// or does without, and other readers, too: substituted fonts that are not embedded, unknown
// operators, missing graphics states, wrong checksums and lengths.
constexpr std::pair<std::string_view, Sign> beginnings[]{
    {"cannot decode jbig2", images},
    {"cannot complete jbig2 image", images},
    {"no jbig2 image decoded", images},
    {"jbig2 globals is not a stream", images},
    {"jbig2dec error", images},
    {"jpeg error", images},
    {"premature end of file in jpeg", images},
    {"openjpeg error", images},
    {"Failed to read JPX", images},
    {"Failed to decode JPX", images},
    {"opj_decode failed", images},
    {"j2k decode failed", images},
    {"image components are missing data", images},
    {"No data for JP2 image component", images},
    {"Unbelievable size for jpx", images},
    {"Overflow while decoding jpx", images},
    {"padding truncated image", images},
    {"invalid code in 2d faxd", images},
    {"negative code in", images},
    {"overflow in 1d faxd", images},
    {"overflow in 2d faxd", images},
    {"uncompressed data in faxd", images},
    {"image width is zero", images},
    {"image height is zero", images},
    {"image depth is", images},
    {"image is too", images},
    {"cannot find XObject resource", images},
    {"no XObject subtype specified", images},
    {"ignored error when loading embedded font", fonts},
    {"cannot find builtin", fonts},
    {"cid font is missing descendant fonts", fonts},
    {"Type3 font missing CharProcs", fonts},
    {"Type3 glyph load failed", fonts},
    {"zlib error", data},
    {"ignoring zlib error", data},
    {"premature end of data in", data}, // flate and run length filters, PNG prediction
    {"premature end in lzw", data},
    {"out of range code encountered in lzw", data},
    {"premature end in aes", data},
    {"compression bomb", data},
    {"unknown filter name", data},
    {"cannot load content stream part", data},
    {"too many syntax errors", data},
};

// All data was there.
constexpr std::string_view wrongChecksum = "ignoring zlib error: incorrect data check";

// libjbig2dec only warns of features that it lacks.
bool isMissingFeature(std::string_view message) {
    const auto has = [message](std::string_view part) {
        return message.find(part) != std::string_view::npos;
    };
    return message.starts_with("jbig2dec warning") &&
           (has("(NYI)") || has("unsupported") || has("failed to"));
}

constexpr std::pair<const char*, Sign> names[]{
    {"images", images}, {"fonts", fonts}, {"data", data}};

} // namespace

void PageDamage::add(std::string_view message) {
    if (message == wrongChecksum)
        return;
    images = images || isMissingFeature(message);
    for (const auto& [beginning, part] : beginnings) {
        if (message.starts_with(beginning))
            this->*part = true;
    }
}

QByteArray PageDamage::words() const {
    QByteArrayList words;
    for (const auto& [name, part] : names) {
        if (this->*part)
            words << name;
    }
    return words.join(' ');
}

PageDamage PageDamage::fromWords(const QByteArray& words) {
    const QByteArrayList all = words.split(' ');
    PageDamage damage;
    for (const auto& [name, part] : names)
        damage.*part = all.contains(name);
    return damage;
}

Message PageDamage::message() const {
    Message text;
    const auto add = [&text](bool isDamaged, const Message& what) {
        if (isDamaged)
            text = text.isNull() ? what : Message(QStringLiteral("%1, %2")).arg(text, what);
    };
    add(images, Message::translate("PageFailure", "an image can't be read completely"));
    add(fonts, Message::translate("PageFailure", "a font can't be read"));
    add(data, Message::translate("PageFailure", "some of its data is damaged"));
    return text;
}
