#include "builder/PDFBuilder.h"

#include "builder/PDFEncryption.h"

#include <QFile>
#include <algorithm>
#include <memory>
#include <stdexcept>
#include <turbojpeg.h>
#include <zlib.h>

namespace {

constexpr int kCatalog = 1;
constexpr int kPages = 2;

QByteArray number(double value) {
    return QByteArray::number(value, 'g', 10);
}

QByteArray deflated(const QByteArray& data) {
    uLongf length = compressBound(static_cast<uLong>(data.size()));
    QByteArray result(static_cast<qsizetype>(length), Qt::Uninitialized);
    if (compress2(reinterpret_cast<Bytef*>(result.data()), &length,
                  reinterpret_cast<const Bytef*>(data.constData()), static_cast<uLong>(data.size()),
                  Z_BEST_SPEED) != Z_OK)
        throw std::runtime_error("deflate failed");
    result.truncate(static_cast<qsizetype>(length));
    return result;
}

// Bytes as a string; in hexadecimal, which needs no escapes.
QByteArray byteString(const QByteArray& bytes) {
    return "<" + bytes.toHex() + ">";
}

QByteArray resourceGroup(const QByteArray& group, const std::map<QByteArray, int>& members) {
    if (members.empty())
        return {};
    QByteArray result = "/" + group + " <<";
    for (const auto& [name, object] : members)
        result += " /" + name + " " + PDFBuilder::reference(object);
    return result + " >> ";
}

} // namespace

int PDFBuilder::reserveObject() {
    return ++iLastNumber;
}

int PDFBuilder::addObject(const QByteArray& body) {
    const int object = reserveObject();
    setObject(object, body);
    return object;
}

void PDFBuilder::setObject(int number, const QByteArray& body) {
    iObjects[number] = {body, std::nullopt};
}

int PDFBuilder::addStream(const QByteArray& entries, const QByteArray& data,
                          Compression compression) {
    const bool flate = compression == Compression::Flate;
    const int object = reserveObject();
    const QByteArray bytes = flate ? deflated(data) : data;
    iObjects[object] = {"<< " + entries + (flate ? " /Filter /FlateDecode" : "") + " /Length " +
                            QByteArray::number(bytes.size()) + " >>",
                        bytes};
    return object;
}

void PDFBuilder::setRawStream(int number, const QByteArray& dictionary, const QByteArray& data) {
    iObjects[number] = {dictionary, data};
}

QByteArray PDFBuilder::reference(int number) {
    return QByteArray::number(number) + " 0 R";
}

QByteArray PDFBuilder::rectangle(const QRectF& rect) {
    return "[" + number(rect.x()) + " " + number(rect.y()) + " " + number(rect.x() + rect.width()) +
           " " + number(rect.y() + rect.height()) + "]";
}

QByteArray PDFBuilder::text(const QString& text) {
    QByteArray bytes = "\xFE\xFF";
    for (const QChar c : text) {
        bytes += static_cast<char>(c.unicode() >> 8);
        bytes += static_cast<char>(c.unicode() & 0xFF);
    }
    return "<" + bytes.toHex() + ">";
}

int PDFBuilder::addImage(QSize size, int components, const QByteArray& entries,
                         const QByteArray& data, Compression compression) {
    return addStream("/Type /XObject /Subtype /Image /Width " + QByteArray::number(size.width()) +
                         " /Height " + QByteArray::number(size.height()) +
                         " /BitsPerComponent 8 /ColorSpace " +
                         (components == 1 ? "/DeviceGray" : "/DeviceRGB") + entries,
                     data, compression);
}

int PDFBuilder::addGrayImage(QSize size, const QByteArray& pixels) {
    return addImage(size, 1, {}, pixels, Compression::Flate);
}

int PDFBuilder::addRGBImage(QSize size, const QByteArray& pixels) {
    return addImage(size, 3, {}, pixels, Compression::Flate);
}

int PDFBuilder::addJPEGImage(QSize size, int components, const QByteArray& jpeg) {
    return addImage(size, components, " /Filter /DCTDecode", jpeg, Compression::None);
}

QByteArray PDFBuilder::encodeJPEG(QSize size, int components, const QByteArray& pixels,
                                  int quality) {
    const std::unique_ptr<void, decltype(&tjDestroy)> encoder(tjInitCompress(), &tjDestroy);
    const bool gray = components == 1;
    unsigned char* jpeg = nullptr;
    unsigned long length = 0;
    const int failed =
        tjCompress2(encoder.get(), reinterpret_cast<const unsigned char*>(pixels.constData()),
                    size.width(), 0, size.height(), gray ? TJPF_GRAY : TJPF_RGB, &jpeg, &length,
                    gray ? TJSAMP_GRAY : TJSAMP_420, quality, TJFLAG_FASTDCT);
    const std::unique_ptr<unsigned char, decltype(&tjFree)> owner(jpeg, &tjFree);
    if (failed)
        throw std::runtime_error("JPEG encoding failed");
    return {reinterpret_cast<const char*>(jpeg), static_cast<qsizetype>(length)};
}

int PDFBuilder::standardFont(const QByteArray& name) {
    const auto known = iStandardFonts.find(name);
    if (known != iStandardFonts.end())
        return known->second;
    const bool symbolic = name == "Symbol" || name == "ZapfDingbats";
    const int object = addObject("<< /Type /Font /Subtype /Type1 /BaseFont /" + name +
                                 (symbolic ? "" : " /Encoding /WinAnsiEncoding") + " >>");
    iStandardFonts[name] = object;
    return object;
}

QByteArray PDFBuilder::attributeEntries(const PageAttributes& attributes) {
    QByteArray entries;
    if (attributes.mediaBox)
        entries += " /MediaBox " + rectangle(*attributes.mediaBox);
    if (attributes.cropBox)
        entries += " /CropBox " + rectangle(*attributes.cropBox);
    if (attributes.rotate)
        entries += " /Rotate " + QByteArray::number(*attributes.rotate);
    std::map<QByteArray, int> fonts = attributes.fontObjects;
    for (const auto& [name, standard] : attributes.fonts)
        fonts[name] = standardFont(standard);
    const QByteArray resources = resourceGroup("Font", fonts) +
                                 resourceGroup("XObject", attributes.xObjects) +
                                 attributes.resources;
    if (!resources.isEmpty())
        entries += " /Resources << " + resources + ">>";
    return entries;
}

int PDFBuilder::pageObject(int index) {
    while (iPageNumbers.size() <= static_cast<size_t>(index))
        iPageNumbers.push_back(reserveObject());
    return iPageNumbers[static_cast<size_t>(index)];
}

PDFBuilder::Page PDFBuilder::page(const QSizeF& size, const QByteArray& content,
                                  std::vector<QByteArray> annotations) {
    Page page;
    page.mediaBox = QRectF({0, 0}, size);
    page.content = content;
    page.annotations = std::move(annotations);
    return page;
}

QByteArray PDFBuilder::blank(int pages, const QSizeF& size) {
    PDFBuilder builder;
    for (int count = 0; count < pages; ++count)
        builder.addPage(page(size));
    return builder.build();
}

int PDFBuilder::addPage(const Page& page) {
    const int index = addMissingPage();
    QByteArray entries = "/Type /Page /Parent " + reference(kPages) + attributeEntries(page);
    if (page.userUnit)
        entries += " /UserUnit " + number(*page.userUnit);
    if (!page.content.isEmpty())
        entries += " /Contents " + reference(addStream({}, page.content, page.compression));
    if (!page.annotations.empty()) {
        entries += " /Annots [";
        for (const QByteArray& annotation : page.annotations)
            entries += " " + reference(addObject(annotation));
        entries += " ]";
    }
    setObject(pageObject(index), "<< " + entries + " " + page.extraEntries + " >>");
    return index;
}

int PDFBuilder::addMissingPage() {
    const int index = iPageCount++;
    pageObject(index);
    return index;
}

void PDFBuilder::setInherited(const PageAttributes& attributes) {
    iInheritedEntries = attributeEntries(attributes);
}

void PDFBuilder::setPageLabels(int firstPage, const QByteArray& entries) {
    iPageLabels[firstPage] = entries;
}

QByteArray PDFBuilder::destination(int page) {
    return "[" + reference(pageObject(page)) + " /Fit]";
}

QByteArray PDFBuilder::destination(int page, double left, double top) {
    return "[" + reference(pageObject(page)) + " /XYZ " + number(left) + " " + number(top) + " 0]";
}

void PDFBuilder::addNamedDestination(const QByteArray& name, const QByteArray& destination) {
    iNamedDestinations[name] = destination;
}

void PDFBuilder::addOldNamedDestination(const QByteArray& name, const QByteArray& destination) {
    iOldNamedDestinations[name] = destination;
}

QByteArray PDFBuilder::toURL(const QByteArray& url) {
    return "/A << /S /URI /URI " + byteString(url) + " >> ";
}

QByteArray PDFBuilder::toDestination(const QByteArray& destination) {
    return "/Dest " + destination + " ";
}

QByteArray PDFBuilder::toDestinationByAction(const QByteArray& destination) {
    return "/A << /S /GoTo /D " + destination + " >> ";
}

QByteArray PDFBuilder::toName(const QByteArray& name) {
    return toDestination(byteString(name));
}

QByteArray PDFBuilder::toOldName(const QByteArray& name) {
    return toDestination("/" + name);
}

QByteArray PDFBuilder::link(const QRectF& rect, const QByteArray& target) {
    return annotation("Link", rect, "/Border [0 0 0] " + target);
}

QByteArray PDFBuilder::annotation(const QByteArray& subtype, const QRectF& rect,
                                  const QByteArray& extraEntries) {
    return "<< /Type /Annot /Subtype /" + subtype + " /Rect " + rectangle(rect) + " " +
           extraEntries + ">>";
}

void PDFBuilder::setInfo(const QByteArray& key, const QString& value) {
    iInfo[key] = text(value);
}

void PDFBuilder::setOutline(std::vector<OutlineEntry> entries) {
    iOutline = reserveObject();
    int count = 0;
    QByteArray firstAndLast;
    addOutlineLevel(entries, *iOutline, count, firstAndLast);
    setObject(*iOutline,
              "<< /Type /Outlines /Count " + QByteArray::number(count) + firstAndLast + " >>");
}

void PDFBuilder::addOutlineLevel(const std::vector<OutlineEntry>& entries, int parent, int& count,
                                 QByteArray& entriesOfParent) {
    std::vector<int> numbers(entries.size());
    std::generate(numbers.begin(), numbers.end(), [this] { return reserveObject(); });
    if (!numbers.empty())
        entriesOfParent +=
            " /First " + reference(numbers.front()) + " /Last " + reference(numbers.back());
    for (size_t i = 0; i < entries.size(); ++i) {
        QByteArray body = "<< /Title " + text(entries[i].title) + " /Parent " + reference(parent);
        if (i > 0)
            body += " /Prev " + reference(numbers[i - 1]);
        if (i + 1 < entries.size())
            body += " /Next " + reference(numbers[i + 1]);
        int below = 0;
        addOutlineLevel(entries[i].children, numbers[i], below, body);
        if (below > 0)
            body += " /Count " + QByteArray::number(below);
        setObject(numbers[i], body + " " + entries[i].target + ">>");
        count += 1 + below;
    }
}

void PDFBuilder::addCatalogEntries(const QByteArray& entries) {
    iCatalogEntries += " " + entries;
}

void PDFBuilder::encrypt(const QByteArray& userPassword, const QByteArray& ownerPassword,
                         qint32 permissions) {
    iPasswords = Passwords{userPassword, ownerPassword, permissions};
}

QByteArray PDFBuilder::pagesDictionary() const {
    QByteArray kids;
    for (int i = 0; i < iPageCount; ++i)
        kids += (i % 16 ? " " : "\n") + reference(iPageNumbers[static_cast<size_t>(i)]);
    return "<< /Type /Pages /Count " + QByteArray::number(iPageCount) + iInheritedEntries +
           " /Kids [" + kids + " ] >>";
}

QByteArray PDFBuilder::names() const {
    QByteArray result;
    if (!iNamedDestinations.empty()) {
        result += " /Names << /Dests << /Names [";
        for (const auto& [name, destination] : iNamedDestinations)
            result += " " + byteString(name) + " " + destination;
        result += " ] >> >>";
    }
    if (!iOldNamedDestinations.empty()) {
        result += " /Dests <<";
        for (const auto& [name, destination] : iOldNamedDestinations)
            result += " /" + name + " " + destination;
        result += " >>";
    }
    return result;
}

QByteArray PDFBuilder::catalog() const {
    QByteArray result = "<< /Type /Catalog /Pages " + reference(kPages) + names();
    if (iOutline)
        result += " /Outlines " + reference(*iOutline) + " /PageMode /UseOutlines";
    if (!iPageLabels.empty()) {
        result += " /PageLabels << /Nums [";
        for (const auto& [firstPage, entries] : iPageLabels)
            result += " " + QByteArray::number(firstPage) + " << " + entries + " >>";
        result += " ] >>";
    }
    return result + iCatalogEntries + " >>";
}

QByteArray PDFBuilder::build() const {
    std::map<int, Object> objects = iObjects;
    objects[kCatalog] = {catalog(), std::nullopt};
    objects[kPages] = {pagesDictionary(), std::nullopt};
    int last = iLastNumber;
    QByteArray trailer = "/Root " + reference(kCatalog);
    if (!iInfo.empty()) {
        QByteArray info;
        for (const auto& [key, value] : iInfo)
            info += "/" + key + " " + value + " ";
        objects[++last] = {"<< " + info + ">>", std::nullopt};
        trailer += " /Info " + reference(last);
    }
    if (iPasswords) {
        const PDFEncryption encryption(iPasswords->user, iPasswords->owner,
                                       iPasswords->permissions);
        for (auto& [object, content] : objects) {
            content.body = encryption.withStringsEncrypted(object, content.body);
            if (content.stream)
                content.stream = encryption.encrypted(object, *content.stream);
        }
        objects[++last] = {encryption.dictionary(), std::nullopt};
        trailer += " /Encrypt " + reference(last) + " /ID " + encryption.fileIdentifier();
    }

    QByteArray file = "%PDF-1.7\n%\xE2\xE3\xCF\xD3\n";
    std::map<int, qsizetype> offsets;
    for (const auto& [object, content] : objects) {
        offsets[object] = file.size();
        file += QByteArray::number(object) + " 0 obj\n" + content.body;
        if (content.stream)
            file += "\nstream\n" + *content.stream + "\nendstream";
        file += "\nendobj\n";
    }
    const qsizetype xref = file.size();
    file += "xref\n0 " + QByteArray::number(last + 1) + "\n0000000000 65535 f \n";
    for (int object = 1; object <= last; ++object) {
        const auto offset = offsets.find(object);
        file += offset == offsets.end()
                    ? QByteArray("0000000000 00000 f \n")
                    : QByteArray::number(offset->second).rightJustified(10, '0') + " 00000 n \n";
    }
    return file + "trailer\n<< /Size " + QByteArray::number(last + 1) + " " + trailer +
           " >>\nstartxref\n" + QByteArray::number(xref) + "\n%%EOF\n";
}

bool PDFBuilder::write(const QString& path) const {
    QFile file(path);
    const QByteArray bytes = build();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}
