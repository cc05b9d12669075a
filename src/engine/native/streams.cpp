#include "engine/memory.h"
#include "engine/system.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace pozhil::engine {
namespace {

/// A file that the program opens would get the number of a stream that is closed, and what is printed with it.
void fillGap(int stream) {
    if (fcntl(stream, F_GETFD) == -1 && errno == EBADF) {
        open("/dev/null", O_RDWR);
    }
}

/// Whether writing may be tried again after it failed, at once or when a stream that doesn't wait has room again.
bool canWriteAgain(int error) {
    if (error == EAGAIN || error == EWOULDBLOCK) {
        pollfd output = {STDOUT_FILENO, POLLOUT, 0};
        return poll(&output, 1, -1) == 1 || errno == EINTR;
    }
    return error == EINTR;
}

} // namespace

bool openStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        fillGap(stream);
    }
    return isatty(STDOUT_FILENO) == 1;
}

void writeOutput(std::string_view text) noexcept {
    while (!text.empty()) {
        const ssize_t written = write(STDOUT_FILENO, text.data(), text.size());
        if (written > 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (!canWriteAgain(errno)) {
            break;
        }
    }
}

std::string inputLine(Place /*place*/) {
    // Kept from line to line, as getline wants it.
    static char* buffer = nullptr;
    static std::size_t capacity = 0;
    errno = 0;
    const ssize_t size = getline(&buffer, &capacity, stdin);
    if (size < 0 && errno == ENOMEM) {
        raiseOutOfMemory();
    }
    std::string line(buffer, size > 0 ? static_cast<std::size_t>(size) : 0);
    for (const char end : {'\n', '\r'}) {
        if (!line.empty() && line.back() == end) {
            line.pop_back();
        }
    }
    return line;
}

} // namespace pozhil::engine
