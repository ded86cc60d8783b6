#include "output/BookName.h"

#include "platform/Files.h"

#include <QFile>
#include <algorithm>

namespace {

constexpr qsizetype longestName = 255; // bytes, on all file systems in use

bool isControl(QChar letter) {
    return letter.category() == QChar::Other_Control;
}

} // namespace

QString BookName::withExtensionOf(const QString& name, const QString& path) {
    return name + u'.' + Files::pathExtension(path);
}

bool BookName::staysInFolder(const QString& name) {
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
           !name.contains(QChar::Null);
}

bool BookName::isHarmless(const QString& name) {
    return staysInFolder(name) && !name.startsWith(u'.') && !name.contains(u'\\') &&
           std::none_of(name.begin(), name.end(), isControl) &&
           QFile::encodeName(name).size() <= longestName;
}
