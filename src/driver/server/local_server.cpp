#include "driver/server/local_server.h"

#include "platform/interrupt.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <thread>
#include <utility>
#include <vector>

namespace pozhil {
namespace {

constexpr int BACKLOG = 10;
constexpr std::size_t REQUEST_BYTES = 4096;
constexpr const char* FAREWELL = "\n👋 சேவையகம் நிறுத்தப்பட்டது \n";

void serveForEver(LocalServer* server) {
    constexpr std::chrono::hours LONG{1};
    while (server != nullptr) {
        server->serve(LONG);
    }
}

} // namespace

LocalServer::LocalServer(int port, const ServerLimits& limits, const ServerSettings& settings)
    : limits_(limits), access_(settings.access), listener_(platform::listenOnPort(port, BACKLOG, settings.host)) {}

int LocalServer::port() const {
    return platform::portOf(listener_);
}

void LocalServer::serve(std::chrono::milliseconds longest) {
    std::vector<platform::Awaited> sockets{{listener_}};
    for (const Client& client : clients_) {
        sockets.push_back({client.connection, client.response.has_value()});
    }
    const std::vector<bool> ready = platform::waitForAny(sockets, timeToNextDeadline(longest));

    auto isReady = ready.begin();
    const bool someoneKnocks = *isReady;
    for (auto client = clients_.begin(); client != clients_.end();) {
        const bool stays = *++isReady ? handle(*client) : Clock::now() < client->deadline;
        client = stays ? std::next(client) : clients_.erase(client);
    }
    if (someoneKnocks) {
        acceptClients();
    }
}

std::chrono::milliseconds LocalServer::timeToNextDeadline(std::chrono::milliseconds longest) const {
    auto time = longest;
    for (const Client& client : clients_) {
        time = std::min(time, std::chrono::ceil<std::chrono::milliseconds>(client.deadline - Clock::now()));
    }
    return time;
}

void LocalServer::acceptClients() {
    constexpr std::chrono::milliseconds PAUSE{10};
    // All that wait, since the system turns away whoever finds the backlog full; but no more, or nobody got an answer.
    for (int i = 0; i < BACKLOG; ++i) {
        Client client{platform::acceptConnection(listener_), Clock::now() + limits_.silence};
        if (!client.connection.isOpen()) {
            // Without the pause, a connection for which no descriptor is left would be offered again and again.
            std::this_thread::sleep_for(i == 0 ? PAUSE : PAUSE.zero());
            return;
        }
        if (clients_.size() == limits_.clients) {
            makeRoom();
        }
        clients_.push_back(std::move(client));
    }
}

/// Whoever is being answered goes last: a page that loads isn't cut off by others that only connect.
void LocalServer::makeRoom() {
    const auto idle =
        std::find_if(clients_.begin(), clients_.end(), [](const Client& client) { return !client.response; });
    clients_.erase(idle == clients_.end() ? clients_.begin() : idle);
}

bool LocalServer::handle(Client& client) const {
    if (client.response) {
        return sendOn(client);
    }
    if (!client.isAnswered) {
        return takeRequest(client);
    }
    const std::string ignored = platform::receiveOnce(client.connection, REQUEST_BYTES);
    return !ignored.empty() && Clock::now() < client.deadline;
}

bool LocalServer::takeRequest(Client& client) const {
    const std::string received = platform::receiveOnce(client.connection, REQUEST_BYTES);
    if (received.empty()) {
        return false;
    }
    const auto request = readRequest(received);
    if (!request) {
        return bidFarewell(client);
    }
    client.response = HttpResponse::to(*request, access_);
    client.deadline = Clock::now() + limits_.standstill;
    return client.response && sendOn(client);
}

/// As much as the client takes at the moment, but no more than a few pieces, or nobody else would get theirs.
bool LocalServer::sendOn(Client& client) const {
    constexpr int PIECES = 4;
    for (int i = 0; i < PIECES; ++i) {
        if (client.unsent.empty()) {
            client.unsent = client.response->nextPiece();
        }
        if (client.unsent.empty()) {
            return bidFarewell(client);
        }
        const auto sent = platform::sendSome(client.connection, client.unsent);
        if (!sent) {
            return false;
        }
        if (*sent == 0) {
            break;
        }
        client.unsent.remove_prefix(*sent);
        client.deadline = Clock::now() + limits_.standstill;
    }
    return true;
}

/// Closing at once would take back what is on its way if the client has sent more than was read.
bool LocalServer::bidFarewell(Client& client) const {
    platform::endSending(client.connection);
    client.response.reset();
    client.isAnswered = true;
    client.deadline = Clock::now() + limits_.farewell;
    return true;
}

std::string placeOf(int port, const ServerSettings& settings) {
    return (settings.host.empty() ? "" : settings.host + ":") + std::to_string(port);
}

std::string startFailureText(platform::ListenStep step, const std::string& place) {
    switch (step) {
    case platform::ListenStep::Library: return "🚨 விண்டோஸ் சாக்கெட் (WSAStartup) பிழை!\n";
    case platform::ListenStep::Socket: return "🚨 சாக்கெட் உருவாக்க முடியவில்லை!\n";
    case platform::ListenStep::Option: return "🚨 சாக்கெட் ஆப்ஷன் பிழை!\n";
    case platform::ListenStep::Bind: return "🚨 " + place + " போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n";
    case platform::ListenStep::Listen: break;
    }
    return "🚨 சர்வர் கவனிப்பதில் பிழை!\n";
}

std::unique_ptr<LocalServer> openLocalServer(int port, const ServerSettings& settings) {
    try {
        return std::make_unique<LocalServer>(port, ServerLimits(), settings);
    } catch (const platform::ListenFailure& failure) {
        std::cerr << startFailureText(failure.failedStep, placeOf(port, settings)) << std::flush;
        return nullptr;
    }
}

void startLocalServer(int port, const ServerSettings& settings) {
    serveForEver(openLocalServer(port, settings).get());
}

void runLocalServer(int port, const ServerSettings& settings) {
    platform::endOnInterrupt(FAREWELL);
    startLocalServer(port, settings);
}

void runOpenServer(std::unique_ptr<LocalServer> server) {
    platform::endOnInterrupt(FAREWELL);
    serveForEver(server.get());
}

} // namespace pozhil
