#include "cli/BookTest.h"
#include "cli/Served.h"

#include <QRegularExpression>
#include <QUrl>
#include <array>
#include <csignal>
#include <future>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>

namespace {

// A folder that looks enough like a book.
class ServeTest : public BookTest {
protected:
    ServeTest() {
        write("index.html", "<p>A book</p>");
        write("files/page/1.jpg", "0123456789");
    }

    void write(const QString& name, const QByteArray& content) const {
        TestFiles::write(file(name), content);
    }
};

} // namespace

TEST_F(ServeTest, HandsOutAPublishedBookByteForByteAndManyFilesAtOnce) {
    const QString folder = path("Die Mühle 100%");
    const auto result =
        Program::run({"publish", Program::sample("outline.pdf"), folder, "--name=Mühle & co"});
    ASSERT_EQ(result.exitCode, 0) << result.errors.constData();
    const Served served(folder);
    EXPECT_EQ(served.page, "/M%C3%BChle%20%26%20co.html");
    const auto files = BookReader::contentsBeneath(folder);
    ASSERT_GT(files.size(), 9U);
    std::map<QString, std::future<Answer>> answers;
    for (const auto& [name, content] : files) {
        const QByteArray target = '/' + QUrl::toPercentEncoding(name, "/");
        answers[name] =
            std::async(std::launch::async, [&served, target] { return served.get(target); });
    }
    for (const auto& [name, content] : files) {
        SCOPED_TRACE(name.toStdString());
        const Answer answer = answers[name].get();
        EXPECT_EQ(answer.status, 200);
        EXPECT_TRUE(answer.body == content);
        EXPECT_EQ(answer.header("content-length").toLongLong(), content.size());
        EXPECT_EQ(answer.header("x-content-type-options"), "nosniff");
        EXPECT_EQ(answer.header("cache-control"), "no-cache");
        EXPECT_EQ(answer.header("cross-origin-resource-policy"), "same-origin");
        EXPECT_EQ(answer.header("content-security-policy").isEmpty(), !name.endsWith(".svg"));
    }
    EXPECT_TRUE(served.get(served.page + "?reader=1").body.contains("<title>"));
}

TEST_F(ServeTest, OpensTheBooksPageAmongOthers) {
    published("outline.pdf", {"--name=zebra", "--type=web", "--force"});
    EXPECT_EQ(Served(book()).page, "/zebra.html");
    ASSERT_TRUE(QFile::remove(file("index.html")));
    EXPECT_EQ(Served(book()).page, "/zebra.html"); // and not text.html
    TestFiles::write(path("others/page.html"), "not of a book");
    EXPECT_EQ(Served(path("others")).page, "/page.html");
}

TEST_F(ServeTest, TellsWhatKindOfFileItIs) {
    // "+" stands for the character set of texts.
    const QByteArrayList types =
        QByteArray(
            "a.html text/html+,a.css text/css+,a.js text/javascript+,a.json application/json+,"
            "a.webmanifest application/manifest+json+,a.xml application/xml+,a.txt text/plain+,"
            "a.svg image/svg+xml+,a.JPG image/jpeg,a.jpeg image/jpeg,a.png image/png,a.gif "
            "image/gif,"
            "a.webp image/webp,a.ico image/vnd.microsoft.icon,a.mp3 audio/mpeg,a.wav audio/wav,"
            "a.ogg audio/ogg,a.oga audio/ogg,a.m4a audio/mp4,a.aac audio/aac,a.flac audio/flac,"
            "a.swf application/x-shockwave-flash,html application/octet-stream")
            .split(',');
    const Served served(book());
    EXPECT_EQ(served.page, "/");
    for (const QByteArray& each : types) {
        const QByteArray name = each.left(each.indexOf(' '));
        write(name, {});
        QByteArray type = served.get('/' + name).header("content-type");
        EXPECT_EQ(name + ' ' + type.replace("; charset=utf-8", "+"), each);
    }
}

TEST_F(ServeTest, AnswersForPartsOfAFile) {
    const Served served(book());
    const struct {
        QByteArray range;
        int status;
        const char* body;
        const char* contentRange;
    } cases[] = {
        {"bytes=2-4", 206, "234", "bytes 2-4/10"},
        {"bytes=0-0", 206, "0", "bytes 0-0/10"},
        {"bytes=7-", 206, "789", "bytes 7-9/10"},
        {"bytes=-3", 206, "789", "bytes 7-9/10"},
        {"bytes=8-4000000000", 206, "89", "bytes 8-9/10"},
        {"bytes=10-", 416, "Range not satisfiable\n", "bytes */10"},
        {"bytes=-0", 416, "Range not satisfiable\n", "bytes */10"},
        {"bytes=0-1\r\nIf-Range: \"another\"", 200, "0123456789", ""},
        {"bytes=abc", 200, "0123456789", ""},
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
    const Served served(book());
    const Answer first = served.get("/");
    const QByteArray tag = first.header("etag");
    const QByteArray since = "If-Modified-Since: " + first.header("last-modified") + "\r\n";
    ASSERT_FALSE(tag.isEmpty());
    EXPECT_TRUE(QRegularExpression("^\\w{3}, \\d\\d \\w{3} \\d{4} [\\d:]{8} GMT$")
                    .match(first.header("last-modified"))
                    .hasMatch());
    for (const QByteArray& condition :
         {"If-None-Match: " + tag + "\r\n", "If-None-Match: \"other\", W/" + tag + "\r\n", since}) {
        SCOPED_TRACE(condition.constData());
        const Answer answer = served.get("/", condition);
        EXPECT_EQ(answer.status, 304);
        EXPECT_TRUE(answer.body.isEmpty());
        EXPECT_EQ(answer.header("etag"), tag);
    }
    EXPECT_EQ(served.get("/", "If-None-Match: \"other\"\r\n" + since).status, 200);
    write("index.html", "<p>B book</p>");
    EXPECT_EQ(served.get("/", "If-None-Match: " + tag + "\r\n").body, "<p>B book</p>");
}

TEST_F(ServeTest, AnswersThisMachineOnly) {
    const Served served(book());
    const QByteArray port = ':' + QByteArray::number(served.port);
    for (const QByteArray& host : {QByteArray("127.0.0.1"), "127.0.0.1" + port, "LocalHost" + port,
                                   QByteArray("[::1]"), "[::1]" + port})
        EXPECT_EQ(served.send("GET / HTTP/1.1\r\nHost: " + host + "\r\n\r\n").status, 200)
            << host.constData();
    for (const QByteArray& lines :
         {QByteArray(), QByteArray("Host: \r\n"), "Host: book.example" + port + "\r\n",
          QByteArray("Host: localhost.book.example\r\n"), QByteArray("Host: 127.0.0.1.\r\n"),
          QByteArray("Host: localhost:80:80\r\n"), QByteArray("Host: x@localhost\r\n"),
          QByteArray("Host: localhost\r\nHost: book.example\r\n")}) {
        const Answer answer = served.send("GET / HTTP/1.1\r\n" + lines + "\r\n");
        EXPECT_EQ(answer.status, 403) << lines.constData();
        EXPECT_FALSE(answer.body.contains("A book"));
    }
    // All of 127.0.0.0/8 is this machine; a server for the whole network would answer there too.
    EXPECT_FALSE(served.connect("127.0.0.2").isOpen());
}

TEST_F(ServeTest, OnlyReads) {
    const Served served(book());
    for (const char* method : {"POST", "PUT", "DELETE", "PATCH", "OPTIONS", "TRACE", "CONNECT"}) {
        const Answer answer =
            served.send(served.request(method, "/", "Content-Length: 4\r\n") + "text");
        EXPECT_EQ(answer.status, 405) << method;
        EXPECT_EQ(answer.header("allow"), "GET, HEAD") << method;
        // What follows must not count as a request.
        EXPECT_EQ(answer.header("connection"), "close") << method;
    }
    const Answer head = served.send(served.request("HEAD", "/files/page/1.jpg"));
    EXPECT_EQ(head.status, 200);
    EXPECT_EQ(head.header("content-length"), "10");
    EXPECT_EQ(head.header("content-type"), "image/jpeg");
    EXPECT_TRUE(head.body.isEmpty());
}

TEST_F(ServeTest, StaysInTheFolderAndShowsNothingHidden) {
    for (const char* name : {"../secret.txt", "../book2/secret.txt", ".hidden/secret.txt",
                             ".secret.txt", "files\\secret.txt"})
        write(name, "secret");
    const std::pair<const char*, const char*> links[] = {{"../secret.txt", "out.txt"},
                                                         {"../book2", "out"},
                                                         {"/etc", "etc"},
                                                         {"loop.txt", "loop.txt"},
                                                         {"files/page/1.jpg", "cover.jpg"}};
    for (const auto& [target, name] : links)
        ASSERT_TRUE(QFile::link(target, file(name)));
    ASSERT_EQ(::mkfifo(QFile::encodeName(file("pipe.txt")).constData(), 0600), 0);

    const Served served(book());
    EXPECT_EQ(served.get("/cover.jpg").body, "0123456789");
    EXPECT_EQ(served.get("//files/%70age/1.jpg").body, "0123456789");
    const QByteArray refused =
        "/../secret.txt /files/../../secret.txt /%2e%2e/secret.txt /.%2E/secret.txt "
        "/files/../index.html /..%2fsecret.txt /files%2Fpage/1.jpg /files%5csecret.txt "
        "/files\\secret.txt /..\\secret.txt /..%5csecret.txt /%252e%252e/secret.txt "
        "/index.html%00 /index.html%00.jpg /.hidden/secret.txt /%2ehidden/secret.txt /.secret.txt "
        "/./index.html /out.txt /out/secret.txt /etc/passwd /loop.txt /pipe.txt /files /files/ "
        "/files/page/ /files/page/1.jpg/ /missing.jpg index.html http://127.0.0.1/index.html *";
    for (const QByteArray& target : refused.split(' ')) {
        const Answer answer = served.get(target);
        EXPECT_EQ(answer.status, 404) << target.constData();
        EXPECT_EQ(answer.body, "Not found\n") << target.constData();
    }
}

TEST_F(ServeTest, LetsAllConnectionsOfABrowserWait) {
    const Served served(book());
    served.signal(SIGSTOP);
    std::vector<FileDescriptor> waiting;
    for (int i = 0; i < 40; ++i) {
        waiting.push_back(served.connect());
        ASSERT_TRUE(waiting.back().isOpen()) << i;
    }
}

// Connections without a request hold no other up, and end, however slowly they go on.
TEST_F(ServeTest, KeepsSlowConnectionsApart) {
    const Served served(book());
    std::vector<FileDescriptor> slow;
    for (int i = 0; i < 40; ++i)
        slow.push_back(served.connect());
    const FileDescriptor trickling = served.connect();
    const timeval pause{0, 300'000};
    ::setsockopt(trickling.number(), SOL_SOCKET, SO_RCVTIMEO, &pause, sizeof(pause));
    EXPECT_EQ(served.get("/files/page/1.jpg").status, 200);
    char byte = 0;
    bool isOpen = true;
    for (int i = 0; i < 100 && isOpen; ++i) {
        ::send(trickling.number(), "G", 1, MSG_NOSIGNAL);
        isOpen = ::recv(trickling.number(), &byte, 1, 0) < 0 && errno == EAGAIN;
    }
    EXPECT_FALSE(isOpen);
}

// More connections than there are threads, and then more than may wait.
TEST_F(ServeTest, LetsNoClientKeepOthersOut) {
    QFile large(file("large.bin"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(qint64(4) << 30));
    const Served served(book(), {"--port=0"}, [] {
        const rlimit few{256, 256};
        ::setrlimit(RLIMIT_NOFILE, &few);
    });
    const QByteArray request = served.request("GET", "/large.bin");
    std::vector<FileDescriptor> unread;
    for (int i = 0; i < 48 + 64 + 16; ++i) {
        unread.push_back(served.connect());
        ::send(unread.back().number(), request.constData(), std::size_t(request.size()), 0);
    }
    EXPECT_EQ(served.send(request).status, 503);
    EXPECT_EQ(served.send(served.request("GET", "/"), "127.0.0.2").status, 200);
}

TEST_F(ServeTest, EndsWhateverBrowsersHoldOpen) {
    QFile large(file("large.bin"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(qint64(4) << 30));
    for (const int signal : {SIGINT, SIGTERM}) {
        Served served(book());
        // A connection in case that it is needed, half a request, and a long answer.
        const FileDescriptor idle = served.connect();
        const FileDescriptor asking = served.connect();
        const FileDescriptor reading = served.connect();
        const QByteArray request = served.request("GET", "/large.bin");
        ASSERT_GT(::send(asking.number(), "GET / HT", 8, 0), 0);
        ASSERT_GT(::send(reading.number(), request.constData(), std::size_t(request.size()), 0), 0);
        std::array<char, 100'000> buffer;
        ASSERT_GT(::recv(reading.number(), buffer.data(), buffer.size(), 0), 0);
        served.signal(signal);
        // Both go on slowly, so that neither is ever dropped for its silence.
        for (int i = 0; i < 300 && !served.process.waitForFinished(100); ++i) {
            ::send(asking.number(), "T", 1, MSG_NOSIGNAL);
            ::recv(reading.number(), buffer.data(), buffer.size(), 0);
        }
        EXPECT_EQ(served.process.state(), QProcess::NotRunning);
        const auto result = Program::finish(served.process);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.errors, "Ctrl-C ends it\n");
    }
}

TEST_F(ServeTest, TakesAnotherPortOnlyWhenNoneWasNamed) {
    Served first(book(), {});
    const Served second(book(), {});
    for (const int port : {first.port, second.port})
        EXPECT_TRUE(8000 <= port && port <= 8020);
    EXPECT_NE(second.port, first.port);
    const QString port = QString::number(first.port);
    const auto taken = Program::run({"serve", book(), "--port", port});
    EXPECT_EQ(taken.exitCode, 1);
    EXPECT_EQ(taken.errors, "folvero: port " + port.toUtf8() + ": Address already in use\n");
    EXPECT_EQ(first.get("/").status, 200);
    first.signal(SIGINT);
    EXPECT_EQ(Program::finish(first.process).exitCode, 0);
    EXPECT_EQ(Served(book(), {"--port", port}).port, first.port) << "right after it ended";
}
