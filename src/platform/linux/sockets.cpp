#include "platform/sockets.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace pozhil::platform {
namespace {

constexpr int SWITCHED_ON = 1;

/// The socket calls know every kind of address by its common head.
sockaddr* commonForm(sockaddr_in& address) {
    return reinterpret_cast<sockaddr*>(&address);
}

[[noreturn]] void failAt(ListenStep step) {
    throw ListenFailure(step, std::strerror(errno));
}

/// poll() that goes on after a signal. The time may then become longer, but never endless: signals are rare.
int pollAgain(pollfd* entries, std::size_t count, std::chrono::milliseconds timeout) {
    const auto longest = static_cast<std::chrono::milliseconds::rep>(std::numeric_limits<int>::max());
    const int time = static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(timeout.count(), 0, longest));
    int ready = 0;
    do {
        ready = poll(entries, count, time);
    } while (ready < 0 && errno == EINTR);
    return ready;
}

} // namespace

Socket::~Socket() {
    if (isOpen()) {
        close(descriptor_);
    }
}

Socket::Socket(Socket&& other) noexcept : descriptor_(std::exchange(other.descriptor_, CLOSED)) {}

Socket& Socket::operator=(Socket&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

bool isAddress(const std::string& text) {
    in_addr ignored{};
    return inet_pton(AF_INET, text.c_str(), &ignored) == 1;
}

Socket listenOnPort(int port, int backlog, const std::string& address) {
    Socket listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!listener.isOpen()) {
        failAt(ListenStep::Socket);
    }
    // Otherwise connections of an earlier run, long closed, would keep the port for minutes.
    if (setsockopt(listener.descriptor(), SOL_SOCKET, SO_REUSEADDR, &SWITCHED_ON, sizeof SWITCHED_ON) != 0) {
        failAt(ListenStep::Option);
    }
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_ANY);
    place.sin_port = htons(static_cast<std::uint16_t>(port));
    const bool isKnown = address.empty() || inet_pton(AF_INET, address.c_str(), &place.sin_addr) == 1;
    if (!isKnown || bind(listener.descriptor(), commonForm(place), sizeof place) != 0) {
        failAt(ListenStep::Bind);
    }
    if (listen(listener.descriptor(), backlog) != 0) {
        failAt(ListenStep::Listen);
    }
    return listener;
}

int portOf(const Socket& listener) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    getsockname(listener.descriptor(), commonForm(address), &size);
    return ntohs(address.sin_port);
}

Socket acceptConnection(const Socket& listener) {
    Socket connection(accept4(listener.descriptor(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (connection.isOpen()) {
        // Answers are sent in large parts: holding back the last, short one only costs time.
        setsockopt(connection.descriptor(), IPPROTO_TCP, TCP_NODELAY, &SWITCHED_ON, sizeof SWITCHED_ON);
    }
    return connection;
}

std::vector<bool> waitForAny(const std::vector<Awaited>& sockets, std::chrono::milliseconds timeout) {
    std::vector<pollfd> entries(sockets.size());
    std::transform(sockets.begin(), sockets.end(), entries.begin(), [](const Awaited& awaited) {
        return pollfd{awaited.socket.descriptor(), static_cast<short>(awaited.isToSend ? POLLOUT : POLLIN), 0};
    });
    pollAgain(entries.data(), entries.size(), timeout);
    std::vector<bool> ready(entries.size());
    std::transform(entries.begin(), entries.end(), ready.begin(),
                   [](const pollfd& entry) { return entry.revents != 0; });
    return ready;
}

std::string receiveOnce(const Socket& connection, std::size_t limit) {
    std::string bytes(limit, '\0');
    const ssize_t count = recv(connection.descriptor(), bytes.data(), bytes.size(), 0);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

std::optional<std::size_t> sendSome(const Socket& connection, std::string_view bytes) {
    ssize_t count = 0;
    do {
        // Without MSG_NOSIGNAL, a client that has gone away would end the whole process.
        count = send(connection.descriptor(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    } while (count < 0 && errno == EINTR);
    if (count >= 0) {
        return static_cast<std::size_t>(count);
    }
    return errno == EAGAIN ? std::optional<std::size_t>(0) : std::nullopt;
}

void endSending(const Socket& connection) {
    shutdown(connection.descriptor(), SHUT_WR);
}

} // namespace pozhil::platform
