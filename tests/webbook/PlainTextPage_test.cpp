#include "webbook/PlainTextPage.h"

#include "webbook/WebBookMetadata.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using Kind = ReadingBlock::Kind;

ReadingBlock block(Kind kind, const std::vector<ReadingRun>& runs, int level = 0) {
    ReadingBlock made;
    made.kind = kind;
    made.level = level;
    made.runs = runs;
    return made;
}

ReadingRun run(const QString& text, int position, const QString& url = {}, int target = 0) {
    return {text, position, url.isNull() ? plainText : italicText, url, target};
}

QByteArray mark(const QByteArray& number) {
    return "<a class=\"page\" id=\"page-" + number + "\" href=\"my%20book.html#page=" + number +
           "\">" + number + "</a>";
}

// What the page has of these blocks of a book with three pages.
QByteArray pageOf(const std::vector<ReadingBlock>& blocks) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("text.html");
    WebBookMetadata metadata;
    metadata.numbers = {1, 2, 3};
    const auto picture = [](int position) { return QString("files/page/%1.png").arg(position); };
    PlainTextPage page(metadata, "my book.html", path, picture);
    for (const ReadingBlock& each : blocks)
        page.add(each);
    EXPECT_EQ(page.finish().local(), QString());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray html = file.readAll();
    const QByteArray start = "</h1>\n";
    const auto first = html.indexOf(start) + start.size();
    return html.mid(first, html.indexOf("</main>") - first);
}

} // namespace

TEST(PlainTextPage, MarksWhereEachPageBegins) {
    EXPECT_EQ(pageOf({block(Kind::heading, {run("Title", 1)}, 1),
                      block(Kind::paragraph, {run("from one ", 1), run("to the next", 2)})}),
              "<h2>" + mark("1") + "Title</h2>\n<p>from one " + mark("2") + "to the next</p>\n<p>" +
                  mark("3") + "</p>\n");
}

TEST(PlainTextPage, GroupsItemsAndRows) {
    EXPECT_EQ(
        pageOf({block(Kind::listItem, {run("• a", 3)}), block(Kind::listItem, {run("• b", 3)}),
                block(Kind::tableRow, {run("c\td", 3)}), block(Kind::code, {run("e\n  <f>", 3)})}),
        "<ul>\n<li>" + mark("1") + mark("2") + mark("3") +
            "• a</li>\n<li>• b</li>\n</ul>\n<table>\n<tr><td>c</td><td>d</td></tr>\n"
            "</table>\n<pre>e\n  &lt;f&gt;</pre>\n");
}

TEST(PlainTextPage, LinksOnlyToHarmlessAddresses) {
    const auto linked = [](const QString& url) {
        return pageOf({block(Kind::paragraph, {run("x", 3, url)})}).contains("><i>x</i></a>");
    };
    EXPECT_TRUE(linked("https://example.org/?a=1&b=2"));
    EXPECT_TRUE(linked("mailto:a@example.org"));
    for (const char* url : {"javascript:alert(1)", "data:text/html,x", "file:///a", "a.html"})
        EXPECT_FALSE(linked(url)) << url;
    EXPECT_TRUE(pageOf({block(Kind::paragraph, {run("x", 3, {}, 2)})})
                    .contains("<a href=\"#page-2\">x</a>"));
}

TEST(PlainTextPage, ShowsFiguresOutOfThePicturesOfPages) {
    ReadingBlock figure = block(Kind::figure, {run("Figure <1>", 2)});
    figure.position = 2;
    figure.box = QRectF(100, 200, 300, 150);
    figure.pageSize = QSizeF(600, 800);
    figure.words = "a \"label\"";
    EXPECT_EQ(pageOf({figure}).split('\n').first().chopped(9),
              "<figure>" + mark("1") + mark("2") +
                  "<a class=\"crop\" href=\"my%20book.html#page=2\" "
                  "style=\"width:30.0em;aspect-ratio:2.0000\"><img loading=\"lazy\" "
                  "src=\"files/page/2.png\" alt=\"a &quot;label&quot;\" "
                  "style=\"width:200.00%;left:-33.33%;top:-133.33%\"></a>"
                  "<figcaption>Figure &lt;1&gt;</figcaption>");
}
