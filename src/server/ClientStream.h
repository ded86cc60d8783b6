#pragma once

#include <array>
#include <chrono>
#include <httplib.h>

// A client's connection as cpp-httplib reads and writes it, with limits for a client that is slow
// on purpose: cpp-httplib itself waits again for each byte.
class ClientStream : public httplib::Stream {
public:
    explicit ClientStream(socket_t socket);

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* data, size_t size) override;
    ssize_t write(const char* data, size_t size) override;
    void get_remote_ip_and_port(std::string& /*ip*/, int& /*port*/) const override {}
    void get_local_ip_and_port(std::string& /*ip*/, int& /*port*/) const override {}
    socket_t socket() const override { return iSocket; }

private:
    socket_t iSocket;
    std::chrono::steady_clock::time_point iRequestEnd; // when the request must have arrived
    std::array<char, 4096> iBuffer;
    std::size_t iBegin = 0; // of what was received and not read
    std::size_t iEnd = 0;
};
