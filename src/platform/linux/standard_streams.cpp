#include "platform/standard_streams.h"

#include <cerrno>
#include <csignal>
#include <cstddef>

#include <poll.h>
#include <unistd.h>

namespace pozhil::platform {
namespace {

constexpr std::size_t MOST_AT_ONCE = 65536;

} // namespace

std::optional<std::string> readStandardInput(std::chrono::milliseconds wait) {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    const int ready = poll(&input, 1, wait.count() < 0 ? -1 : static_cast<int>(wait.count()));
    if (ready == 0 || (ready < 0 && errno == EINTR)) {
        return std::string();
    }
    std::string bytes(MOST_AT_ONCE, '\0');
    ssize_t count = -1;
    do {
        count = read(STDIN_FILENO, bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    if (count <= 0) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

void failWritesToNobody() {
    std::signal(SIGPIPE, SIG_IGN);
}

bool writeStandardOutput(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace pozhil::platform
