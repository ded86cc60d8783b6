#include "ui/DocumentMerge.h"

#include "base/PlatformException.h"
#include "pdf/OfficeDocument.h"
#include "pdf/PDFReader.h"
#include "pdf/PictureFile.h"
#include "project/MergedDocument.h"
#include "system/Files.h"

#include <utility>

namespace {

bool isPDF(const QString& path) {
    return !PictureFile::isOne(path) && !OfficeDocument::isOne(path);
}

} // namespace

bool ImportSources::areMerged() const {
    return documents.size() != 1 || !pages.empty() || !isPDF(documents.front());
}

DocumentMerge::DocumentMerge(ImportSources sources, QHash<QString, QByteArray> passwords)
    : iSources(std::move(sources)), iPasswords(std::move(passwords)) {}

QString DocumentMerge::make(const std::function<bool()>& stopped) {
    const QStringList& files = iSources.documents;
    try {
        iDocument = std::make_shared<MergedDocument>(
            files, iSources.pages, [this](const QString& file) { return iPasswords.value(file); },
            Files::lastPathComponent(files.front()), stopped,
            iSources.leavesOut ? MergedDocument::Unreadable::isLeftOut
                               : MergedDocument::Unreadable::fails,
            &iSources.converted);
    } catch (const PlatformException& failure) {
        if (failure.kind() == ErrorKind::pdfPassword)
            iProtected = firstProtected(stopped);
        throw;
    }
    iSources.documents = iDocument->files();
    return iDocument->path();
}

Messages DocumentMerge::leftOut() const {
    return iDocument ? iDocument->leftOut() : Messages();
}

QString DocumentMerge::firstProtected(const std::function<bool()>& stopped) const {
    for (const QString& file : iSources.documents) {
        if (!isPDF(file))
            continue;
        try {
            PDFReader::open(file, stopped, iPasswords.value(file))->stopReader();
        } catch (const PlatformException& failure) {
            if (failure.kind() == ErrorKind::pdfPassword)
                return file;
        }
    }
    return {};
}
