#pragma once

#include <string>
#include <string_view>

namespace pozhil {

/// \p number with every Tamil digit (௦ to ௯) written as its ASCII digit, so that the target language reads its value.
std::string toAsciiDigits(std::string_view number);

/// The value of a number as the source writes it, in ASCII or Tamil digits. One that is too large for the result's type
/// counts as the largest that isn't.
float floatOf(std::string_view number);
int intOf(std::string_view number);

} // namespace pozhil
