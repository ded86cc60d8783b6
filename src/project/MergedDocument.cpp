#include "project/MergedDocument.h"

#include "base/PlatformException.h"
#include "pdf/OfficeDocument.h"
#include "pdf/PDFFile.h"
#include "pdf/PDFReader.h"
#include "system/FileState.h"
#include "system/Files.h"
#include "system/TemporaryFolders.h"

#include <QFile>
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

// Answers of the user's, not faults of a file.
bool isFaulty(const PlatformException& failure) {
    return failure.kind() != ErrorKind::readStopped && failure.kind() != ErrorKind::pdfPassword;
}

[[noreturn]] void failWithoutFiles(const Messages& causes) {
    throw PlatformException(ErrorKind::pdfOpen,
                            {englishTexts(causes).join(u'\n'), localTexts(causes).join(u'\n')});
}

} // namespace

MergedDocument::MergedDocument(const QStringList& files, std::vector<MergePlan::Page> pages,
                               const PasswordOf& passwordOf, const QString& name,
                               const std::function<bool()>& stopped, Unreadable unreadable,
                               ConvertedDocuments* converted)
    : iFolder(TemporaryFolders::make(QStringLiteral("Folvero"))),
      iPath(Files::join(iFolder, QFileInfo(name).completeBaseName() + QStringLiteral(".pdf"))) {
    try {
        const auto before = statesOf(files);
        ConvertedDocuments none;
        take(files, passwordOf, stopped, unreadable, converted ? *converted : none);
        try {
            write(std::move(pages), stopped);
        } catch (const PlatformException& failure) {
            if (unreadable == Unreadable::fails || !isFaulty(failure))
                throw;
            leaveOutUnreadable(stopped);
            write({}, stopped);
        }
        const auto after = statesOf(files);
        const auto changed = std::mismatch(before.begin(), before.end(), after.begin()).first;
        if (changed != before.end())
            PDFFile::failToOpen(
                files[changed - before.begin()],
                Message::translate("PDFDocument", "was changed while it was read").temporary(),
                ErrorKind::pdfChanged);
    } catch (...) {
        TemporaryFolders::remove(iFolder);
        throw;
    }
}

MergedDocument::~MergedDocument() {
    TemporaryFolders::remove(iFolder);
}

QString MergedDocument::readable(const QString& file) const {
    const auto converted = iConverted.find(file);
    return converted == iConverted.end() ? file : (*converted)->pdf();
}

void MergedDocument::take(const QStringList& files, const PasswordOf& passwordOf,
                          const std::function<bool()>& stopped, Unreadable unreadable,
                          ConvertedDocuments& converted) {
    for (const QString& file : files) {
        try {
            PDFFile::check(file);
            if (OfficeDocument::isOne(file) && !iConverted.contains(file))
                convert(file, stopped, converted);
        } catch (const PlatformException& failure) {
            if (unreadable == Unreadable::fails || !isFaulty(failure))
                throw;
            iLeftOut << failure.message();
            continue;
        }
        iFiles << file;
        iSources.push_back({readable(file), passwordOf(file)});
    }
    if (iFiles.isEmpty())
        failWithoutFiles(iLeftOut);
}

void MergedDocument::convert(const QString& file, const std::function<bool()>& stopped,
                             ConvertedDocuments& converted) {
    const auto known = converted.find(file);
    if (known == converted.end() || !(*known)->isCurrent())
        converted[file] = std::make_shared<ConvertedDocument>(file, stopped);
    iConverted[file] = converted[file];
}

void MergedDocument::write(std::vector<MergePlan::Page> pages,
                           const std::function<bool()>& stopped) const {
    const QString& first = iSources.front().path;
    // A document that was converted keeps its tags when it is not merged.
    if (pages.empty() && iFiles.size() == 1 && first != iFiles.front()) {
        if (!QFile::copy(first, iPath))
            PDFFile::failToOpen(iPath, Message::ofLastSystemError(), ErrorKind::temporaryFolder);
        return;
    }
    if (pages.empty()) {
        for (int source = 0; source < iFiles.size(); ++source)
            pages.push_back({source});
    }
    const MergePlan plan{iSources, std::move(pages)};
    PDFReader::merge(plan, iPath, stopped);
}

// A source is at fault when it can't even be merged alone.
void MergedDocument::leaveOutUnreadable(const std::function<bool()>& stopped) {
    QFile::remove(iPath);
    const QString alone = Files::join(iFolder, QStringLiteral("alone.pdf"));
    const auto earlier = std::exchange(iSources, {});
    const QStringList files = std::exchange(iFiles, {});
    for (std::size_t at = 0; at < earlier.size(); ++at) {
        try {
            PDFReader::merge({{earlier[at]}, {{0}}}, alone, stopped);
            iSources.push_back(earlier[at]);
            iFiles << files[qsizetype(at)];
        } catch (const PlatformException& failure) {
            if (!isFaulty(failure))
                throw;
            iLeftOut << failure.message();
        }
        QFile::remove(alone);
    }
    if (iFiles.isEmpty())
        failWithoutFiles(iLeftOut);
}
