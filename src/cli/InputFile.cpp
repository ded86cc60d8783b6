#include "cli/InputFile.h"

#include "base/PlatformException.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "pdf/PDFReader.h"

namespace {

template <class Opening>
auto opened(const QString& path, Opening opening) {
    if (path.isEmpty())
        throw CommandError(QStringLiteral("the name of the PDF file is empty"), ExitCode::usage);
    try {
        return opening(path);
    } catch (const PlatformException& failure) {
        throw CommandError(failure);
    }
}

} // namespace

std::shared_ptr<PDFDocument> InputFile::open(const QString& path, const QByteArray& password) {
    return opened(path, [&](const QString& file) { return PDFReader::open(file, {}, password); });
}

OpenedPDF InputFile::openForDrawing(const QString& path, const QByteArray& password, int jobs) {
    return opened(path, [&](const QString& file) {
        OpenedPDF pdf;
        pdf.jobs = jobs;
        pdf.password = password;
        pdf.open(file, Interrupt::wasRequested);
        return pdf;
    });
}
