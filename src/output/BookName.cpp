#include "output/BookName.h"

#include "platform/Files.h"

QString BookName::withExtensionOf(const QString& name, const QString& path) {
    return name + u'.' + Files::pathExtension(path);
}

bool BookName::staysInFolder(const QString& name) {
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
           !name.contains(QChar::Null);
}
