#pragma once

#include <string>
#include <string_view>

/// Standard output. What is printed waits in a buffer until there is enough of it, but a terminal gets each line at once.

namespace pozhil::engine {

/// Readies the standard streams. One that is closed swallows what is written to it, and gives nothing; so does one whose
/// reader goes away.
void openStandardStreams();

/// What is printed next, for whoever appends to it in place; endPrinting follows.
std::string& waitingOutput();
/// Passes on what waits if there is much of it, or if somebody sits before it.
void endPrinting();
/// Passes on all that waits, however slowly it is read. Once nobody reads any more it is dropped: the program goes on, since
/// it may have other things to do than to print.
void flushOutput() noexcept;

} // namespace pozhil::engine
