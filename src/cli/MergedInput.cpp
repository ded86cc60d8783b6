#include "cli/MergedInput.h"

#include "base/PlatformException.h"
#include "cli/PublishOptions.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "pdf/OfficeDocument.h"
#include "pdf/PictureFile.h"
#include "system/Files.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>

namespace {

// "Page 9" comes before "Page 10".
QStringList filesOf(const QString& folder) {
    QStringList names;
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        if (PictureFile::isOne(name) || Files::pathExtension(name).toLower() == u"pdf")
            names << name;
    }
    if (names.isEmpty())
        throw CommandError(QStringLiteral("%1: has no PDF and no picture").arg(folder),
                           ExitCode::badDocument);
    QCollator order(QLocale::English); // that of "C" knows no numbers
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(names.begin(), names.end(), order);
    QStringList files;
    for (const QString& name : names)
        files << Files::join(folder, name);
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
