#pragma once

#include <QSize>
#include <QString>

// The markup that shows a published book inside another page.
class EmbedSnippet {
public:
    // A plain title, the size of one page in any unit, and the name of the book's page.
    EmbedSnippet(QString title, QSize pageSize, QString fileName);

    // One line. It has placeholder() where the address of the book's folder has to be put.
    QString html() const;

    static QString placeholder() { return QStringLiteral("BOOK-ADDRESS"); }

private:
    QString iTitle;
    QSize iPageSize;
    QString iFileName;
};
