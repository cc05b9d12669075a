#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Values of the program as the emitted text writes them.

namespace pozhil::resolved::writer {

/// "…" with every byte as it is: what isn't plain text is escaped, and long ones are several literals, a line each.
std::string textLiteral(std::string_view bytes);

/// A whole number as a Whole.
std::string wholeLiteral(std::int64_t value);

/// A decimal that reads back as the very same.
std::string decimalLiteral(double value);

/// A comment of one line, "// text", whatever the text holds.
std::string lineComment(std::string_view text);

} // namespace pozhil::resolved::writer
