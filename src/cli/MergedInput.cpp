#include "cli/MergedInput.h"

#include "base/PlatformException.h"
#include "cli/PublishOptions.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "pdf/OfficeDocument.h"
#include "pdf/PictureFile.h"
#include "project/InputFiles.h"
#include "system/Files.h"

#include <QFileInfo>

namespace {

QStringList filesOf(const QString& folder) {
    const QStringList files = InputFiles::inFolder(folder);
    if (files.isEmpty())
        throw CommandError(QStringLiteral("%1: has no PDF and no picture").arg(folder),
                           ExitCode::badDocument);
    return files;
}

} // namespace

QStringList MergedInput::files(const PublishOptions& options) {
    QStringList files;
    for (const QString& input : options.inputs)
        files << (QFileInfo(input).isDir() ? filesOf(input) : QStringList(input));
    const QString& first = options.inputs.front();
    const bool isPDF = !PictureFile::isOne(first) && !OfficeDocument::isOne(first);
    const bool isOneDocument =
        files.size() == 1 && isPDF && files.front() == first && options.pageList.empty();
    return isOneDocument ? QStringList() : files;
}

std::unique_ptr<MergedDocument> MergedInput::of(const PublishOptions& options) {
    const QStringList all = files(options);
    if (all.isEmpty())
        return nullptr;
    Interrupt::watch(); // there is something to clean up
    try {
        return std::make_unique<MergedDocument>(
            all, options.pageList, [&](const QString&) { return options.password.password(); },
            Files::lastPathComponent(options.pdf), Interrupt::wasRequested);
    } catch (const PlatformException& failure) {
        throw CommandError(failure);
    }
}
