#include "server/ClientStream.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>

using namespace std::chrono_literals;

namespace {

// For a request as a whole: browsers send theirs at once.
constexpr auto requestTime = 5s;

// For each piece of an answer: a reader may pause a sound.
constexpr auto answerTime = 30s;

bool isReady(socket_t socket, short event, std::chrono::steady_clock::duration time) {
    pollfd descriptor{socket, event, 0};
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(time).count();
    int result = 0;
    do {
        result = ::poll(&descriptor, 1, int(std::max<std::int64_t>(0, left)));
    } while (result < 0 && errno == EINTR);
    return result > 0;
}

} // namespace

ClientStream::ClientStream(socket_t socket)
    : iSocket(socket), iRequestEnd(std::chrono::steady_clock::now() + requestTime) {}

bool ClientStream::is_readable() const {
    return iBegin < iEnd ||
           isReady(iSocket, POLLIN, iRequestEnd - std::chrono::steady_clock::now());
}

bool ClientStream::is_writable() const {
    return isReady(iSocket, POLLOUT, answerTime);
}

ssize_t ClientStream::read(char* data, size_t size) {
    if (iBegin == iEnd) {
        if (!is_readable())
            return -1;
        const ssize_t got = ::recv(iSocket, iBuffer.data(), iBuffer.size(), 0);
        if (got <= 0)
            return got;
        iBegin = 0;
        iEnd = std::size_t(got);
    }
    const std::size_t count = std::min(size, iEnd - iBegin);
    std::memcpy(data, iBuffer.data() + iBegin, count);
    iBegin += count;
    return ssize_t(count);
}

ssize_t ClientStream::write(const char* data, size_t size) {
    return is_writable() ? ::send(iSocket, data, size, MSG_NOSIGNAL) : -1;
}
