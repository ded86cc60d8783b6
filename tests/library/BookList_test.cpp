#include "base/PlatformException.h"
#include "library/BookID.h"
#include "library/ListIndex.h"
#include "library/OpenList.h"
#include "support/FailureOf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>

namespace {

class BookListTest : public testing::Test {
protected:
    QString write(const QString& name, const QByteArray& content) const {
        const QString path = iFolder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }

    // The books of a list as "LINE ID|TITLE|SUBJECT|OPTIONS", or "LINE PROBLEM"; without the digits
    // of IDs that are made.
    static QStringList booksOf(const QString& path) {
        QStringList lines;
        const auto list = openList(path, "/nowhere");
        for (ListedBook book; list->next(book);) {
            const QString line = QString::number(book.line) + u' ';
            lines << line + (book.problem.isNull()
                                 ? QStringList{book.id, book.facts.title, book.facts.subject,
                                               QString::fromUtf8(book.options.join(' '))}
                                       .join(u'|')
                                 : book.problem);
        }
        return lines;
    }

    QTemporaryDir iFolder;
};

struct ListCase {
    QByteArray content;
    QStringList books;
};

} // namespace

TEST_F(BookListTest, ReadsWhatPeopleWrite) {
    const QString noID =
        "\"%1\" can't be an ID: use letters from a to z, digits, dots, hyphens and underscores, "
        "the first a letter or digit";
    const ListCase cases[] = {
        {"pdf,id,title\na.pdf,a,One\n\nb.pdf,b,Two", {"2 a|One||", "4 b|Two||"}},
        {"\xEF\xBB\xBFPDF; Id ;title\r\na.pdf;a;One, two\r\nb.pdf;b;\r\n",
         {"2 a|One, two||", "3 b|||"}},
        {"id\tpdf\ttitle\ra\ta.pdf\tOne\rb\tb.pdf\tTwo\r", {"2 a|One||", "3 b|Two||"}},
        // Quotation marks, line breaks within them, markup, Windows-1252.
        {"pdf,id,title\na.pdf,a,\"One\n\"\"1\"\"\"\nb.pdf,b,<b>5\" &amp;\nc.pdf,c,caf\xE9\n",
         {"2 a|One\n\"1\"||", "4 b|<b>5\" &amp;||", "5 c|caf\u00E9||"}},
        {"pdf,id\na.pdf,\"a\nb.pdf,b\nc.pdf,c\n",
         {"2 a quotation mark in it is never closed", "3 b|||", "4 c|||"}},
        // Line ends of several kinds, after one of which it is open.
        {"pdf,id\na.pdf,a\rb.pdf,\"b\rc.pdf,c\r\nd.pdf,d\n",
         {"2 a|||", "3 a quotation mark in it is never closed", "4 c|||", "5 d|||"}},
        {"pdf,id\na.pdf,a,1\n,b\nc.pdf\nd.pdf,d\n",
         {"2 it has 3 columns; the first line names 2", "3 it names no PDF",
          "4 " + BookID::forPath("c.pdf") + "|||", "5 d|||"}},
        {"pdf,id\na.pdf,../a\nb.pdf,a/b\nc.pdf,.c\nd.pdf,con\ne.pdf,e.\nf.pdf,\xC3\xA9\n",
         {"2 " + noID.arg("../a"), "3 " + noID.arg("a/b"), "4 " + noID.arg(".c"),
          "5 " + noID.arg("con"), "6 " + noID.arg("e."), "7 " + noID.arg("\u00E9")}},
        {"pdf,id,pages,set,set,settings,allow-text,shelf\na.pdf,a,1-3,x=1,y=2,s.txt,Yes,7\n"
         "b.pdf,b,,,,,perhaps,\n",
         {"2 a|||--pages=1-3 --set=x=1 --set=y=2 --settings=FOLDER/s.txt --allow-text",
          "3 allow-text is \"perhaps\"; it can be yes or no"}},
        {"{\"pdf\": \"a.pdf\", \"ID\": \"a\", \"subject\": [\"x\", \"y\"], \"quality\": 50}\n\n"
         "{\"pdf\": }\n[1]\n{\"pdf\": \"b.pdf\", \"id\": 7, \"title\": null, "
         "\"allow-text\": true, \"set\": [\"x=1\", \"y=2\"]}",
         {"1 a||x; y|--quality=50", "3 it is no JSON object (object is missing after a comma)",
          "4 it is no JSON object", "5 7|||--allow-text --set=x=1 --set=y=2"}},
    };
    for (const auto& [content, books] : cases) {
        QStringList expected = books;
        expected.replaceInStrings("FOLDER", iFolder.path());
        EXPECT_EQ(booksOf(write("list", content)).join('\n').toStdString(),
                  expected.join('\n').toStdString());
    }
}

TEST_F(BookListTest, ExplainsWhatIsNoList) {
    const std::pair<QByteArray, QString> cases[] = {
        {"", "is empty"},
        {"\n \n", "is empty"},
        {"file,title\na.pdf,One\n", "its first line names no column \"pdf\""},
        {QByteArray("\xFF\xFEp\0d\0f\0", 8), "is in UTF-16; save it as CSV in UTF-8"},
        {"PK\x03\x04...", "is a spreadsheet; save it as CSV"},
        {"%PDF-1.4", "is a PDF, not a list of PDFs"},
    };
    for (const auto& [content, reason] : cases) {
        const QString path = write("list", content);
        EXPECT_EQ(failureOf([&] { openList(path, {}); }).message.english(), path + ": " + reason);
    }
    const QString missing = iFolder.filePath("missing");
    EXPECT_TRUE(failureOf([&] { openList(missing, {}); }).message.english().startsWith(missing));
}

// A list must not be one half of one and one half of another.
TEST_F(BookListTest, NoticesAChangeWhileItIsRead) {
    const QString path = write("list", "pdf\na.pdf\nb.pdf\n");
    const auto list = openList(path, {});
    write("list", "pdf\na.pdf\nc.pdf\nd.pdf\n");
    const auto failure = failureOf([&] {
        for (ListedBook book; list->next(book);) {
        }
    });
    EXPECT_EQ(failure.message.english(), path + ": was changed while it was read");
    EXPECT_TRUE(failure.message.isTemporary());
}

TEST_F(BookListTest, WalksAFolder) {
    for (const char* name : {"b/x.PDF", "a.pdf", ".hidden.pdf", ".git/c.pdf", "out/d.pdf", "e.txt"})
        write(name, "");
    QFile::link(iFolder.filePath("b"), iFolder.filePath("link"));
    const auto list = openList(iFolder.path(), iFolder.filePath("out"));
    QStringList found;
    for (ListedBook book; list->next(book);) {
        EXPECT_TRUE(QFileInfo(QString::fromUtf8(book.path)).isFile());
        EXPECT_EQ(book.id, BookID::forPath(book.pdf));
        found << book.pdf;
    }
    EXPECT_EQ(found, (QStringList{"a.pdf", "b/x.PDF"}));
}

TEST_F(BookListTest, IndexFindsIDsOnSeveralLines) {
    const auto list =
        openList(write("list", "pdf,id\na.pdf,a\nb.pdf,b\nc.pdf,A\nd.pdf,\ne.pdf,a\n"), {});
    const ListIndex index(*list);
    EXPECT_EQ(index.size(), 3);
    EXPECT_EQ(index.firstOfSeveral("a"), 2);
    EXPECT_EQ(index.firstOfSeveral("b"), 0);
    EXPECT_TRUE(index.contains("B"));
    EXPECT_FALSE(index.contains("e"));
    EXPECT_EQ(index.sizeOfShard(0, 2) + index.sizeOfShard(1, 2), 3);
}

// Books of a library that was made years ago must be found again.
TEST(BookID, IsTheSameForEver) {
    EXPECT_EQ(BookID::forPath("2001/J\u00E4hrlicher Bericht.pdf"), "jahrlicher-bericht-84598ee274");
    EXPECT_EQ(BookID::forPath("\u5831\u544A.pdf"), "14f6a0b804");
    EXPECT_EQ(BookID::shardOf(BookID::digest("book-1"), 7), 3);
    EXPECT_EQ(BookID::digest("Book-1"), BookID::digest("book-1"));
}
