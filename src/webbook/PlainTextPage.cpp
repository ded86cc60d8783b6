#include "webbook/PlainTextPage.h"

#include "output/ExistingBook.h"
#include "webbook/WebBookMetadata.h"

#include <QUrl>
#include <cerrno>

namespace {

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

template <typename Action>
void PlainTextPage::attempt(Action action) {
    errno = 0;
    if (iError.isNull() && !action())
        iError = errno ? Message::ofLastSystemError() : Message(iFile.errorString());
}

PlainTextPage::PlainTextPage(const WebBookMetadata& metadata, const QString& book,
                             const QString& path)
    : iMetadata(metadata), iFile(path) {
    attempt([this] { return iFile.open(QIODevice::WriteOnly); });
    const QByteArray address = QUrl::toPercentEncoding(book);
    const BookFacts& facts = metadata.facts;
    const QByteArray language =
        escaped(facts.language.isEmpty() ? QStringLiteral("en") : facts.language);
    write("<!DOCTYPE html>\n<html lang=\"" + language +
          "\">\n<head>\n<meta charset=\"utf-8\">\n"
          "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
          "'unsafe-inline'; base-uri 'none'; form-action 'none'\">\n<title>" +
          escaped(facts.title) +
          "</title>\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
          "<link rel=\"canonical\" href=\"" +
          address + ExistingBook::textPageMark + style +
          "</style>\n</head>\n<body>\n<main>\n<h1><a href=\"" + address + "\">" +
          escaped(facts.title) + "</a></h1>\n");
    if (!facts.author.isEmpty())
        write("<p>" + escaped(facts.author) + "</p>\n");
}

void PlainTextPage::addPage(const QString& text) {
    const QString label = iMetadata.labels.value(iPosition);
    ++iPosition;
    const QString name = label.isEmpty() ? QString::number(iPosition) : label;
    write("<section id=\"page-" + QByteArray::number(iPosition) + "\"><h2>" + escaped(name) +
          "</h2>\n");
    if (!text.isEmpty())
        write("<p dir=\"auto\">" + escaped(text) + "</p>\n");
    write("</section>\n");
}

Message PlainTextPage::finish() {
    write("</main>\n</body>\n</html>\n");
    attempt([this] { return iFile.flush(); });
    return iError;
}

void PlainTextPage::write(const QByteArray& html) {
    attempt([&] { return iFile.write(html) == html.size(); });
}
