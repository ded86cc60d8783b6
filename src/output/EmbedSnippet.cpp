#include "output/EmbedSnippet.h"

#include <QUrl>

EmbedSnippet::EmbedSnippet(QString title, QSize pageSize, QString fileName)
    : iTitle(std::move(title)), iPageSize(pageSize), iFileName(std::move(fileName)) {}

QString EmbedSnippet::html() const {
    const QString file = QString::fromLatin1(QUrl::toPercentEncoding(iFileName));
    // An open book is two pages wide. Without a size, portrait paper is assumed.
    const QSize open =
        iPageSize.isEmpty() ? QSize(10, 7) : QSize(2 * iPageSize.width(), iPageSize.height());
    return QStringLiteral("<iframe src=\"%1/%2\" title=\"%3\" loading=\"lazy\" allowfullscreen "
                          "style=\"width: 100%; aspect-ratio: %4 / %5; border: 0\"></iframe>")
        .arg(placeholder(), file, iTitle.simplified().toHtmlEscaped(),
             QString::number(open.width()), QString::number(open.height()));
}
