#include "pdf/PDFFile.h"

#include "base/PlatformException.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>

void PDFFile::failToOpen(const QString& path, const Message& cause) {
    throw PlatformException(ErrorKind::pdfOpen, Message::about(path, cause));
}

void PDFFile::check(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        failToOpen(path, Message::translate("PDFDocument", "no such file"));
    if (info.isDir())
        failToOpen(path, Message::translate("PDFDocument", "is a folder, not a PDF file"));
    // Reading a pipe or device may never end.
    if (!info.isFile())
        failToOpen(path,
                   Message::translate("PDFDocument", "is a pipe or a device, not a PDF file"));
    errno = 0;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        failToOpen(path, Message::translate("PDFDocument", "can't be read (%1)")
                             .arg(Message::ofLastSystemError()));
    if (info.size() == 0)
        failToOpen(path, Message::translate("PDFDocument", "the file is empty"));
}
