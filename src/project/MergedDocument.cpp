#include "project/MergedDocument.h"

#include "pdf/OfficeDocument.h"
#include "pdf/PDFFile.h"
#include "pdf/PDFReader.h"
#include "system/FileState.h"
#include "system/Files.h"
#include "system/TemporaryFolders.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <utility>

namespace {

std::vector<FileState> statesOf(const QStringList& files) {
    std::vector<FileState> states;
    for (const QString& file : files)
        states.push_back(FileState::of(file));
    return states;
}

} // namespace

MergedDocument::MergedDocument(const QStringList& files, std::vector<MergePlan::Page> pages,
                               const QByteArray& password, const QString& name,
                               const std::function<bool()>& stopped)
    : iFolder(TemporaryFolders::make(QStringLiteral("Folvero"))),
      iPath(Files::join(iFolder, QFileInfo(name).completeBaseName() + QStringLiteral(".pdf"))) {
    try {
        merge(files, std::move(pages), password, stopped);
    } catch (...) {
        TemporaryFolders::remove(iFolder);
        throw;
    }
}

MergedDocument::~MergedDocument() {
    TemporaryFolders::remove(iFolder);
}

// The file itself, or the PDF that a document of an office program is converted to.
QString MergedDocument::readable(const QString& file, int index,
                                 const std::function<bool()>& stopped) const {
    if (!OfficeDocument::isOne(file))
        return file;
    const QString folder = Files::join(iFolder, QString::number(index));
    const QString pdf = Files::join(folder, QStringLiteral("document.pdf"));
    if (!QDir().mkdir(folder))
        PDFFile::failToOpen(folder, Message::ofLastSystemError(), ErrorKind::temporaryFolder);
    OfficeDocument::convert(file, pdf, stopped);
    return pdf;
}

void MergedDocument::merge(const QStringList& files, std::vector<MergePlan::Page> pages,
                           const QByteArray& password, const std::function<bool()>& stopped) const {
    MergePlan plan{{}, std::move(pages)};
    const bool takesAll = plan.pages.empty();
    const auto before = statesOf(files);
    for (const QString& file : files) {
        PDFFile::check(file);
        const int index = int(plan.sources.size());
        if (takesAll)
            plan.pages.push_back({index});
        plan.sources.push_back({readable(file, index, stopped), password});
    }
    // A document that was converted keeps its tags when it is not merged.
    const QString& first = plan.sources.front().path;
    const bool isWhole = takesAll && files.size() == 1 && first != files.front();
    if (!isWhole)
        PDFReader::merge(plan, iPath, stopped);
    else if (!QFile::rename(first, iPath))
        PDFFile::failToOpen(iPath, Message::ofLastSystemError(), ErrorKind::temporaryFolder);
    const auto after = statesOf(files);
    const auto changed = std::mismatch(before.begin(), before.end(), after.begin()).first;
    if (changed != before.end())
        PDFFile::failToOpen(
            files[changed - before.begin()],
            Message::translate("PDFDocument", "was changed while it was read").temporary(),
            ErrorKind::pdfChanged);
}
