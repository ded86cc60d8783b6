#include "project/ConvertedDocument.h"

#include "pdf/OfficeDocument.h"
#include "system/Files.h"
#include "system/TemporaryFolders.h"

ConvertedDocument::ConvertedDocument(const QString& file, const std::function<bool()>& stopped)
    : iFile(file),
      iState(FileState::of(file)),
      iFolder(TemporaryFolders::make(QStringLiteral("Folvero"))),
      iPDF(Files::join(iFolder, QStringLiteral("document.pdf"))) {
    try {
        OfficeDocument::convert(file, iPDF, stopped);
    } catch (...) {
        TemporaryFolders::remove(iFolder);
        throw;
    }
}

ConvertedDocument::~ConvertedDocument() {
    TemporaryFolders::remove(iFolder);
}
