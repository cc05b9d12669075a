#pragma once

#include "platform/sockets.h"

#include <chrono>
#include <string>

namespace pozhil::test {

/// A client over a bare socket on this machine, which may behave as badly as it likes.
class TestClient {
public:
    /// \throws std::runtime_error if nobody listens there
    explicit TestClient(int port);

    /// False if the connection has ended.
    bool send(const std::string& bytes);
    /// Whatever comes first.
    std::string receiveSome();
    /// Everything until the other side ends the connection. A reset, or no end at all, is a failure of the test.
    /// \param pause how long to wait before each read
    std::string receiveAll(std::chrono::milliseconds pause = {});
    void endSending();
    /// Ends the connection without goodbye.
    void reset();

private:
    platform::Socket socket_;
};

} // namespace pozhil::test
