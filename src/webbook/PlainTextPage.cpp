#include "webbook/PlainTextPage.h"

#include "output/ExistingBook.h"
#include "util/LinkScheme.h"
#include "webbook/WebBookMetadata.h"

#include <QUrl>
#include <algorithm>
#include <cerrno>

namespace {

constexpr char style[] =
    "font:17px/1.6 "
    "Georgia,serif;color:#222;background:#fff}h1{font-size:1.7em}h1,h2,h3,h4,h5,h6{line-height:1."
    "25}"
    "ul{list-style:none;padding:0 0 0 1em}pre{overflow-x:auto;font-size:.85em}"
    "td{padding:0 1em 0 0;vertical-align:top}.note{font-size:.85em}"
    "figure{margin:1.6em 0}.crop{display:block;position:relative;overflow:hidden;max-width:100%}"
    ".crop img{position:absolute;max-width:none}"
    ".page{font:600 .7em system-ui,sans-serif;color:#666;text-decoration:none;border:1px solid "
    "#ccc;"
    "border-radius:.3em;padding:0 .4em;margin-inline-end:.4em}a{color:#1d5a86}"
    "@media(prefers-color-scheme:dark){body{background:#16181b;color:#ddd}a{color:#8cc2ea}"
    ".page{color:#aaa;border-color:#444}.crop{filter:brightness(.86)}}";

// As the player: a document's other addresses lead nowhere.
bool mayFollow(const QString& url) {
    const QUrl address(url, QUrl::StrictMode);
    return address.isValid() && LinkScheme::isFollowed(address);
}

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
                             const QString& path, Picture picture)
    : iMetadata(metadata),
      iAddress(QUrl::toPercentEncoding(book)),
      iFile(path),
      iPicture(std::move(picture)) {
    attempt([this] { return iFile.open(QIODevice::WriteOnly); });
    const BookFacts& facts = metadata.facts;
    const QByteArray language =
        escaped(facts.language.isEmpty() ? QStringLiteral("en") : facts.language);
    write(
        "<!DOCTYPE html>\n<html lang=\"" + language +
        "\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src "
        "'self' file:; style-src 'unsafe-inline'; base-uri 'none'; form-action 'none'\">\n<title>" +
        escaped(facts.title) +
        "</title>\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<link rel=\"canonical\" href=\"" +
        iAddress + ExistingBook::textPageMark + style +
        "</style>\n</head>\n<body>\n<main>\n<h1><a href=\"" + iAddress + "\">" +
        escaped(facts.title) + "</a></h1>\n");
    if (!facts.author.isEmpty())
        write("<p>" + escaped(facts.author) + "</p>\n");
}

// The link at the beginning of a page.
QByteArray PlainTextPage::mark(int position) const {
    const QString label = iMetadata.labels.value(position - 1);
    const QByteArray number = QByteArray::number(position);
    return "<a class=\"page\" id=\"page-" + number + "\" href=\"" + iAddress + "#page=" + number +
           "\">" + (label.isEmpty() ? number : escaped(label)) + "</a>";
}

// Of the pages after the last one that was begun; those that are not included have none.
QByteArray PlainTextPage::marksUpTo(int position) {
    QByteArray marks;
    while (iPosition < position) {
        if (iMetadata.isOpen(++iPosition))
            marks += mark(iPosition);
    }
    return marks;
}

void PlainTextPage::enter(Group group) {
    if (group == iGroup)
        return;
    if (iGroup != Group::none)
        write(iGroup == Group::list ? "</ul>\n" : "</table>\n");
    if (group != Group::none)
        write(group == Group::list ? "<ul>\n" : "<table>\n");
    iGroup = group;
}

QByteArray PlainTextPage::html(const ReadingRun& run, bool isPlain) const {
    QByteArray html = escaped(run.text).replace("\t", "</td><td>");
    if (!isPlain && (run.style & italicText))
        html = "<i>" + html + "</i>";
    if (!isPlain && (run.style & boldText))
        html = "<b>" + html + "</b>";
    if (run.target > 0)
        return "<a href=\"#page-" + QByteArray::number(run.target) + "\">" + html + "</a>";
    if (!run.url.isEmpty() && mayFollow(run.url))
        return "<a href=\"" + escaped(run.url) + "\">" + html + "</a>";
    return html;
}

QByteArray PlainTextPage::html(const ReadingBlock& block) {
    // Cells end within what they contain.
    const bool isPlain = block.kind == ReadingBlock::Kind::heading ||
                         block.kind == ReadingBlock::Kind::code ||
                         block.kind == ReadingBlock::Kind::tableRow;
    QByteArray text;
    for (const ReadingRun& run : block.runs)
        text += marksUpTo(run.position) + html(run, isPlain);
    return text;
}

// What of the page's picture shows the figure; it leads to the page.
QByteArray PlainTextPage::figure(const ReadingBlock& block) {
    const QByteArray marks = marksUpTo(block.position);
    const QString picture = iPicture(block.position);
    const QRectF& box = block.box;
    if (picture.isEmpty() || box.isEmpty() || block.pageSize.isEmpty())
        return marks;
    const auto percent = [](double part, double whole) {
        return QByteArray::number(100 * part / whole, 'f', 2) + '%';
    };
    // At the size of the text around it.
    constexpr double emsPerPoint = 0.1;
    const QString words = block.alternative.isEmpty() ? block.words : block.alternative;
    const QString label = iMetadata.labels.value(block.position - 1);
    const QString name = !words.isEmpty()   ? words
                         : !label.isEmpty() ? label
                                            : QString::number(block.position);
    return marks + "<a class=\"crop\" href=\"" + iAddress +
           "#page=" + QByteArray::number(block.position) +
           "\" style=\"width:" + QByteArray::number(emsPerPoint * box.width(), 'f', 1) +
           "em;aspect-ratio:" + QByteArray::number(box.width() / box.height(), 'f', 4) +
           "\"><img loading=\"lazy\" src=\"" + escaped(picture) + "\" alt=\"" + escaped(name) +
           "\" style=\"width:" + percent(block.pageSize.width(), box.width()) +
           ";left:" + percent(-box.x(), box.width()) + ";top:" + percent(-box.y(), box.height()) +
           "\"></a>";
}

void PlainTextPage::add(const ReadingBlock& block) {
    using Kind = ReadingBlock::Kind;
    const QByteArray side = block.rightToLeft ? " dir=\"rtl\">" : ">";
    if (block.kind == Kind::figure) {
        enter(Group::none);
        const QByteArray picture = figure(block);
        write("<figure>" + picture +
              (block.runs.empty() ? "" : "<figcaption" + side + html(block) + "</figcaption>") +
              "</figure>\n");
        return;
    }
    if (block.kind == Kind::listItem) {
        enter(Group::list);
        write("<li" + side + html(block) + "</li>\n");
    } else if (block.kind == Kind::tableRow) {
        enter(Group::table);
        write("<tr" + side + "<td>" + html(block) + "</td></tr>\n");
    } else {
        enter(Group::none);
        // The page's title is its only heading of the first level.
        constexpr int deepest = 6;
        QByteArray name = "p";
        if (block.kind == Kind::heading)
            name = "h" + QByteArray::number(std::min(block.level + 1, deepest));
        else if (block.kind == Kind::code)
            name = "pre";
        write("<" + name + (block.kind == Kind::footnote ? " class=\"note\"" : "") + side +
              html(block) + "</" + name + ">\n");
    }
}

Message PlainTextPage::finish() {
    enter(Group::none);
    if (const QByteArray marks = marksUpTo(int(iMetadata.numbers.size())); !marks.isEmpty())
        write("<p>" + marks + "</p>\n");
    write("</main>\n</body>\n</html>\n");
    attempt([this] { return iFile.flush(); });
    return iError;
}

void PlainTextPage::write(const QByteArray& html) {
    attempt([&] { return iFile.write(html) == html.size(); });
}
