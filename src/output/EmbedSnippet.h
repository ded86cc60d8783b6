#pragma once

#include <QSize>
#include <QString>

// The HTML that embeds a published book in another page.
class EmbedSnippet {
public:
    // A plain-text title, the size of one page in any unit, and the file name of the book's page.
    EmbedSnippet(QString title, QSize pageSize, QString fileName);

    // One line. Contains placeholder() in place of the address of the book's folder.
    QString html() const;

    static QString placeholder() { return QStringLiteral("BOOK-ADDRESS"); }

private:
    QString iTitle;
    QSize iPageSize;
    QString iFileName;
};
