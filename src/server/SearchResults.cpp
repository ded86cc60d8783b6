#include "server/SearchResults.h"

#include <QJsonArray>
#include <QUrl>

namespace {

constexpr char head[] =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
    "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
    "<meta name=\"robots\" content=\"noindex\">\n<title>Search</title>\n<style>"
    ":root{color-scheme:light dark}"
    "body{max-width:46em;margin:0 auto;padding:1.5em 1em;font:16px/1.5 system-ui,sans-serif}"
    "form{display:flex;gap:.5em}"
    "input{flex:1;min-width:0;font:inherit;padding:.5em .7em}button{font:inherit;padding:.5em 1em}"
    "ol{list-style:none;padding:0}li{margin:1.4em 0}li p{margin:.2em 0;overflow-wrap:anywhere}"
    ".by{color:GrayText}nav{display:flex;gap:1.5em}"
    "</style>\n</head>\n<body>\n<main>\n<h1>Search in all books</h1>\n";

QByteArray escaped(const QString& text) {
    return text.toHtmlEscaped().toUtf8();
}

QByteArray asHtml(const QStringList& snippet) {
    QByteArray html;
    for (qsizetype i = 0; i < snippet.size(); ++i) {
        const QByteArray text = escaped(snippet[i]);
        html += i % 2 == 1 ? "<mark>" + text + "</mark>" : text;
    }
    return html;
}

QByteArray asHtml(const PageHit& hit) {
    const QString name = hit.label.isEmpty() ? QString::number(hit.position) : hit.label;
    QByteArray html = "<li><a href=\"" + escaped(hit.address) + "\"><bdi>" + escaped(hit.title) +
                      "</bdi>, page " + escaped(name) + "</a>\n";
    if (!hit.author.isEmpty())
        html += "<p class=\"by\" dir=\"auto\">" + escaped(hit.author) + "</p>\n";
    return html + "<p dir=\"auto\">" + asHtml(hit.snippet) + "</p></li>\n";
}

} // namespace

QJsonObject SearchResults::asJson() const {
    QJsonArray list;
    for (const PageHit& hit : hits)
        list.append(hit.asJson());
    return {{QStringLiteral("query"), typed},       {QStringLiteral("page"), page},
            {QStringLiteral("pageSize"), pageSize}, {QStringLiteral("total"), total},
            {QStringLiteral("more"), isMore},       {QStringLiteral("hits"), list}};
}

QByteArray SearchResults::status() const {
    if (!hasIndex)
        return "The library has no index yet: <code>folvero library index</code> makes it.";
    if (isTooLong)
        return "That is too long to search for.";
    if (typed.trimmed().isEmpty())
        return {};
    const QByteArray count = QByteArray::number(total);
    if (total == 0)
        return isMore ? "Nothing was found in the time there was." : "Nothing was found.";
    return (isMore ? "More than " + count + " pages" : count + (total == 1 ? " page" : " pages")) +
           ", the best ones first.";
}

QByteArray SearchResults::linkTo(int otherPage, const QByteArray& words) const {
    QByteArray address = "search.html?q=" + QUrl::toPercentEncoding(typed);
    if (!book.isEmpty())
        address += "&amp;book=" + QUrl::toPercentEncoding(book);
    return "<a href=\"" + address + "&amp;page=" + QByteArray::number(otherPage) + "\">" + words +
           "</a>\n";
}

QByteArray SearchResults::asPage() const {
    QByteArray html = head;
    html += "<form action=\"search.html\" role=\"search\">"
            "<input type=\"search\" name=\"q\" aria-label=\"Words\" maxlength=\"" +
            QByteArray::number(SearchQuery::longest) + "\" value=\"" +
            escaped(typed.left(SearchQuery::longest)) + "\">";
    if (!book.isEmpty())
        html += "<input type=\"hidden\" name=\"book\" value=\"" + escaped(book) + "\">";
    html += "<button>Search</button></form>\n<p role=\"status\">" + status() + "</p>\n<ol>\n";
    for (const PageHit& hit : hits)
        html += asHtml(hit);
    html += "</ol>\n<nav>";
    if (page > 1)
        html += linkTo(page - 1, "Previous");
    if (page < lastPage && total > qint64(page) * pageSize)
        html += linkTo(page + 1, "Next");
    html += "</nav>\n";
    if (hasCatalogue)
        html += "<p><a href=\"./\">All books</a></p>\n";
    return html + "</main>\n</body>\n</html>\n";
}
