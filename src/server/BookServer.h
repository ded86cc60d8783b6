#pragma once

#include <QString>
#include <chrono>
#include <memory>

// A small web server that shows a folder to the browsers of this machine: it listens on the
// loopback address only, and it reads files and changes nothing.
class BookServer {
public:
    explicit BookServer(const QString& folder);
    // Waits for answers under way.
    ~BookServer();
    BookServer(const BookServer&) = delete;
    BookServer& operator=(const BookServer&) = delete;

    // Takes that port, or any free one when it is 0. Returns 0, or the system's error number.
    int bindPort(int port);
    // The port that was taken.
    int port() const;

    // Answers from now on, on threads of its own.
    void start();
    // True once no more requests are taken and all answers are given; waits that long for it.
    bool waitForEnd(std::chrono::milliseconds timeout) const;
    // Takes no more requests. Answers under way go on, see waitForEnd().
    void stop();

private:
    class Implementation;
    std::unique_ptr<Implementation> iImplementation;
};
