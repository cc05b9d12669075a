#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace pozhil::platform {

/// Reads the bytes that standard input has by now; std::cin must not be read besides.
/// \param wait how long to wait for the first of them; negative for as long as it takes
/// \return empty if there was none in that time, nothing at the end of input or if it can't be read
std::optional<std::string> readStandardInput(std::chrono::milliseconds wait);

/// From here on, writing where nobody reads any more fails instead of ending the process.
void failWritesToNobody();

/// Writes all bytes to standard output, past std::cout.
/// \return false if nobody takes them
bool writeStandardOutput(std::string_view bytes);

} // namespace pozhil::platform
