#pragma once

#include "server/ServerAnswer.h"

#include <QString>
#include <chrono>
#include <memory>

// A small web server that serves a folder to browsers on this machine: it listens on the loopback
// address only and never writes.
class BookServer {
public:
    // What answers has none for is looked for in the folder. Files name the address of a search, if
    // there is one, in a header for their scripts.
    explicit BookServer(const QString& folder, const AnswerRequest& answers = {},
                        const QByteArray& search = {});
    // Waits for running responses.
    ~BookServer();
    BookServer(const BookServer&) = delete;
    BookServer& operator=(const BookServer&) = delete;

    // Binds the port, or any free one for 0. Returns 0 or the system's error number.
    int bindPort(int port);
    // The bound port.
    int port() const;

    // Starts serving on its own threads.
    void start();
    // Waits up to that long for the server to end; true when it accepts no more requests and all
    // responses are sent.
    bool waitForEnd(std::chrono::milliseconds timeout) const;
    // Stops accepting requests. Running responses go on, see waitForEnd().
    void stop();

private:
    class Implementation;
    std::unique_ptr<Implementation> iImplementation;
};
