#pragma once

#include <QSize>
#include <QString>

// The HTML that embeds a published book in another page.
namespace EmbedSnippet {

// Stands in it for the address of the book's folder.
inline const QString placeholder = QStringLiteral("BOOK-ADDRESS");

// One line, from a plain-text title, the size of one page in any unit, the file name of the book's
// page, and that page's address; empty where it is unknown.
QString html(const QString& title, QSize pageSize, const QString& fileName, const QString& address);

} // namespace EmbedSnippet
