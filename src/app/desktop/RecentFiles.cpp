#include "app/desktop/RecentFiles.h"

#include "app/desktop/RecentCovers.h"

#include <QFileInfo>
#include <QSettings>
#include <algorithm>

namespace {

const QString key = QStringLiteral("recentFiles");
constexpr int maxFiles = 8;

QStringList stored() {
    return QSettings().value(key).toStringList();
}

} // namespace

QStringList RecentFiles::list() {
    QStringList files = stored();
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const QString& file) { return !QFileInfo::exists(file); }),
                files.end());
    return files;
}

void RecentFiles::add(const QString& path, const QByteArray& cover) {
    QStringList files = stored();
    const QString whole = QFileInfo(path).absoluteFilePath();
    files.removeAll(whole);
    files.prepend(whole);
    RecentCovers::keep(whole, cover);
    for (const QString& forgotten : files.mid(maxFiles))
        RecentCovers::keep(forgotten, {});
    QSettings().setValue(key, QStringList(files.mid(0, maxFiles)));
}

void RecentFiles::clear() {
    QSettings().remove(key);
    RecentCovers::clear();
}
