#include "cli/InputFile.h"

#include "cli/CommandError.h"
#include "platform/PlatformException.h"

std::shared_ptr<PDFDocument> InputFile::open(const QString& path) {
    if (path.isEmpty())
        throw CommandError(QStringLiteral("the name of the PDF file is empty"), ExitCode::usage);
    try {
        return PDFDocument::openApart(path);
    } catch (const PlatformException& failure) {
        throw CommandError(failure.reason());
    }
}
