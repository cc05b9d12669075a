#pragma once

#include "language/token_type.h"

#include <cstdint>
#include <string>

namespace pozhil {

/// One token. There are no columns anywhere in the system: a diagnostic knows its line only.
struct Token {
    TokenType type = TokenType::END_OF_FILE;
    /// The text as written: a string without its quotes, a percentage with its sign, a width for INDENT and DEDENT.
    std::string value;
    /// Source line, counted from 1.
    std::int32_t line = 0;
};

} // namespace pozhil
