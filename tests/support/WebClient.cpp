#include "support/WebClient.h"

#include <QByteArrayList>
#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>

namespace {

constexpr timeval patience{20, 0};

WebClient::Answer parsed(const QByteArray& bytes) {
    const auto end = bytes.indexOf("\r\n\r\n");
    if (end < 0 || !bytes.startsWith("HTTP/1.1 "))
        return {};
    WebClient::Answer answer;
    answer.status = bytes.mid(9, 3).toInt();
    answer.body = bytes.mid(end + 4);
    for (const QByteArray& line : bytes.left(end).split('\n').mid(1)) {
        const auto colon = line.indexOf(':');
        answer.headers[line.left(colon).toLower()] = line.mid(colon + 1).trimmed();
    }
    return answer;
}

} // namespace

QByteArray WebClient::Answer::header(const QByteArray& name) const {
    const auto found = headers.find(name);
    return found == headers.end() ? QByteArray() : found->second;
}

FileDescriptor WebClient::connect(int port, const char* address) {
    FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ::setsockopt(socket.number(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_port = htons(std::uint16_t(port));
    ::inet_pton(AF_INET, address, &place.sin_addr);
    if (::connect(socket.number(), reinterpret_cast<const sockaddr*>(&place), sizeof(place)) != 0)
        socket.close();
    return socket;
}

WebClient::Answer WebClient::exchange(int port, const QByteArray& request) {
    const FileDescriptor socket = connect(port);
    if (!socket.isOpen())
        return {};
    ::send(socket.number(), request.constData(), std::size_t(request.size()), MSG_NOSIGNAL);
    QByteArray bytes;
    std::array<char, 65536> buffer;
    for (;;) {
        const auto got = ::recv(socket.number(), buffer.data(), buffer.size(), 0);
        if (got <= 0)
            return parsed(bytes);
        bytes.append(buffer.data(), got);
    }
}

QByteArray WebClient::request(int port, const QByteArray& target, const QByteArray& moreLines,
                              const QByteArray& method) {
    return method + ' ' + target + " HTTP/1.1\r\nHost: 127.0.0.1:" + QByteArray::number(port) +
           "\r\nAccept-Encoding: gzip, deflate, br\r\n" + moreLines + "\r\n";
}

WebClient::Answer WebClient::get(int port, const QByteArray& target, const QByteArray& moreLines) {
    return exchange(port, request(port, target, moreLines));
}
