#include "project/InputFiles.h"

#include "pdf/OfficeDocument.h"
#include "pdf/PictureFile.h"
#include "system/Files.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>

namespace {

bool isPDFOrPicture(const QString& path) {
    return PictureFile::isOne(path) || Files::pathExtension(path).toLower() == u"pdf";
}

// Browsers and network folders offer addresses in place of files.
Message whyMissing(const QString& path) {
    return path.contains(QStringLiteral("://"))
               ? Message::translate("InputFiles", "is not on this computer; save it here first")
               : Message::translate("PDFDocument", "no such file");
}

} // namespace

bool InputFiles::isUsable(const QString& path) {
    return isPDFOrPicture(path) || OfficeDocument::isOne(path);
}

void InputFiles::sortByName(QStringList& paths) {
    QCollator order(QLocale::English); // that of "C" knows no numbers
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(paths.begin(), paths.end(), [&](const QString& one, const QString& other) {
        return order(Files::lastPathComponent(one), Files::lastPathComponent(other));
    });
}

QStringList InputFiles::inFolder(const QString& folder) {
    QStringList files;
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        if (isPDFOrPicture(name))
            files << Files::join(folder, name);
    }
    sortByName(files);
    return files;
}

InputFiles::Chosen InputFiles::of(QStringList paths) {
    sortByName(paths);
    Chosen chosen;
    for (const QString& path : paths) {
        if (!QFileInfo::exists(path)) {
            chosen.notUsed << Message::about(path, whyMissing(path));
        } else if (QFileInfo(path).isDir()) {
            const QStringList files = inFolder(path);
            chosen.files << files;
            if (files.isEmpty())
                chosen.notUsed << Message::about(
                    path, Message::translate("InputFiles", "has no PDF and no picture"));
        } else if (isUsable(path)) {
            chosen.files << path;
        } else {
            chosen.notUsed << Message::about(
                path, Message::translate("InputFiles", "is no PDF, no picture and no document "
                                                       "that LibreOffice turns into a PDF"));
        }
    }
    return chosen;
}
