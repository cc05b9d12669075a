#include "support/test_client.h"

#include <cerrno>
#include <cstdint>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>

#include <gtest/gtest.h>

namespace pozhil::test {

TestClient::TestClient(int port) : socket_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    if (connect(socket_.descriptor(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
        throw std::runtime_error("no connection to the server");
    }
    const timeval patience{20, 0};
    setsockopt(socket_.descriptor(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    setsockopt(socket_.descriptor(), SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
}

bool TestClient::send(const std::string& bytes) {
    return ::send(socket_.descriptor(), bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
}

std::string TestClient::receiveSome() {
    std::string buffer(std::size_t{256} * 1024, '\0');
    const ssize_t count = recv(socket_.descriptor(), buffer.data(), buffer.size(), 0);
    if (count < 0) {
        ADD_FAILURE() << (errno == EAGAIN ? "the server neither answers nor closes" : "the connection was reset");
    }
    buffer.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return buffer;
}

std::string TestClient::receiveAll(std::chrono::milliseconds pause) {
    std::string all;
    std::string some;
    do {
        std::this_thread::sleep_for(pause);
        some = receiveSome();
        all += some;
    } while (!some.empty());
    return all;
}

void TestClient::endSending() {
    platform::endSending(socket_);
}

void TestClient::reset() {
    const linger none{1, 0};
    setsockopt(socket_.descriptor(), SOL_SOCKET, SO_LINGER, &none, sizeof none);
    socket_ = platform::Socket();
}

} // namespace pozhil::test
