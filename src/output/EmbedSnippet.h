#pragma once

#include <QSize>
#include <QString>

// The HTML that embeds a published book in another page.
namespace EmbedSnippet {

// Stands in it for the address of the book's folder.
inline const QString placeholder = QStringLiteral("BOOK-ADDRESS");

// One line, from a plain-text title, the size of one page in any unit, and the file name of the
// book's page.
QString html(const QString& title, QSize pageSize, const QString& fileName);

} // namespace EmbedSnippet
