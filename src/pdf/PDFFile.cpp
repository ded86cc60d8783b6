#include "pdf/PDFFile.h"

#include "base/PlatformException.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>

void PDFFile::failToOpen(const QString& path, const Message& cause, ErrorKind kind) {
    throw PlatformException(kind, Message::about(path, cause));
}

void PDFFile::check(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        failToOpen(path, Message::translate("PDFDocument", "no such file"), ErrorKind::pdfFile);
    if (info.isDir())
        failToOpen(path, Message::translate("PDFDocument", "is a folder, not a PDF file"),
                   ErrorKind::pdfFile);
    // Reading a pipe or device may never end.
    if (!info.isFile())
        failToOpen(path, Message::translate("PDFDocument", "is a pipe or a device, not a PDF file"),
                   ErrorKind::pdfFile);
    errno = 0;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        failToOpen(path,
                   Message::translate("PDFDocument", "can't be read (%1)")
                       .arg(Message::ofLastSystemError()),
                   ErrorKind::pdfFile);
    if (info.size() == 0)
        failToOpen(path, Message::translate("PDFDocument", "the file is empty"));
}
