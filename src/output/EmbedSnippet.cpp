#include "output/EmbedSnippet.h"

#include <QUrl>

QString EmbedSnippet::html(const QString& title, QSize pageSize, const QString& fileName,
                           const QString& address) {
    const QString page =
        !address.isEmpty()
            ? address.toHtmlEscaped()
            : placeholder + u'/' + QString::fromLatin1(QUrl::toPercentEncoding(fileName));
    // An open book is two pages wide. Without a size, portrait paper is assumed.
    const QSize open =
        pageSize.isEmpty() ? QSize(10, 7) : QSize(2 * pageSize.width(), pageSize.height());
    return QStringLiteral("<iframe src=\"%1\" title=\"%2\" loading=\"lazy\" allowfullscreen "
                          "style=\"width: 100%; aspect-ratio: %3 / %4; border: 0\"></iframe>")
        .arg(page, title.simplified().toHtmlEscaped(), QString::number(open.width()),
             QString::number(open.height()));
}
