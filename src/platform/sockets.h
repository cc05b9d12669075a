#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::platform {

/// A listening port or one end of a connection. Closed with the object.
class Socket {
public:
    Socket() = default;
    /// Takes over an open descriptor.
    explicit Socket(int descriptor) : descriptor_(descriptor) {}
    ~Socket();
    Socket(Socket&& other) noexcept;
    Socket& operator=(Socket&& other) noexcept;
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    bool isOpen() const { return descriptor_ != CLOSED; }
    int descriptor() const { return descriptor_; }

private:
    static constexpr int CLOSED = -1;

    int descriptor_ = CLOSED;
};

/// The steps of opening a port, in their order. Not every system has a socket library to start.
enum class ListenStep { Library, Socket, Option, Bind, Listen };

/// A port could not be opened.
class ListenFailure : public std::runtime_error {
public:
    ListenFailure(ListenStep step, const std::string& what) : std::runtime_error(what), failedStep(step) {}

    const ListenStep failedStep;
};

/// Whether \p text is an address in numbers, as a port can be opened on.
bool isAddress(const std::string& text);

/// Opens a port. Programs that this process starts don't inherit it.
/// \param port 0 for any that is free
/// \param backlog how many connections the system holds until they are accepted
/// \param address of this machine, in numbers; empty for all that it has
/// \throws ListenFailure
Socket listenOnPort(int port, int backlog, const std::string& address = {});

/// The port of a listening socket.
int portOf(const Socket& listener);

/// Takes the next connection without waiting for one.
/// \return a closed socket if there is none or the system can't open more
Socket acceptConnection(const Socket& listener);

/// What a socket is waited for.
struct Awaited {
    const Socket& socket;
    /// Until it takes something; otherwise until something can be read.
    bool isToSend = false;
};

/// Waits until one of the sockets is ready, a connection has ended, or the time is over.
/// \return for each socket whether it is one of those
std::vector<bool> waitForAny(const std::vector<Awaited>& sockets, std::chrono::milliseconds timeout);

/// Reads once, without waiting, at most \p limit bytes.
/// \return nothing if the other side has ended the connection
std::string receiveOnce(const Socket& connection, std::size_t limit);

/// Sends as much of \p bytes as the system takes without waiting.
/// \return how many bytes that were; nothing if the connection has ended
std::optional<std::size_t> sendSome(const Socket& connection, std::string_view bytes);

/// Tells the other side that nothing more will come. It can still be read from.
void endSending(const Socket& connection);

} // namespace pozhil::platform
