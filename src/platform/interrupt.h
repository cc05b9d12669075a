#pragma once

namespace pozhil::platform {

/// From now on an interrupt (Ctrl+C) writes \p message to standard output and ends the process with status 0, whatever
/// any thread is doing. What std::cout still holds is lost: flush it before waiting.
/// \param message must live as long as the process
void endOnInterrupt(const char* message);

} // namespace pozhil::platform
