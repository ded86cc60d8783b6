#include "library/OpenList.h"

#include "library/FileList.h"
#include "library/FolderOfPDFs.h"

#include <QFileInfo>

std::unique_ptr<BookList> openList(const QString& path, const QString& notBelow) {
    if (QFileInfo(path).isDir())
        return std::make_unique<FolderOfPDFs>(path, notBelow);
    return std::make_unique<FileList>(path);
}
