#include "support/BookReader.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"
#include "support/WebClient.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QUrl>
#include <csignal>
#include <future>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using WebClient::Answer;

constexpr int patienceMilliseconds = 20'000;

// "folvero serve" over a folder, until this goes.
class Served {
public:
    explicit Served(const QString& folder,
                    const QStringList& options = {QStringLiteral("--port=0")}) {
        iProcess.start(Program::path(), QStringList{QStringLiteral("serve"), folder} + options);
        while (!iProcess.canReadLine() && iProcess.waitForReadyRead(patienceMilliseconds)) {
        }
        iAddress = QUrl::fromEncoded(iProcess.readLine().trimmed());
        EXPECT_EQ(iAddress.host(), QStringLiteral("127.0.0.1"))
            << iProcess.readAllStandardError().constData();
    }
    ~Served() {
        iProcess.kill();
        iProcess.waitForFinished();
    }
    Served(const Served&) = delete;
    Served& operator=(const Served&) = delete;

    int port() const { return iAddress.port(); }
    QByteArray page() const { return iAddress.path(QUrl::FullyEncoded).toLatin1(); }
    QProcess& process() { return iProcess; }

    Answer get(const QByteArray& target, const QByteArray& moreLines = {}) const {
        return WebClient::get(port(), target, moreLines);
    }
    Answer send(const QByteArray& request) const { return WebClient::exchange(port(), request); }

private:
    QProcess iProcess;
    QUrl iAddress;
};

// A folder that looks enough like a book.
class ServeTest : public testing::Test {
protected:
    ServeTest() {
        write(QStringLiteral("index.html"), "<p>A book</p>");
        write(QStringLiteral("files/page/1.jpg"), "0123456789");
    }

    QString folder() const { return iRoot.filePath(QStringLiteral("book")); }
    void write(const QString& name, const QByteArray& content) const {
        const QString path = folder() + u'/' + name;
        QDir().mkpath(QFileInfo(path).path());
        TestFiles::write(path, content);
    }

    // What browsers have open: a connection in case that they need it, half a request, and the
    // begin of a long answer.
    static std::vector<FileDescriptor> heldConnections(int port) {
        std::vector<FileDescriptor> connections;
        for (const QByteArray& bytes :
             {QByteArray(), QByteArray("GET / HT"), WebClient::request(port, "/large.bin")}) {
            connections.push_back(WebClient::connect(port));
            EXPECT_EQ(::send(connections.back().number(), bytes.constData(),
                             std::size_t(bytes.size()), 0),
                      bytes.size());
        }
        char first = 0;
        EXPECT_EQ(::recv(connections.back().number(), &first, 1, 0), 1);
        return connections;
    }

    QTemporaryDir iRoot;
};

} // namespace

TEST_F(ServeTest, HandsOutAPublishedBookByteForByteAndManyFilesAtOnce) {
    const QString book = iRoot.filePath(QStringLiteral("Die Mühle 100%"));
    ASSERT_EQ(
        Program::run({QStringLiteral("publish"), Program::sample(QStringLiteral("outline.pdf")),
                      book, QStringLiteral("--name=Mühle & co")})
            .exitCode,
        0);
    const Served served(book);
    EXPECT_EQ(served.page(), "/M%C3%BChle%20%26%20co.html");
    const auto contents = BookReader::contentsBeneath(book);
    ASSERT_GT(contents.size(), 9U);
    std::map<QString, std::future<Answer>> answers;
    for (const auto& [name, content] : contents) {
        const QByteArray target = '/' + QUrl::toPercentEncoding(name, "/");
        answers[name] =
            std::async(std::launch::async, [&served, target] { return served.get(target); });
    }
    for (const auto& [name, content] : contents) {
        SCOPED_TRACE(name.toStdString());
        const Answer answer = answers[name].get();
        EXPECT_EQ(answer.status, 200);
        EXPECT_TRUE(answer.body == content);
        EXPECT_EQ(answer.header("content-length").toLongLong(), content.size());
        EXPECT_EQ(answer.header("x-content-type-options"), "nosniff");
        EXPECT_EQ(answer.header("cache-control"), "no-cache");
    }
    EXPECT_TRUE(served.get(served.page() + "?reader=1").body.contains("<title>"));
}

TEST_F(ServeTest, OpensTheBooksPageAmongOthers) {
    ASSERT_EQ(
        Program::run({QStringLiteral("publish"), Program::sample(QStringLiteral("outline.pdf")),
                      folder(), QStringLiteral("--name=zebra"), QStringLiteral("--type=web"),
                      QStringLiteral("--force")})
            .exitCode,
        0);
    EXPECT_EQ(Served(folder()).page(), "/zebra.html");
    ASSERT_TRUE(QFile::remove(folder() + QStringLiteral("/index.html")));
    EXPECT_EQ(Served(folder()).page(), "/zebra.html"); // and not text.html
}

TEST_F(ServeTest, TellsWhatKindOfFileItIs) {
    const std::pair<const char*, const char*> types[] = {
        {"a.html", "text/html; charset=utf-8"},
        {"a.js", "text/javascript; charset=utf-8"},
        {"a.css", "text/css; charset=utf-8"},
        {"a.json", "application/json; charset=utf-8"},
        {"a.webmanifest", "application/manifest+json; charset=utf-8"},
        {"a.svg", "image/svg+xml; charset=utf-8"},
        {"a.xml", "application/xml; charset=utf-8"},
        {"a.txt", "text/plain; charset=utf-8"},
        {"a.webp", "image/webp"},
        {"a.JPG", "image/jpeg"},
        {"a.png", "image/png"},
        {"a.gif", "image/gif"},
        {"a.mp3", "audio/mpeg"},
        {"a.swf", "application/x-shockwave-flash"},
        {"a.bin", "application/octet-stream"},
        {"html", "application/octet-stream"},
    };
    for (const auto& [name, type] : types)
        write(QString::fromLatin1(name), {});
    const Served served(folder());
    EXPECT_EQ(served.page(), "/");
    for (const auto& [name, type] : types) {
        const Answer answer = served.get(QByteArray("/") + name);
        EXPECT_EQ(answer.status, 200) << name;
        EXPECT_EQ(answer.header("content-type"), type) << name;
    }
}

TEST_F(ServeTest, AnswersForPartsOfAFile) {
    const Served served(folder());
    const struct {
        QByteArray range;
        int status;
        const char* body;
        const char* contentRange;
    } cases[] = {
        {"bytes=2-4", 206, "234", "bytes 2-4/10"},
        {"bytes=7-", 206, "789", "bytes 7-9/10"},
        {"bytes=-3", 206, "789", "bytes 7-9/10"},
        {"bytes=-30", 206, "0123456789", "bytes 0-9/10"},
        {"bytes=8-4000000000", 206, "89", "bytes 8-9/10"},
        {"bytes=10-", 416, "Range not satisfiable\n", "bytes */10"},
        {"bytes=-0", 416, "Range not satisfiable\n", "bytes */10"},
        {"bytes=0-1,4-5", 200, "0123456789", ""},
        {"bytes=0-1\r\nIf-Range: \"another\"", 200, "0123456789", ""},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.range.constData());
        const Answer answer = served.get("/files/page/1.jpg", "Range: " + item.range + "\r\n");
        EXPECT_EQ(answer.status, item.status);
        EXPECT_EQ(answer.body, item.body);
        EXPECT_EQ(answer.header("content-range"), item.contentRange);
        EXPECT_EQ(answer.header("content-length").toInt(), answer.body.size());
    }
    // One that fits no error's text.
    const Answer missing = served.get("/missing", "Range: bytes=500-\r\n");
    EXPECT_EQ(missing.status, 404);
    EXPECT_EQ(missing.body, "Not found\n");
}

TEST_F(ServeTest, SendsAFileAgainOnlyAfterItChanged) {
    const Served served(folder());
    const Answer first = served.get("/");
    const QByteArray tag = first.header("etag");
    ASSERT_FALSE(tag.isEmpty());
    const QByteArray conditions[] = {
        "If-None-Match: " + tag + "\r\n", "If-None-Match: \"other\", W/" + tag + "\r\n",
        "If-Modified-Since: " + first.header("last-modified") + "\r\n"};
    for (const QByteArray& condition : conditions) {
        SCOPED_TRACE(condition.constData());
        const Answer answer = served.get("/", condition);
        EXPECT_EQ(answer.status, 304);
        EXPECT_TRUE(answer.body.isEmpty());
        EXPECT_EQ(answer.header("etag"), tag);
    }
    EXPECT_EQ(served.get("/", "If-None-Match: \"other\"\r\n" + conditions[2]).status, 200);
    write(QStringLiteral("index.html"), "<p>B book</p>");
    const Answer changed = served.get("/", conditions[0]);
    EXPECT_EQ(changed.status, 200);
    EXPECT_EQ(changed.body, "<p>B book</p>");
}

TEST_F(ServeTest, AnswersHeadWithoutContent) {
    const Served served(folder());
    const Answer answer =
        served.send(WebClient::request(served.port(), "/files/page/1.jpg", {}, "HEAD"));
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.header("content-length"), "10");
    EXPECT_EQ(answer.header("content-type"), "image/jpeg");
    EXPECT_TRUE(answer.body.isEmpty());
}

TEST_F(ServeTest, AnswersThisMachineOnly) {
    const Served served(folder());
    const QByteArray port = QByteArray::number(served.port());
    for (const QByteArray& host :
         {QByteArray("127.0.0.1"), "127.0.0.1:" + port, QByteArray("localhost"),
          "LocalHost:" + port, QByteArray("[::1]"), "[::1]:" + port})
        EXPECT_EQ(served.send("GET / HTTP/1.1\r\nHost: " + host + "\r\n\r\n").status, 200)
            << host.constData();
    for (const QByteArray& lines :
         {QByteArray(), QByteArray("Host: \r\n"), "Host: book.example:" + port + "\r\n",
          QByteArray("Host: localhost.book.example\r\n"), QByteArray("Host: 127.0.0.1.\r\n"),
          QByteArray("Host: localhost:80:80\r\n"), QByteArray("Host: x@localhost\r\n"),
          QByteArray("Host: localhost\r\nHost: book.example\r\n")}) {
        const Answer answer = served.send("GET / HTTP/1.1\r\n" + lines + "\r\n");
        EXPECT_EQ(answer.status, 403) << lines.constData();
        EXPECT_FALSE(answer.body.contains("A book"));
    }
    // All of 127.0.0.0/8 is this machine; a server for the whole network would answer there too.
    EXPECT_FALSE(WebClient::connect(served.port(), "127.0.0.2").isOpen());
}

TEST_F(ServeTest, OnlyReads) {
    const Served served(folder());
    for (const char* method : {"POST", "PUT", "DELETE", "PATCH", "OPTIONS", "TRACE", "CONNECT"}) {
        const Answer answer = served.send(
            WebClient::request(served.port(), "/", "Content-Length: 4\r\n", method) + "text");
        EXPECT_EQ(answer.status, 405) << method;
        EXPECT_EQ(answer.header("allow"), "GET, HEAD") << method;
        // What follows must not count as a request.
        EXPECT_EQ(answer.header("connection"), "close") << method;
    }
    EXPECT_EQ(served.get("/").body, "<p>A book</p>");
}

TEST_F(ServeTest, StaysInTheFolderAndShowsNothingHidden) {
    TestFiles::write(iRoot.filePath(QStringLiteral("secret.txt")), "secret");
    QDir().mkpath(iRoot.filePath(QStringLiteral("book2")));
    TestFiles::write(iRoot.filePath(QStringLiteral("book2/secret.txt")), "secret");
    write(QStringLiteral(".hidden/secret.txt"), "secret");
    write(QStringLiteral(".secret.txt"), "secret");
    write(QStringLiteral("files\\secret.txt"), "secret");
    const auto link = [this](const char* target, const char* name) {
        ASSERT_TRUE(
            QFile::link(QString::fromLatin1(target), folder() + u'/' + QString::fromLatin1(name)));
    };
    link("../secret.txt", "out.txt");
    link("../book2", "out");
    link("/etc", "etc");
    link("loop.txt", "loop.txt");
    link("files/page/1.jpg", "cover.jpg");
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder() + QStringLiteral("/pipe.txt")), 0600), 0);

    const Served served(folder());
    EXPECT_EQ(served.get("/cover.jpg").body, "0123456789");
    EXPECT_EQ(served.get("//files/%70age/1.jpg").body, "0123456789");
    for (const char* target : {"/../secret.txt",
                               "/files/../../secret.txt",
                               "/%2e%2e/secret.txt",
                               "/.%2E/secret.txt",
                               "/files/../index.html",
                               "/..%2fsecret.txt",
                               "/files%2Fpage/1.jpg",
                               "/files%5csecret.txt",
                               "/files\\secret.txt",
                               "/..\\secret.txt",
                               "/..%5csecret.txt",
                               "/%252e%252e/secret.txt",
                               "/index.html%00",
                               "/index.html%00.jpg",
                               "/.hidden/secret.txt",
                               "/%2ehidden/secret.txt",
                               "/.secret.txt",
                               "/./index.html",
                               "/out.txt",
                               "/out/secret.txt",
                               "/etc/passwd",
                               "/loop.txt",
                               "/pipe.txt",
                               "/files",
                               "/files/",
                               "/files/page/",
                               "/files/page/1.jpg/",
                               "/missing.jpg",
                               "index.html",
                               "http://127.0.0.1/index.html",
                               "*"}) {
        const Answer answer = served.get(target);
        EXPECT_EQ(answer.status, 404) << target;
        EXPECT_EQ(answer.body, "Not found\n") << target;
    }
}

TEST_F(ServeTest, EndsAtOnceWhateverBrowsersHoldOpen) {
    QFile large(folder() + QStringLiteral("/large.bin"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(qint64(1) << 30));
    for (const int signal : {SIGINT, SIGTERM}) {
        for (const bool busy : {false, true}) {
            Served served(folder());
            const auto connections =
                busy ? heldConnections(served.port()) : std::vector<FileDescriptor>();
            QElapsedTimer clock;
            clock.start();
            ::kill(pid_t(served.process().processId()), signal);
            const auto result = Program::finish(served.process());
            EXPECT_LT(clock.elapsed(), 1000);
            EXPECT_EQ(result.exitCode, 0);
            EXPECT_EQ(result.errors, "Ctrl-C ends it\n");
        }
    }
}

TEST_F(ServeTest, TakesAnotherPortOnlyWhenNoneWasNamed) {
    const Served first(folder(), {});
    const Served second(folder(), {});
    EXPECT_GE(first.port(), 8000);
    EXPECT_GT(second.port(), first.port());
    EXPECT_LE(second.port(), 8020);
    const auto taken = Program::run({QStringLiteral("serve"), folder(), QStringLiteral("--port"),
                                     QString::number(first.port())});
    EXPECT_EQ(taken.exitCode, 1);
    EXPECT_EQ(taken.errors,
              "folvero: port " + QByteArray::number(first.port()) + ": Address already in use\n");
    EXPECT_TRUE(taken.output.isEmpty());
    EXPECT_EQ(first.get("/").status, 200);
}

TEST_F(ServeTest, TakesItsPortAgainRightAfterItEnded) {
    int port = 0;
    {
        Served served(folder());
        port = served.port();
        EXPECT_EQ(served.get("/").status, 200);
        ::kill(pid_t(served.process().processId()), SIGINT);
        EXPECT_EQ(Program::finish(served.process()).exitCode, 0);
    }
    const Served again(folder(), {QStringLiteral("--port"), QString::number(port)});
    EXPECT_EQ(again.port(), port);
}

TEST_F(ServeTest, TellsWhatIsWrongWithTheFolder) {
    const QString empty = iRoot.filePath(QStringLiteral("empty"));
    QDir().mkpath(empty);
    const struct {
        QString folder;
        int exitCode;
        const char* cause;
    } cases[] = {
        {iRoot.filePath(QStringLiteral("missing")), 1, "no such folder"},
        {folder() + QStringLiteral("/index.html"), 1, "is a file, not a folder"},
        {empty, 1, "no book in it"},
        {QString(), 2, "the name of the book's folder is empty"},
    };
    for (const auto& item : cases) {
        const auto result = Program::run({QStringLiteral("serve"), item.folder});
        SCOPED_TRACE(result.errors.constData());
        EXPECT_EQ(result.exitCode, item.exitCode);
        EXPECT_TRUE(result.errors.contains(item.cause));
        EXPECT_TRUE(result.errors.contains(item.folder.toUtf8()));
        EXPECT_EQ(result.errors.count('\n'), 1);
        EXPECT_TRUE(result.output.isEmpty());
    }
    // An administrator may read everything, unless he goes without that right.
    ASSERT_EQ(::chmod(QFile::encodeName(empty).constData(), 0), 0);
    QStringList words{Program::path(), QStringLiteral("serve"), empty};
    if (::geteuid() == 0)
        words = QStringList{QStringLiteral("setpriv"),
                            QStringLiteral("--inh-caps=-dac_override,-dac_read_search"),
                            QStringLiteral("--bounding-set=-dac_override,-dac_read_search")} +
                words;
    const auto unreadable = Program::runOther(words.takeFirst(), words);
    EXPECT_EQ(unreadable.exitCode, 1);
    EXPECT_EQ(unreadable.errors,
              "folvero: " + empty.toUtf8() + ": the folder can't be read (Permission denied)\n");
    for (const char* port : {"70000", "-1", "web"})
        EXPECT_EQ(Program::run({QStringLiteral("serve"), folder(),
                                QStringLiteral("--port=") + QString::fromLatin1(port)})
                      .exitCode,
                  2);
}
