#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/system.h"

#include <unistd.h>

namespace pozhil::engine {

bool openStreams() {
    // Each line shows in the console of the browser at once, so that what a handler prints that never ends is seen too.
    return true;
}

void writeOutput(std::string_view text) noexcept {
    while (!text.empty()) {
        const ssize_t written = write(STDOUT_FILENO, text.data(), text.size());
        if (written <= 0) {
            break;
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

std::string inputLine(Place place) {
    raise(NO_INPUT, place);
}

} // namespace pozhil::engine
