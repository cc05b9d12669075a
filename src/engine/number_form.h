#pragma once

#include "engine/value.h"

#include <string>

/// Numbers as texts.

namespace pozhil::engine {

void appendWhole(std::string& out, Whole number);

/// The shortest form that reads back the same to 15 digits: "0.3", "2", "1e+20", "1e-05".
void appendDecimal(std::string& out, Decimal number);

} // namespace pozhil::engine
