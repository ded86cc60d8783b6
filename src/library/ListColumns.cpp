#include "library/ListColumns.h"

#include "library/BookID.h"
#include "system/NameAliases.h"

#include <QFileInfo>
#include <algorithm>

namespace {

const QString pdfColumn = QStringLiteral("pdf");
const QString idColumn = QStringLiteral("id");

// Options with a value, options with the path of a file, and options without a value.
const QStringList valueOptions{QStringLiteral("template"), QStringLiteral("style"),
                               QStringLiteral("pages"),    QStringLiteral("preview-pages"),
                               QStringLiteral("spreads"),  QStringLiteral("quality"),
                               QStringLiteral("set")};
const QStringList fileOptions{QStringLiteral("settings"), QStringLiteral("password-file")};
const QStringList switches{QStringLiteral("allow-text")};

bool isYes(const QString& value) {
    static const QStringList yes{QStringLiteral("yes"), QStringLiteral("true"),
                                 QStringLiteral("1")};
    return yes.contains(value.toLower());
}

bool isNo(const QString& value) {
    static const QStringList no{QStringLiteral("no"), QStringLiteral("false"), QStringLiteral("0")};
    return no.contains(value.toLower());
}

// Programs that write lists may not have the letters of a name as the disk has them.
QByteArray pathIn(const QByteArray& folder, const QByteArray& listed) {
    const auto whole = [&folder](const QByteArray& path) {
        return path.startsWith('/') ? path : folder + '/' + path;
    };
    if (listed.isValidUtf8())
        return whole(listed);
    const QByteArray inUTF8 = whole(NameAliases::text(listed).toUtf8());
    return QFileInfo::exists(QString::fromUtf8(inUTF8)) ? inUTF8 : whole(listed);
}

// Adds what a column says.
void take(ListedBook& book, const QString& column, const QByteArray& value,
          const QByteArray& folder) {
    const QString text = NameAliases::text(value);
    const QByteArray option = "--" + column.toLatin1();
    if (QString* fact = book.facts.named(column))
        *fact = text;
    else if (column == idColumn)
        book.id = text;
    else if (column == pdfColumn) {
        book.pdf = text;
        book.path = pathIn(folder, value);
    } else if (valueOptions.contains(column))
        book.options << option + '=' + value;
    else if (fileOptions.contains(column))
        book.options << option + '=' + pathIn(folder, value);
    else if (switches.contains(column) && isYes(text))
        book.options << option;
    else if (switches.contains(column) && !isNo(text))
        book.problem = QStringLiteral("%1 is \"%2\"; it can be yes or no").arg(column, text);
}

} // namespace

bool ListColumns::isKnown(const QString& name) {
    BookFacts facts;
    return name == pdfColumn || name == idColumn || facts.named(name) ||
           valueOptions.contains(name) || fileOptions.contains(name) || switches.contains(name);
}

ListedBook ListColumns::book(qint64 line, const std::vector<std::pair<QString, QByteArray>>& values,
                             const QByteArray& folder) {
    ListedBook book;
    book.line = line;
    for (const auto& [column, value] : values) {
        if (value.contains('\0'))
            book.problem = QStringLiteral("%1 has a byte that is zero").arg(column);
        else if (const QByteArray bytes = value.trimmed(); !bytes.isEmpty())
            take(book, column, bytes, folder);
    }
    if (book.pdf.isEmpty() && book.problem.isNull())
        book.problem = QStringLiteral("it names no PDF");
    if (book.id.isEmpty() && !book.pdf.isEmpty())
        book.id = BookID::forPath(book.pdf);
    if (const QString problem = book.id.isEmpty() ? QString() : BookID::problemWith(book.id);
        !problem.isNull()) {
        book.problem = problem;
        book.id.clear();
    }
    return book;
}
