#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <optional>

// Keeps one client, an address, from taking all threads and file descriptors of the server: its
// connections beyond a share wait for its others. May be used from several threads.
class ClientQueues {
public:
    using Address = std::uint32_t;

    // How many connections of an address are served at once, and how many wait.
    ClientQueues(std::size_t mostServed, std::size_t mostWaiting)
        : iMostServed(mostServed), iMostWaiting(mostWaiting) {}

    enum class Place { served, waiting, refused };
    Place enter(Address client, int socket);

    // After a served connection is closed: the client's next one, which takes its place.
    std::optional<int> next(Address client);

private:
    struct Client {
        std::size_t served = 0;
        std::deque<int> waiting;
    };

    std::mutex iMutex;
    std::map<Address, Client> iClients;
    std::size_t iMostServed;
    std::size_t iMostWaiting;
};
