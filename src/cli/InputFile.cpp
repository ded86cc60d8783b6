#include "cli/InputFile.h"

#include "cli/CommandError.h"
#include "platform/PlatformException.h"

#include <QFileInfo>

std::shared_ptr<PDFDocument> InputFile::open(const QString& path) {
    if (path.isEmpty())
        throw CommandError(QStringLiteral("the name of the PDF file is empty"), ExitCode::usage);
    const QFileInfo info(path);
    if (info.exists() && !info.isFile() && !info.isDir())
        throw CommandError(QStringLiteral("%1: is a pipe or a device, not a PDF file").arg(path));
    try {
        return PDFDocument::open(path);
    } catch (const PlatformException& failure) {
        throw CommandError(failure.reason());
    }
}
