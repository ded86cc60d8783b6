#include "output/BookName.h"

#include "platform/Files.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

namespace {

constexpr qsizetype longestName = 255; // bytes, on all file systems in use

bool isRefused(QChar letter) {
    return letter.category() == QChar::Other_Control || QStringView(u"\\<>:\"|?*").contains(letter);
}

// For Windows, in every folder and with any ending.
bool isDevice(const QString& name) {
    static const QRegularExpression device(
        QStringLiteral(
            "^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9\u00b9\u00b2\u00b3]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return device.match(name).hasMatch();
}

// Some servers look at every ending of a name, so that "a.php.jpg" is a program too. The endings of
// the second group also stand for languages and countries, and are looked at in the last place
// only.
bool isForServers(const QString& name) {
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
           !isDevice(own) && !isForServers(own) && QFile::encodeName(name).size() <= longestName;
}
