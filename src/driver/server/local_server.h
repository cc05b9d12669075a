#pragma once

#include "driver/server/http_response.h"
#include "platform/sockets.h"

#include <chrono>
#include <cstddef>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace pozhil {

/// Where the application is served.
constexpr int LOCAL_SERVER_PORT = 6931;

/// How long the server bears with its clients.
struct ServerLimits {
    /// With a client that has connected and sends nothing. Browsers connect ahead of what they will ask for.
    std::chrono::milliseconds silence{10000};
    /// With a client that takes nothing of its answer.
    std::chrono::milliseconds standstill{2000};
    /// With a client that has got its answer and doesn't close.
    std::chrono::milliseconds farewell{1000};
    /// How many there may be at a time; of more, the first is dropped that isn't being answered.
    std::size_t clients = 256;
};

/// Where the server listens, and to whom.
struct ServerSettings {
    /// An address of this machine, in numbers; empty for all that it has
    std::string host{};
    Access access = Access::Open;
};

/// Serves page, version and files of the application to the browser: one request a connection. What a client has sent
/// with its first packet is its request. Answers are given away piece by piece, to whoever takes some at the moment, so
/// that a slow client delays nobody and a large file never lies in memory as a whole.
class LocalServer {
public:
    /// Opens the port.
    /// \param port 0 for any that is free
    /// \throws platform::ListenFailure
    explicit LocalServer(int port, const ServerLimits& limits = {}, const ServerSettings& settings = {});

    int port() const;

    /// Waits until clients want or take something, goes on with each of those, and closes whatever has reached a limit.
    /// \param longest returns after this time even if nothing happens
    void serve(std::chrono::milliseconds longest);

private:
    using Clock = std::chrono::steady_clock;

    struct Client {
        platform::Socket connection;
        Clock::time_point deadline;
        /// The answer while it is being sent, and what its present piece still holds.
        std::optional<HttpResponse> response{};
        std::string_view unsent{};
        bool isAnswered = false;
    };

    std::chrono::milliseconds timeToNextDeadline(std::chrono::milliseconds longest) const;
    void acceptClients();
    void makeRoom();
    // Whether the client stays.
    bool handle(Client& client) const;
    bool takeRequest(Client& client) const;
    bool sendOn(Client& client) const;
    bool bidFarewell(Client& client) const;

    ServerLimits limits_;
    Access access_;
    platform::Socket listener_;
    /// Each stays where it is, since what is unsent points into its response.
    std::list<Client> clients_;
};

/// What the user is told the server listens on: its port, with its address if that was set.
std::string placeOf(int port, const ServerSettings& settings);

/// What the user is told of a port that couldn't be opened.
/// \param place as above
std::string startFailureText(platform::ListenStep step, const std::string& place);

/// The server of a port; null if that can't be opened, which is told on standard error.
std::unique_ptr<LocalServer> openLocalServer(int port, const ServerSettings& settings = {});

/// Serves for ever. If the port can't be opened, tells so on standard error and returns.
void startLocalServer(int port, const ServerSettings& settings = {});

/// The server's thread: from now on an interrupt says goodbye and ends the process with status 0; then serves.
void runLocalServer(int port = LOCAL_SERVER_PORT, const ServerSettings& settings = {});

/// The same for a server that is open already, or couldn't be opened.
/// \param server may be null
void runOpenServer(std::unique_ptr<LocalServer> server);

} // namespace pozhil
