#include "drawing/PageFileCheck.h"

#include "pdf/PDFLimits.h"
#include "picture/Inflater.h"
#include "picture/PictureHeader.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <utility>

namespace {

using Text = std::string_view;

constexpr std::array elements{Text("use"),  Text("path"),  Text("g"),    Text("clipPath"),
                              Text("rect"), Text("image"), Text("defs"), Text("svg")};

constexpr std::array attributes{Text("x"),
                                Text("y"),
                                Text("id"),
                                Text("fill"),
                                Text("transform"),
                                Text("stroke"),
                                Text("stroke-width"),
                                Text("stroke-linecap"),
                                Text("stroke-linejoin"),
                                Text("stroke-miterlimit"),
                                Text("stroke-dasharray"),
                                Text("stroke-dashoffset"),
                                Text("stroke-opacity"),
                                Text("fill-opacity"),
                                Text("fill-rule"),
                                Text("clip-rule"),
                                Text("clip-path"),
                                Text("opacity"),
                                Text("width"),
                                Text("height"),
                                Text("viewBox"),
                                Text("preserveAspectRatio")};

// Whether a text may have a character.
using Alphabet = std::array<bool, 256>;

constexpr Alphabet only(Text characters, Alphabet alphabet = {}) {
    for (const char c : characters)
        alphabet[static_cast<unsigned char>(c)] = true;
    return alphabet;
}

constexpr Alphabet lettersAnd(Text others) {
    return only(others, only("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"));
}

constexpr Alphabet nameCharacters = lettersAnd("");

// Numbers, names and lists of them. Without a colon, a slash or a backslash they make no address.
constexpr Alphabet plainCharacters = lettersAnd(" #%()+,-.");
constexpr Alphabet base64 = lettersAnd("+/=");
constexpr Alphabet pathData = only("MmLlHhVvCcSsQqTtAaZz0123456789.,-+eE ");

// Of the characters at the start of a text that are in the alphabet.
std::size_t lengthIn(const Alphabet& alphabet, Text text) {
    const auto* end = std::find_if_not(text.begin(), text.end(), [&alphabet](char c) {
        return alphabet[static_cast<unsigned char>(c)];
    });
    return std::size_t(end - text.begin());
}

// The only attributes with characters that are not plain.
bool isAddress(Text element, Text name) {
    return name == "xmlns" || (name == "href" && element == "image");
}

// What the player would take for a glyph or a run of them is no base64.
bool isAllowedAddress(Text name, Text value) {
    if (name == "xmlns")
        return value == "http://www.w3.org/2000/svg";
    for (const Text start : {Text("data:image/png;base64,"), Text("data:image/jpeg;base64,")}) {
        if (value.starts_with(start)) {
            const Text data = value.substr(start.size());
            return lengthIn(base64, data) == data.size();
        }
    }
    return false;
}

// Whether it names one element of the same drawing and nothing else.
bool isReference(Text value) {
    return value.size() > 1 && value.front() == '#' &&
           lengthIn(nameCharacters, value.substr(1)) == value.size() - 1;
}

// Whether an attribute of plain characters contains no address.
bool isAllowed(Text element, Text name, Text value) {
    if (name == "href")
        return element == "use" && isReference(value);
    if (name == "clip-path")
        return value.starts_with("url(") && value.ends_with(')') &&
               isReference(value.substr(4, value.size() - 5));
    if (name == "d")
        return lengthIn(pathData, value) == value.size();
    return std::find(attributes.begin(), attributes.end(), name) != attributes.end() &&
           value.find("url") == Text::npos;
}

// Reads the SVG of what VectorEncoder writes, tag by tag.
class Tags {
public:
    explicit Tags(Text text) : iLeft(text) {}

    bool areHarmless() {
        for (auto next = iLeft.find('<'); next != Text::npos; next = iLeft.find('<')) {
            iLeft.remove_prefix(next + 1);
            const bool isEnd = iLeft.starts_with('/');
            iLeft.remove_prefix(isEnd ? 1 : 0);
            const Text element = take(iLeft.find_first_of(" />"));
            if (std::find(elements.begin(), elements.end(), element) == elements.end() ||
                !(isEnd ? iLeft.starts_with('>') : areAttributesHarmless(element)))
                return false;
        }
        return true;
    }

private:
    Text take(std::size_t length) {
        const Text taken = iLeft.substr(0, length);
        iLeft.remove_prefix(taken.size());
        return taken;
    }

    bool areAttributesHarmless(Text element) {
        while (iLeft.starts_with(' ')) {
            iLeft.remove_prefix(1);
            const Text name = take(iLeft.find('='));
            if (!iLeft.starts_with("=\""))
                return false;
            iLeft.remove_prefix(2);
            const bool isURL = isAddress(element, name);
            const Text value = take(isURL ? iLeft.find('"') : lengthIn(plainCharacters, iLeft));
            if (!iLeft.starts_with('"') ||
                !(isURL ? isAllowedAddress(name, value) : isAllowed(element, name, value)))
                return false;
            iLeft.remove_prefix(1);
        }
        return iLeft.starts_with('>') || iLeft.starts_with("/>");
    }

    Text iLeft;
};

QByteArray contentsOf(const FileDescriptor& file, qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    const auto got = ::pread(file.number(), bytes.data(), std::size_t(size), 0);
    return bytes.left(std::max<qsizetype>(0, qsizetype(got)));
}

// A size beyond ours would take the memory of all who open the book.
bool isOfPage(QSize size) {
    return std::max(size.width(), size.height()) <= PDFLimits::maxBitmapSide &&
           std::size_t(size.width()) * std::size_t(size.height()) <= PDFLimits::maxBitmapPixels;
}

// Without the lines of glyphs, which may have any character: the player makes numbers of them.
std::string withoutGlyphs(Text vectors) {
    std::string rest;
    while (!vectors.empty()) {
        const auto end = std::min(vectors.find('\n'), vectors.size() - 1);
        if (rest.empty() || !vectors.starts_with('!'))
            rest += vectors.substr(0, end + 1);
        vectors.remove_prefix(end + 1);
    }
    return rest;
}

} // namespace

bool PageFileCheck::areHarmless(QByteArrayView packedVectors) {
    const std::string svg =
        withoutGlyphs(Inflater().zlib(packedVectors, PDFLimits::maxVectorBytes));
    const Text text = svg;
    return text.starts_with("<svg ") && text.find('&') == Text::npos && Tags(text).areHarmless();
}

bool PageFileCheck::isGenuine(const WebPageFiles& files, const QString& path) {
    const FileDescriptor file(::open(QFile::encodeName(path).constData(),
                                     O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat facts {};
    if (!file.isOpen())
        return errno == ENOENT;
    if (::fstat(file.number(), &facts) != 0 || !S_ISREG(facts.st_mode) ||
        std::cmp_greater(facts.st_size, PDFLimits::maxPageFileSize))
        return false;
    if (path == files.text)
        return true; // checked by PDFSerialization
    const QByteArray bytes = contentsOf(file, qsizetype(facts.st_size));
    if (path == files.largeVector)
        return areHarmless(bytes);
    // Of a scan in the document, and as large as it is there.
    if (path == files.largePhotograph)
        return !PictureHeader::sizeOfJPEG(bytes).isEmpty();
    const bool isPNG = path.endsWith(u".png");
    const QSize size = isPNG ? PictureHeader::sizeOfPNG(bytes) : PictureHeader::sizeOfJPEG(bytes);
    return !size.isEmpty() && (path == files.largePicture || isOfPage(size)) &&
           (isPNG ? PictureHeader::isWholePNG(bytes) : PictureHeader::isWholeJPEG(bytes));
}
