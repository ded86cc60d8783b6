#pragma once

#include "platform/FileDescriptor.h"

#include <QByteArray>
#include <map>

// A plain client of a web server on this machine; it sends what it is given, however odd.
namespace WebClient {

struct Answer {
    int status = 0;                           // 0 when no answer came
    std::map<QByteArray, QByteArray> headers; // names in small letters
    QByteArray body;

    QByteArray header(const QByteArray& name) const;
};

// Connects to a port, by default at the address that our server listens on. Not open when nobody
// answers.
FileDescriptor connect(int port, const char* address = "127.0.0.1");

// Sends the bytes and reads until the server closes the connection.
Answer exchange(int port, const QByteArray& request);

// A request with the header lines that a browser would send, and more of them.
QByteArray request(int port, const QByteArray& target, const QByteArray& moreLines = {},
                   const QByteArray& method = "GET");

Answer get(int port, const QByteArray& target, const QByteArray& moreLines = {});

} // namespace WebClient
