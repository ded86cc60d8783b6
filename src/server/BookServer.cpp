#include "server/BookServer.h"

#include "base/Log.h"
#include "server/BookFile.h"
#include "server/ClientQueues.h"
#include "server/ClientStream.h"

#include <QRegularExpression>
#include <array>
#include <cerrno>
#include <future>
#include <httplib.h>
#include <netinet/in.h>
#include <string_view>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using httplib::Request;
using httplib::Response;

constexpr auto loopback = "127.0.0.1";

// A browser opens half a dozen connections at once, some of them speculatively. Most threads wait.
constexpr std::size_t threads = 64;

// Of one address: far more than a browser opens, and some threads are left for others.
constexpr std::size_t threadsOfClient = 48;

constexpr Log serverLog("BookServer");

// The range of a file that a response contains.
struct Extent {
    qint64 begin;
    qint64 length; // 0 when the range is outside of the file
};

// cpp-httplib would apply the request's range to any content of known length, error pages included,
// and does not check that the content is that long. So it does not get the length.
void setContent(Response& response, const QByteArray& type, qint64 length,
                httplib::ContentProviderWithoutLength provider) {
    response.set_header("Content-Length", std::to_string(length));
    response.set_content_provider(type.toStdString(), std::move(provider));
}

void answer(Response& response, int status, const QByteArray& type, const QByteArray& content) {
    response.status = status;
    setContent(response, type, content.size(), [content](std::size_t, httplib::DataSink& sink) {
        sink.write(content.constData(), std::size_t(content.size()));
        sink.done();
        return true;
    });
}

void answer(Response& response, int status, const QByteArray& words) {
    answer(response, status, "text/plain; charset=utf-8", words);
}

// Host names that no DNS server can point at this machine: otherwise a page elsewhere could read
// the book through DNS rebinding.
bool hasLocalHost(const Request& request) {
    static const QRegularExpression own(
        QStringLiteral("\\A(127\\.0\\.0\\.1|localhost|\\[::1\\])(:[0-9]{1,5})?\\z"),
        QRegularExpression::CaseInsensitiveOption);
    return request.get_header_value_count("Host") == 1 &&
           own.match(QString::fromStdString(request.get_header_value("Host"))).hasMatch();
}

// The browser's cached copy is current.
bool isKnown(const Request& request, const BookFile& file) {
    if (!request.has_header("If-None-Match"))
        return request.get_header_value("If-Modified-Since") == file.lastModified.toStdString();
    const auto tags = QByteArray::fromStdString(request.get_header_value("If-None-Match"));
    for (QByteArray tag : tags.split(',')) {
        tag = tag.trimmed();
        if (tag == "*" || tag == file.entityTag || tag == "W/" + file.entityTag)
            return true;
    }
    return false;
}

// A request for several ranges, or for a range of a file that has changed, gets the whole file.
bool wantsPart(const Request& request, const BookFile& file) {
    if (request.ranges.size() != 1 || request.ranges.front() == httplib::Range(-1, -1))
        return false;
    const auto condition = QByteArray::fromStdString(request.get_header_value("If-Range"));
    return condition.isEmpty() || condition == file.entityTag || condition == file.lastModified;
}

Extent partOf(const httplib::Range& range, qint64 size) {
    const auto [first, last] = range; // -1 where the request leaves it open
    const qint64 begin = first >= 0 ? first : std::max<qint64>(0, size - last);
    const qint64 end = first >= 0 && last >= 0 ? std::min<qint64>(last, size - 1) + 1 : size;
    return {begin, std::max<qint64>(0, end - begin)};
}

// Sends a range of the file in chunks.
class FileReader {
public:
    FileReader(std::shared_ptr<const BookFile> file, Extent extent)
        : iFile(std::move(file)), iExtent(extent) {}

    bool operator()(std::size_t /*sent*/, httplib::DataSink& sink) {
        std::array<char, 65536> buffer;
        const auto wanted = std::min<qint64>(iExtent.length, buffer.size());
        const auto got = ::pread(iFile->descriptor.number(), buffer.data(), std::size_t(wanted),
                                 off_t(iExtent.begin));
        if (got < 0 || (got == 0 && wanted > 0))
            return false; // too short: closes the connection before the promised length
        sink.write(buffer.data(), std::size_t(got));
        iExtent = {iExtent.begin + got, iExtent.length - got};
        if (iExtent.length == 0)
            sink.done();
        return true;
    }

private:
    std::shared_ptr<const BookFile> iFile;
    Extent iExtent;
};

void answerWithFile(const Request& request, Response& response, BookFile&& opened) {
    const auto file = std::make_shared<const BookFile>(std::move(opened));
    const std::string size = std::to_string(file->size);
    response.set_header("ETag", file->entityTag.toStdString());
    response.set_header("Last-Modified", file->lastModified.toStdString());
    if (isKnown(request, *file)) {
        response.status = 304;
        response.set_header("Content-Length", size);
        return;
    }
    response.set_header("Accept-Ranges", "bytes");
    Extent extent{0, file->size};
    response.status = 200;
    if (wantsPart(request, *file)) {
        extent = partOf(request.ranges.front(), file->size);
        if (extent.length == 0) {
            response.set_header("Content-Range", "bytes */" + size);
            return answer(response, 416, "Range not satisfiable\n");
        }
        response.status = 206;
        response.set_header("Content-Range", "bytes " + std::to_string(extent.begin) + '-' +
                                                 std::to_string(extent.begin + extent.length - 1) +
                                                 '/' + size);
    }
    // Nothing in a drawing runs when it is opened by its own address. Pages have a policy of their
    // own.
    if (file->contentType.startsWith("image/svg"))
        response.set_header(
            "Content-Security-Policy",
            "default-src 'none'; img-src data:; style-src 'unsafe-inline'; sandbox");
    setContent(response, file->contentType, extent.length, FileReader(file, extent));
}

ServerRequest asServerRequest(const Request& request) {
    const auto header = [&request](const char* name) {
        return QByteArray::fromStdString(request.get_header_value(name));
    };
    ServerRequest wanted{QByteArray::fromStdString(request.path),
                         QByteArray::fromStdString(request.target), header("Host"),
                         header("Accept")};
    for (const auto& [name, value] : request.params) {
        const auto key = QByteArray::fromStdString(name);
        if (!wanted.parameters.contains(key))
            wanted.parameters[key] = QByteArray::fromStdString(value);
    }
    return wanted;
}

// What a server serves; see the constructor of BookServer.
struct Served {
    QString folder;
    AnswerRequest answers;
    QByteArray search;
};

void answerRequest(const Served& served, const Request& request, Response& response) {
    // A republished book shows at once.
    response.set_header("Cache-Control", "no-cache");
    response.set_header("X-Content-Type-Options", "nosniff");
    // Other sites must not embed the book's pictures and scripts.
    response.set_header("Cross-Origin-Resource-Policy", "same-origin");
    response.set_header("Referrer-Policy", "no-referrer");
    if (!hasLocalHost(request))
        return answer(response, 403, "Forbidden: open the book by its address 127.0.0.1\n");
    if (request.method != "GET" && request.method != "HEAD") {
        response.set_header("Allow", "GET, HEAD");
        return answer(response, 405, "Method not allowed\n");
    }
    if (const auto other =
            served.answers ? served.answers(asServerRequest(request)) : std::nullopt) {
        if (!other->contentPolicy.isEmpty())
            response.set_header("Content-Security-Policy", other->contentPolicy.toStdString());
        return answer(response, other->status, other->contentType, other->content);
    }
    if (auto file = BookFile::open(served.folder, QByteArray::fromStdString(request.target))) {
        if (!served.search.isEmpty())
            response.set_header("Link", '<' + served.search.toStdString() + ">; rel=\"search\"");
        return answerWithFile(request, response, std::move(*file));
    }
    answer(response, 404, "Not found\n");
}

void logAnswer(const Request& request, const Response& response) {
    // Keeps a malformed address on one line and free of terminal escape sequences.
    const QByteArray target =
        QByteArray::fromStdString(request.target).toPercentEncoding("/%?=&;,+:@!$'()*");
    serverLog.debug(QString::fromStdString(request.method) + u' ' + QString::fromLatin1(target) +
                    QStringLiteral(": ") + QString::number(response.status));
}

ClientQueues::Address addressOf(socket_t socket) {
    sockaddr_in client{};
    socklen_t size = sizeof(client);
    ::getpeername(socket, reinterpret_cast<sockaddr*>(&client), &size);
    return client.sin_addr.s_addr;
}

// How many connections of a client may wait: half of the files that this process may open beside
// those that its threads are at.
std::size_t mostWaiting() {
    constexpr rlim_t many = 8192;
    constexpr rlim_t busy = 2 * threads;
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = std::max(limit.rlim_cur, std::min(limit.rlim_max, many));
    ::setrlimit(RLIMIT_NOFILE, &limit);
    return std::size_t((std::max(limit.rlim_cur, busy) - busy) / 2);
}

void end(socket_t socket) {
    ::shutdown(socket, SHUT_RDWR);
    ::close(socket);
}

void refuse(socket_t socket) {
    constexpr std::string_view answer = "HTTP/1.1 503 Service Unavailable\r\nRetry-After: 5\r\n"
                                        "Content-Length: 0\r\nConnection: close\r\n\r\n";
    // With a request unread, closing would be a reset, which can outrun the answer.
    std::array<char, 4096> request;
    ::recv(socket, request.data(), request.size(), MSG_DONTWAIT);
    ::send(socket, answer.data(), answer.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    end(socket);
}

// Serves each connection through a ClientStream.
class Server : public httplib::Server {
    bool process_and_close_socket(socket_t socket) override {
        const auto client = addressOf(socket);
        const auto place = iClients.enter(client, socket);
        if (place == ClientQueues::Place::refused)
            refuse(socket);
        if (place != ClientQueues::Place::served)
            return true;
        for (auto next = std::optional(socket); next; next = iClients.next(client))
            serve(*next);
        return true;
    }

    void serve(socket_t socket) {
        ClientStream stream(socket);
        bool isClosed = false;
        // One request per connection: an idle one would hold a thread, and bytes after the headers
        // of a refused request must not be read as another request.
        if (stream.is_readable())
            process_request(stream, true, isClosed, nullptr);
        end(socket);
    }

    ClientQueues iClients{threadsOfClient, mostWaiting()};
};

} // namespace

class BookServer::Implementation {
public:
    explicit Implementation(const Served& served) {
        iServer.new_task_queue = [] { return new httplib::ThreadPool(threads); };
        iServer.set_tcp_nodelay(true);
        // Unlike cpp-httplib's default, does not share the port with another server.
        iServer.set_socket_options([this](socket_t socket) {
            const int yes = 1;
            ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof(yes));
            iSocket = socket;
        });
        iServer.set_pre_routing_handler([=](const Request& request, Response& response) {
            answerRequest(served, request, response);
            return httplib::Server::HandlerResponse::Handled;
        });
        // cpp-httplib refuses ranges that it does not understand, which are to be ignored.
        const httplib::Server::HandlerWithResponse withoutRange = [=](const Request& request,
                                                                      Response& response) {
            if (response.status != 416 || response.has_header("Content-Range"))
                return httplib::Server::HandlerResponse::Unhandled;
            Request whole = request;
            whole.ranges.clear();
            answerRequest(served, whole, response);
            return httplib::Server::HandlerResponse::Handled;
        };
        iServer.set_error_handler(withoutRange);
        if (serverLog.isDebugEnabled())
            iServer.set_logger(logAnswer);
    }

    Server iServer;
    socket_t iSocket = INVALID_SOCKET;
    int iPort = 0;
    std::future<bool> iListening; // its destructor waits for the server's threads
};

BookServer::BookServer(const QString& folder, const AnswerRequest& answers,
                       const QByteArray& search)
    : iImplementation(std::make_unique<Implementation>(Served{folder, answers, search})) {}

BookServer::~BookServer() {
    stop();
}

int BookServer::bindPort(int port) {
    errno = 0;
    auto& server = iImplementation->iServer;
    const int taken = port == 0 ? server.bind_to_any_port(loopback)
                                : (server.bind_to_port(loopback, port) ? port : -1);
    if (taken <= 0)
        return errno != 0 ? errno : EADDRNOTAVAIL;
    // cpp-httplib lets 5 connections wait. With more, which a browser makes when it opens a book,
    // the kernel drops packets, and the page waits for seconds until they are sent again.
    ::listen(iImplementation->iSocket, SOMAXCONN);
    iImplementation->iPort = taken;
    return 0;
}

int BookServer::port() const {
    return iImplementation->iPort;
}

void BookServer::start() {
    auto& server = iImplementation->iServer;
    iImplementation->iListening =
        std::async(std::launch::async, [&server] { return server.listen_after_bind(); });
    // Before that it can't be stopped.
    while (!server.is_running() && !waitForEnd(std::chrono::milliseconds(1))) {
    }
}

bool BookServer::waitForEnd(std::chrono::milliseconds timeout) const {
    return !iImplementation->iListening.valid() ||
           iImplementation->iListening.wait_for(timeout) == std::future_status::ready;
}

void BookServer::stop() {
    iImplementation->iServer.stop();
}
