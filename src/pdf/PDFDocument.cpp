#include "pdf/PDFDocument.h"

#include "system/Files.h"

void PDFDocument::setOpenedState(const FileState& state, const QByteArray& digest) {
    iState = state;
    iDigest = digest;
}

void PDFDocument::rememberContent() {
    if (!iDigest.isEmpty())
        return;
    const QByteArray digest = Files::digest(iPath);
    if (FileState::of(iPath) == iState)
        iDigest = digest;
}

void PDFDocument::checkUnchanged() const {
    const FileState now = FileState::of(iPath);
    if (now == iState)
        return;
    if (now.isAsWritten(iState) && !iDigest.isEmpty() && Files::digest(iPath) == iDigest) {
        iState = now;
        return;
    }
    throw PlatformException(
        ErrorKind::pdfChanged,
        Message::translate("PDFDocument", "the file was changed after reading it had begun")
            .temporary());
}

bool PDFDocument::isRightToLeft() const {
    try {
        return viewing().rightToLeft;
    } catch (const PlatformException&) {
        return false;
    }
}

void PDFDocument::requirePage(int index) const {
    if (index >= 0 && index < pageCount())
        return;
    throw PlatformException(
        ErrorKind::pageMissing,
        Message::translate("PDFDocument", "page %1 does not exist; the document has %2")
            .arg(QString::number(qint64(index) + 1), QString::number(pageCount())));
}
