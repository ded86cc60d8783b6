#include "output/PlainTextPage.h"

#include "output/WebBookMetadata.h"
#include "platform/Files.h"

#include <QFileInfo>
#include <QUrl>

namespace {

// Begins the style of every such page, and tells it from pages that others wrote: it stays as it
// is.
constexpr char styleStart[] = "\">\n<style>body{max-width:42em;margin:2em auto;padding:0 1em;";

constexpr char style[] =
    "font:17px/1.6 "
    "Georgia,serif;color:#222;background:#fff}h1{font-size:1.7em;line-height:1.25}h2{font:600 "
    ".85em/1 system-ui,sans-serif;"
    "color:#666;margin:2.5em 0 1em;border-top:1px solid #ddd;padding-top:1em}"
    "p{white-space:pre-line}a{color:#1d5a86}"
    "@media(prefers-color-scheme:dark){body{background:#16181b;color:#ddd}a{color:#8cc2ea}"
    "h2{color:#aaa;border-color:#333}}";

QByteArray escaped(const QString& text) {
    return text.toHtmlEscaped().toUtf8();
}

} // namespace

bool PlainTextPage::isOne(const QString& file) {
    return QFileInfo(file).isFile() && Files::contents(file).contains(styleStart);
}

PlainTextPage::PlainTextPage(const WebBookMetadata& facts, const QString& book) : iMetadata(facts) {
    const QByteArray address = QUrl::toPercentEncoding(book);
    const QByteArray language =
        escaped(facts.language.isEmpty() ? QStringLiteral("en") : facts.language);
    iHTML = "<!DOCTYPE html>\n<html lang=\"" + language +
            "\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + escaped(facts.title) +
            "</title>\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
            "<link rel=\"canonical\" href=\"" +
            address + styleStart + style + "</style>\n</head>\n<body>\n<main>\n<h1><a href=\"" +
            address + "\">" + escaped(facts.title) + "</a></h1>\n";
    if (!facts.author.isEmpty())
        iHTML += "<p>" + escaped(facts.author) + "</p>\n";
}

void PlainTextPage::addPage(const QString& text) {
    const QString label = iMetadata.labels.value(iPosition);
    ++iPosition;
    const QString name = label.isEmpty() ? QString::number(iPosition) : label;
    iHTML += "<section id=\"page-" + QByteArray::number(iPosition) + "\"><h2>" + escaped(name) +
             "</h2>\n";
    if (!text.isEmpty())
        iHTML += "<p dir=\"auto\">" + escaped(text) + "</p>\n";
    iHTML += "</section>\n";
}

QByteArray PlainTextPage::html() const {
    return iHTML + "</main>\n</body>\n</html>\n";
}
