#include "driver/server/local_server.h"

#include "driver/server/http_response.h"
#include "platform/interrupt.h"

#include <algorithm>
#include <iostream>
#include <optional>
#include <string_view>
#include <thread>
#include <utility>

namespace pozhil {
namespace {

constexpr int BACKLOG = 10;
constexpr std::size_t REQUEST_BYTES = 4096;

} // namespace

LocalServer::LocalServer(int port, const ServerLimits& limits)
    : limits_(limits), listener_(platform::listenOnPort(port, BACKLOG)) {}

int LocalServer::port() const {
    return platform::portOf(listener_);
}

void LocalServer::serve(std::chrono::milliseconds longest) {
    std::vector<const platform::Socket*> sockets{&listener_};
    for (const Client& client : clients_) {
        sockets.push_back(&client.connection);
    }
    const std::vector<bool> ready = platform::waitForInput(sockets, timeToNextDeadline(longest));

    std::vector<Client> staying;
    for (std::size_t i = 0; i < clients_.size(); ++i) {
        Client& client = clients_[i];
        if (ready[i + 1] ? handle(client) : Clock::now() < client.deadline) {
            staying.push_back(std::move(client));
        }
    }
    clients_ = std::move(staying);
    if (ready.front()) {
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
            clients_.erase(clients_.begin());
        }
        clients_.push_back(std::move(client));
    }
}

bool LocalServer::handle(Client& client) const {
    const std::string received = platform::receiveOnce(client.connection, REQUEST_BYTES);
    if (client.isAnswered) {
        return !received.empty() && Clock::now() < client.deadline;
    }
    const auto path = requestedPath(received);
    if (received.empty() || (path && !answer(client.connection, *path))) {
        return false;
    }
    // Closing at once would take back what is on its way if the client has sent more than was read.
    platform::endSending(client.connection);
    client.isAnswered = true;
    client.deadline = Clock::now() + limits_.farewell;
    return true;
}

bool LocalServer::answer(const platform::Socket& connection, const std::string& path) const {
    auto response = HttpResponse::to(path);
    if (!response) {
        return false;
    }
    for (std::string_view piece = response->nextPiece(); !piece.empty(); piece = response->nextPiece()) {
        if (!platform::sendAll(connection, piece, limits_.standstill)) {
            return false;
        }
    }
    return true;
}

std::string startFailureText(platform::ListenStep step, int port) {
    switch (step) {
    case platform::ListenStep::Library: return "🚨 விண்டோஸ் சாக்கெட் (WSAStartup) பிழை!\n";
    case platform::ListenStep::Socket: return "🚨 சாக்கெட் உருவாக்க முடியவில்லை!\n";
    case platform::ListenStep::Option: return "🚨 சாக்கெட் ஆப்ஷன் பிழை!\n";
    case platform::ListenStep::Bind: return "🚨 " + std::to_string(port) + " போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n";
    case platform::ListenStep::Listen: break;
    }
    return "🚨 சர்வர் கவனிப்பதில் பிழை!\n";
}

void startLocalServer(int port) {
    constexpr std::chrono::hours LONG{1};
    try {
        LocalServer server(port);
        while (true) {
            server.serve(LONG);
        }
    } catch (const platform::ListenFailure& failure) {
        std::cerr << startFailureText(failure.failedStep, port) << std::flush;
    }
}

void runLocalServer(int port) {
    platform::endOnInterrupt("\n👋 சேவையகம் நிறுத்தப்பட்டது \n");
    startLocalServer(port);
}

} // namespace pozhil
