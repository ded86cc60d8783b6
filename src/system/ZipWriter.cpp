#include "system/ZipWriter.h"

#include <QFile>
#include <cerrno>
#include <minizip/zip.h>
#include <utility>
#include <zlib.h>

namespace {

// The first day that the format knows.
constexpr uLong noDate = (1 << 21) | (1 << 16);
// Names are in UTF-8.
constexpr uLong namesInUTF8 = 1 << 11;

} // namespace

struct ZipWriter::Archive {
    zipFile file = nullptr;
};

ZipWriter::ZipWriter(const QString& path) : iArchive(std::make_unique<Archive>()) {
    errno = 0;
    iArchive->file = ::zipOpen64(QFile::encodeName(path).constData(), APPEND_STATUS_CREATE);
    check(iArchive->file ? ZIP_OK : ZIP_ERRNO);
}

ZipWriter::~ZipWriter() {
    if (iArchive->file)
        ::zipClose(iArchive->file, nullptr);
}

void ZipWriter::check(int result) {
    if (result == ZIP_OK || !iFailure.isNull())
        return;
    iFailure = errno ? Message::ofLastSystemError()
                     : Message(QStringLiteral("the archive could not be written"));
}

void ZipWriter::add(const QString& name, const QByteArray& data, Method method) {
    if (!iFailure.isNull())
        return;
    errno = 0;
    zip_fileinfo about{};
    about.dosDate = noDate;
    constexpr int zip64 = 0; // no file of a book has gigabytes
    check(::zipOpenNewFileInZip4_64(iArchive->file, name.toUtf8().constData(), &about, nullptr, 0,
                                    nullptr, 0, nullptr, method == Method::stored ? 0 : Z_DEFLATED,
                                    Z_DEFAULT_COMPRESSION, 0, -MAX_WBITS, DEF_MEM_LEVEL,
                                    Z_DEFAULT_STRATEGY, nullptr, 0, 0, namesInUTF8, zip64));
    if (iFailure.isNull())
        check(::zipWriteInFileInZip(iArchive->file, data.constData(), unsigned(data.size())));
    if (iFailure.isNull())
        check(::zipCloseFileInZip(iArchive->file));
}

Message ZipWriter::finish(const QByteArray& comment) {
    errno = 0;
    if (const zipFile file = std::exchange(iArchive->file, nullptr))
        check(::zipClose(file, comment.constData()));
    return iFailure;
}
