#pragma once

#include "support/Program.h"
#include "system/FileDescriptor.h"

#include <QMap>
#include <QProcess>
#include <QUrl>
#include <arpa/inet.h>
#include <array>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>

struct Answer {
    int status = 0;                       // 0 when no answer came
    QMap<QByteArray, QByteArray> headers; // names in small letters
    QByteArray body;

    QByteArray header(const QByteArray& name) const { return headers.value(name); }
};

inline Answer parsed(const QByteArray& bytes) {
    const auto end = bytes.indexOf("\r\n\r\n");
    if (end < 0 || !bytes.startsWith("HTTP/1.1 "))
        return {};
    Answer answer{bytes.mid(9, 3).toInt(), {}, bytes.mid(end + 4)};
    for (const QByteArray& line : bytes.left(end).split('\n').mid(1)) {
        const auto colon = line.indexOf(':');
        answer.headers[line.left(colon).toLower()] = line.mid(colon + 1).trimmed();
    }
    return answer;
}

// "folvero serve" or "folvero library serve" over a folder, until this goes.
class Served {
public:
    explicit Served(const QString& folder, const QStringList& options = {"--port=0"},
                    const std::function<void()>& beforeStart = {},
                    const QStringList& command = {"serve"}) {
        process.setChildProcessModifier(beforeStart);
        process.start(Program::path(), command + QStringList{folder} + options);
        while (!process.canReadLine() && process.waitForReadyRead(60'000)) {
        }
        const QUrl address = QUrl::fromEncoded(process.readLine().trimmed());
        EXPECT_EQ(address.host(), "127.0.0.1") << process.readAllStandardError().constData();
        port = address.port();
        page = address.path(QUrl::FullyEncoded).toLatin1();
    }
    ~Served() {
        process.kill();
        process.waitForFinished();
    }
    Served(const Served&) = delete;
    Served& operator=(const Served&) = delete;

    // Not open when nobody answers there.
    FileDescriptor connect(const char* address = "127.0.0.1",
                           const char* from = "127.0.0.1") const {
        FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
        const timeval patience{20, 0};
        ::setsockopt(socket.number(), SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof(patience));
        ::setsockopt(socket.number(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
        sockaddr_in own{};
        own.sin_family = AF_INET;
        ::inet_pton(AF_INET, from, &own.sin_addr);
        ::bind(socket.number(), reinterpret_cast<sockaddr*>(&own), sizeof(own));
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_port = htons(std::uint16_t(port));
        ::inet_pton(AF_INET, address, &place.sin_addr);
        if (::connect(socket.number(), reinterpret_cast<sockaddr*>(&place), sizeof(place)) != 0)
            socket.close();
        return socket;
    }

    // Sends the bytes as they are and reads until the server closes the connection.
    Answer send(const QByteArray& request, const char* from = "127.0.0.1") const {
        const FileDescriptor socket = connect("127.0.0.1", from);
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

    // A request with the header lines that a browser would send, and more of them.
    QByteArray request(const QByteArray& method, const QByteArray& target,
                       const QByteArray& moreLines = {}) const {
        return method + ' ' + target + " HTTP/1.1\r\nHost: 127.0.0.1:" + QByteArray::number(port) +
               "\r\nAccept-Encoding: gzip, deflate, br\r\n" + moreLines + "\r\n";
    }
    Answer get(const QByteArray& target, const QByteArray& moreLines = {}) const {
        return send(request("GET", target, moreLines));
    }
    void signal(int number) const { ::kill(pid_t(process.processId()), number); }

    QProcess process;
    int port = 0;
    QByteArray page;
};
