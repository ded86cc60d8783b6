#include "project/MergedDocument.h"

#include "pdf/PDFFile.h"
#include "pdf/PDFReader.h"
#include "system/FileState.h"
#include "system/Files.h"
#include "system/TemporaryFolders.h"

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

void MergedDocument::merge(const QStringList& files, std::vector<MergePlan::Page> pages,
                           const QByteArray& password, const std::function<bool()>& stopped) const {
    MergePlan plan{{}, std::move(pages)};
    const bool takesAll = plan.pages.empty();
    for (const QString& file : files) {
        PDFFile::check(file);
        if (takesAll)
            plan.pages.push_back({int(plan.sources.size())});
        plan.sources.push_back({file, password});
    }
    const auto before = statesOf(files);
    PDFReader::merge(plan, iPath, stopped);
    const auto after = statesOf(files);
    const auto changed = std::mismatch(before.begin(), before.end(), after.begin()).first;
    if (changed != before.end())
        PDFFile::failToOpen(
            files[changed - before.begin()],
            Message::translate("PDFDocument", "was changed while it was read").temporary(),
            ErrorKind::pdfChanged);
}
