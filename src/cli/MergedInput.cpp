#include "cli/MergedInput.h"

#include "base/PlatformException.h"
#include "cli/PublishOptions.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "pdf/PDFFile.h"
#include "pdf/PDFReader.h"
#include "system/FileState.h"
#include "system/Files.h"
#include "system/TemporaryFolders.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <vector>

namespace {

const QStringList pictureTypes{
    QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("png"), QStringLiteral("webp"),
    QStringLiteral("tif"), QStringLiteral("tiff"), QStringLiteral("gif"), QStringLiteral("bmp")};

bool isPicture(const QString& path) {
    return pictureTypes.contains(Files::pathExtension(path).toLower());
}

// "Page 9" comes before "Page 10".
QStringList filesOf(const QString& folder) {
    QStringList names;
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        if (isPicture(name) || Files::pathExtension(name).toLower() == u"pdf")
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

std::vector<FileState> statesOf(const QStringList& files) {
    std::vector<FileState> states;
    for (const QString& file : files)
        states.push_back(FileState::of(file));
    return states;
}

} // namespace

QStringList MergedInput::files(const PublishOptions& options) {
    QStringList files;
    for (const QString& input : options.inputs)
        files << (QFileInfo(input).isDir() ? filesOf(input) : QStringList(input));
    const QString& first = options.inputs.front();
    const bool isOneDocument = files.size() == 1 && !isPicture(first) && files.front() == first;
    return isOneDocument ? QStringList() : files;
}

std::unique_ptr<MergedInput> MergedInput::of(const PublishOptions& options) {
    const QStringList all = files(options);
    if (all.isEmpty())
        return nullptr;
    try {
        return std::make_unique<MergedInput>(all, options.password.password(),
                                             Files::lastPathComponent(options.pdf));
    } catch (const PlatformException& failure) {
        throw CommandError(failure);
    }
}

MergedInput::MergedInput(const QStringList& files, const QByteArray& password, const QString& name)
    : iFolder(TemporaryFolders::make(QStringLiteral("Folvero"))),
      iPath(Files::join(iFolder, QFileInfo(name).completeBaseName() + QStringLiteral(".pdf"))) {
    try {
        merge(files, password);
    } catch (...) {
        TemporaryFolders::remove(iFolder);
        throw;
    }
}

MergedInput::~MergedInput() {
    TemporaryFolders::remove(iFolder);
}

void MergedInput::merge(const QStringList& files, const QByteArray& password) const {
    MergePlan plan;
    for (const QString& file : files) {
        PDFFile::check(file);
        plan.pages.push_back({int(plan.sources.size())});
        plan.sources.push_back({file, password});
    }
    const auto before = statesOf(files);
    PDFReader::merge(plan, iPath, Interrupt::wasRequested);
    const auto after = statesOf(files);
    const auto changed = std::mismatch(before.begin(), before.end(), after.begin()).first;
    if (changed != before.end())
        PDFFile::failToOpen(
            files[changed - before.begin()],
            Message::translate("PDFDocument", "was changed while it was read").temporary(),
            ErrorKind::pdfChanged);
}
