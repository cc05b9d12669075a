#include "engine/output.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace pozhil::engine {
namespace {

constexpr std::size_t ENOUGH = std::size_t{1} << 16U;

bool isTerminal = false;

/// Never destroyed, since values of the program may be printed until its very end.
std::string& buffer() {
    static auto* const text = new std::string;
    return *text;
}

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

void openStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        fillGap(stream);
    }
    isTerminal = isatty(STDOUT_FILENO) == 1;
    buffer(); // as long as there is memory for it: a program that prints nothing may end for want of memory
}

std::string& waitingOutput() {
    return buffer();
}

void endPrinting() {
    if (isTerminal || buffer().size() >= ENOUGH) {
        flushOutput();
    }
}

void flushOutput() noexcept {
    std::string_view rest = buffer();
    while (!rest.empty()) {
        const ssize_t written = write(STDOUT_FILENO, rest.data(), rest.size());
        if (written > 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (!canWriteAgain(errno)) {
            break;
        }
    }
    buffer().clear();
}

} // namespace pozhil::engine
