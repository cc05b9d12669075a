#pragma once

#include <string>

namespace pozhil {

/// The value of a number as the source writes it, in ASCII or Tamil digits. One that is too large for the result's type
/// counts as the largest that isn't.
float floatOf(const std::string& number);
int intOf(const std::string& number);

} // namespace pozhil
