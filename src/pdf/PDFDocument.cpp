#include "pdf/PDFDocument.h"

void PDFDocument::checkUnchanged() const {
    if (FileState::of(iPath) == iState)
        return;
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
