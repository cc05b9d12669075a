#pragma once

#include "platform/sockets.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace pozhil {

/// Where the application is served.
constexpr int LOCAL_SERVER_PORT = 6931;

/// How long the server bears with its clients.
struct ServerLimits {
    /// With a client that has connected and sends nothing. Browsers connect ahead of what they will ask for.
    std::chrono::milliseconds silence{10000};
    /// With a client that takes nothing of its answer, while all others wait.
    std::chrono::milliseconds standstill{2000};
    /// With a client that has got its answer and doesn't close.
    std::chrono::milliseconds farewell{1000};
    /// How many clients may be silent or not have closed at a time; of more, the first is dropped.
    std::size_t clients = 256;
};

/// Serves page, version and files of the application to the browser: one request a connection, one after the other.
/// What a client has sent with its first packet is its request.
class LocalServer {
public:
    /// Opens the port on all interfaces.
    /// \param port 0 for any that is free
    /// \throws platform::ListenFailure
    explicit LocalServer(int port, const ServerLimits& limits = {});

    int port() const;

    /// Waits until clients want something, answers each of those, and closes whatever has reached a limit.
    /// \param longest returns after this time even if nothing happens
    void serve(std::chrono::milliseconds longest);

private:
    using Clock = std::chrono::steady_clock;

    struct Client {
        platform::Socket connection;
        Clock::time_point deadline;
        bool isAnswered = false;
    };

    std::chrono::milliseconds timeToNextDeadline(std::chrono::milliseconds longest) const;
    void acceptClients();
    /// Whether the client stays.
    bool handle(Client& client) const;
    bool answer(const platform::Socket& connection, const std::string& path) const;

    ServerLimits limits_;
    platform::Socket listener_;
    std::vector<Client> clients_;
};

/// What the user is told of a port that couldn't be opened.
std::string startFailureText(platform::ListenStep step, int port);

/// Serves for ever. If the port can't be opened, tells so on standard error and returns.
void startLocalServer(int port);

/// The server's thread: from now on an interrupt says goodbye and ends the process with status 0; then serves.
void runLocalServer(int port = LOCAL_SERVER_PORT);

} // namespace pozhil
