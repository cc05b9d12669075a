#pragma once

#include <string>
#include <string_view>

/// Standard output. What is printed waits in a buffer until there is enough of it, but a terminal gets each line at once.

namespace pozhil::engine {

/// Readies the standard streams.
void openStandardStreams();

/// What is printed next, for whoever appends to it in place; endPrinting follows.
std::string& waitingOutput();
/// Passes on what waits if there is much of it, or if somebody sits before it.
void endPrinting();
/// Passes on all that waits.
void flushOutput() noexcept;

} // namespace pozhil::engine
