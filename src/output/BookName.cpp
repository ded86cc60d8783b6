#include "output/BookName.h"

#include "system/Files.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

namespace {

constexpr qsizetype maxNameBytes = 255; // bytes, on all common file systems

bool isRefused(QChar letter) {
    return letter.category() == QChar::Other_Control || QStringView(u"\\<>:\"|?*").contains(letter);
}

// On Windows, in every folder and with any extension.
bool isDevice(const QString& name) {
    static const QRegularExpression device(
        QStringLiteral(
            "^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9\u00b9\u00b2\u00b3]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return device.match(name).hasMatch();
}

// Some servers check every extension of a name, so that "a.php.jpg" is executed too. The extensions
// of the second group are also language and country codes, and are checked only at the end.
bool isServerFile(const QString& name) {
    static const QRegularExpression endings(
        QStringLiteral(
            "\\.(php\\d*|phps|pht|phtml?|phar|cgi|fcgi|shtml?|stm|asp|aspx|asa|asax|ascx|"
            "ashx|asmx|axd|cshtml|vbhtml|svc|jsp|jspx|cfm|cfml|cfc)(\\.|$)"
            "|\\.(pl|plx|py|rb|sh|lua|config|conf|ini|var|asis)$"),
        QRegularExpression::CaseInsensitiveOption);
    return endings.match(name).hasMatch();
}

} // namespace

QString BookName::withExtensionOf(const QString& name, const QString& path) {
    return name + u'.' + Files::pathExtension(path);
}

bool BookName::staysInFolder(const QString& name) {
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
           !name.contains(QChar::Null);
}

bool BookName::isSafe(const QString& name) {
    const QString own = name.endsWith(u'.') ? name.chopped(1) : name;
    return staysInFolder(own) && !own.startsWith(u'.') && !own.endsWith(u'.') &&
           !own.endsWith(u' ') && std::none_of(own.begin(), own.end(), isRefused) &&
           !isDevice(own) && !isServerFile(own) && QFile::encodeName(name).size() <= maxNameBytes;
}
