#pragma once

#include "engine/value.h"

#include <cstddef>
#include <string>
#include <string_view>

/// What the engine asks of the system that it runs on. native/ and web/ answer, each with a source of the same name: one is
/// for programs of the console, the other for those that em++ compiles. So it is with big_stack.h.

namespace pozhil::engine {

// streams.cpp

/// Readies the standard streams. One that is closed swallows what is written to it, and gives nothing.
/// \return whether somebody sits before what is printed
bool openStreams();

/// Writes to standard output, however slowly it is read. What can't be written is dropped. A reader that has gone ends the
/// program by its signal, or one that prints for ever would never end before "| head".
void writeOutput(std::string_view text) noexcept;

/// The next line of standard input without its end; empty after the last one. A page has none: a fault.
std::string inputLine(Place place);

// waiting.cpp

/// Lets time pass. A page would stand still: a fault.
/// \param seconds not negative
void passTime(Decimal seconds, Place place);

// clocks.cpp

/// A time in seconds, above 0, that only tells how long something took. To ask for it doesn't keep a page from resting.
Decimal workClock();

// reserve.cpp

/// Bytes that are put by for telling that memory is wanting.
std::size_t reserveSize() noexcept;

// decimals.cpp

/// Writes a number in 15 digits at most, as %.15g does.
/// \param digits where to
/// \return the end of what is written
char* writeDecimal(char (&digits)[32], Decimal number);

} // namespace pozhil::engine
