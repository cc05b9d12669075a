#pragma once

#include <string>
#include <string_view>

/// Standard output. What is printed waits in a buffer until there is enough of it, but a terminal gets each line at once.

namespace pozhil::engine {

/// Readies the standard streams. One that is closed swallows what is written to it, and gives nothing.
void openStandardStreams();

/// What is printed next, for whoever appends to it in place; endPrinting follows.
std::string& waitingOutput();
/// Passes on what waits if there is much of it, or if somebody sits before it.
void endPrinting();
/// Passes on all that waits, however slowly it is read. What can't be written is dropped. A reader that has gone ends the
/// program by its signal, or one that prints for ever would never end before "| head".
void flushOutput() noexcept;

} // namespace pozhil::engine
