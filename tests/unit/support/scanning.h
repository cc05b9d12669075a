#pragma once

#include "scanner/token.h"

#include <string>
#include <vector>

namespace pozhil::test {

/// Scans \p source as the file நிரல்.பொழில்.
std::vector<Token> scan(const std::string& source);

/// The tokens of \p source in written form: a row for each source line, the value of a token in brackets.
///
///     அ = 1      1: IDENTIFIER(அ) ASSIGN(=) NUMBER(1) NEWLINE(\n)
///     (the end)  2: END_OF_FILE
std::string tokens(const std::string& source);

/// The same for tokens that are at hand.
std::string tokenText(const std::vector<Token>& tokens);

/// Code and line of the diagnostic that \p source ends with, such as "பொழி-101 வரி 3"; "none" if it is scanned.
std::string scanFault(const std::string& source);

} // namespace pozhil::test
