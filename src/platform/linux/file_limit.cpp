#include "platform/file_limit.h"

#include <csignal>

namespace pozhil::platform {
namespace {

void goOn(int) {}

} // namespace

/// A signal that is ignored would stay ignored in programs that are started; a handler ends with this one.
void failWritesBeyondFileLimit() {
    std::signal(SIGXFSZ, goOn);
}

} // namespace pozhil::platform
