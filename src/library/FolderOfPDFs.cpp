#include "library/FolderOfPDFs.h"

#include "base/PlatformException.h"
#include "library/BookID.h"
#include "system/NameAliases.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace {

bool isPDF(const fs::directory_entry& entry) {
    std::error_code none;
    const QByteArray ending =
        QByteArray::fromStdString(entry.path().extension().string()).toLower();
    return ending == ".pdf" && entry.is_regular_file(none);
}

[[noreturn]] void fail(const fs::path& path, const std::error_code& cause) {
    throw PlatformException(
        ErrorKind::list, Message::about(NameAliases::text(QByteArray::fromStdString(path.string())),
                                        Message::ofSystemError(cause.value())));
}

} // namespace

FolderOfPDFs::FolderOfPDFs(const QString& folder, const QString& notBelow)
    : iFolder(NameAliases::encoded(folder)) {
    std::error_code error;
    const fs::path root = fs::absolute(iFolder.toStdString());
    const fs::path excluded = fs::weakly_canonical(NameAliases::encoded(notBelow).toStdString());
    iFolder = QByteArray::fromStdString(root.string());
    fs::recursive_directory_iterator entry(root, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code none;
        const bool isHidden = entry->path().filename().string().starts_with('.');
        const bool isFolder = entry->is_directory(none);
        if (isFolder && (isHidden || fs::weakly_canonical(entry->path(), none) == excluded))
            entry.disable_recursion_pending();
        else if (!isHidden && !isFolder && isPDF(*entry))
            iPaths << QByteArray::fromStdString(entry->path().lexically_relative(root).string());
    }
    if (error)
        fail(root, error);
    std::sort(iPaths.begin(), iPaths.end());
}

bool FolderOfPDFs::next(ListedBook& book) {
    if (iNext == iPaths.size())
        return false;
    const QByteArray& path = iPaths[iNext++];
    book = {};
    book.pdf = NameAliases::text(path);
    book.path = iFolder + '/' + path;
    book.id = BookID::forPath(book.pdf);
    return true;
}
