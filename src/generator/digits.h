#pragma once

#include <string>
#include <string_view>

namespace pozhil {

/// \p number with every Tamil digit (௦ to ௯) written as its ASCII digit, so that the target language reads its value.
std::string toAsciiDigits(std::string_view number);

} // namespace pozhil
