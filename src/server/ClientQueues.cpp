#include "server/ClientQueues.h"

ClientQueues::Place ClientQueues::enter(Address client, int socket) {
    const std::lock_guard lock(iMutex);
    Client& known = iClients[client];
    if (known.served < iMostServed) {
        ++known.served;
        return Place::served;
    }
    if (known.waiting.size() >= iMostWaiting)
        return Place::refused;
    known.waiting.push_back(socket);
    return Place::waiting;
}

std::optional<int> ClientQueues::next(Address client) {
    const std::lock_guard lock(iMutex);
    const auto known = iClients.find(client);
    if (known->second.waiting.empty()) {
        if (--known->second.served == 0)
            iClients.erase(known);
        return {};
    }
    const int socket = known->second.waiting.front();
    known->second.waiting.pop_front();
    return socket;
}
