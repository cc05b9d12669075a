#pragma once

#include "parser/tree/second_edition.h"

#include <optional>
#include <string_view>

namespace pozhil::second {

/// What kind of value is written out; None for what only the running program knows.
enum class LiteralKind { None, Number, Percentage, Text, Truth, List, Map, Function };

/// The kind of a literal, with a sign before it or brackets around it.
LiteralKind literalKind(const Expression& value);

/// Its name, for messages.
const char* literalName(LiteralKind kind);

/// The number that is written out, with its sign; nothing for anything else.
std::optional<float> writtenNumber(const Expression& value);

/// Whether \p text is "#RRGGBB" or "#RRGGBBAA".
bool isHexColour(std::string_view text);

} // namespace pozhil::second
