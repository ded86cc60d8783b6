#include "webbook/BookAddress.h"

#include "output/BookLayout.h"

namespace {

QString encoded(const QUrl& url) {
    return QString::fromLatin1(url.toEncoded(QUrl::FullyEncoded));
}

} // namespace

std::optional<BookAddress> BookAddress::from(const QString& text) {
    QUrl url(text.trimmed(), QUrl::StrictMode);
    const bool isWeb = url.scheme() == u"http" || url.scheme() == u"https";
    if (!url.isValid() || !isWeb || url.host().isEmpty() || url.hasQuery() || url.hasFragment() ||
        !url.userInfo().isEmpty())
        return {};
    const QString path = url.path(QUrl::FullyEncoded);
    const bool isPage =
        path.endsWith(u".html", Qt::CaseInsensitive) || path.endsWith(u".htm", Qt::CaseInsensitive);
    if (!isPage && !path.endsWith(u'/'))
        url.setPath(path + u'/', QUrl::StrictMode);
    return BookAddress(url);
}

QString BookAddress::page(const QString& name) const {
    const bool isFolder = iURL.path().endsWith(u'/');
    // Servers answer for the folder with the page of this name.
    return isFolder && name != BookLayout::defaultPage ? file(name) : encoded(iURL);
}

QString BookAddress::file(const QString& path) const {
    return encoded(iURL.adjusted(QUrl::RemoveFilename)) +
           QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}
