#pragma once

#include "diagnostics/second_fault.h"
#include "parser/second/token_reader.h"

#include <cstddef>
#include <string>

/// What people who know other languages write by habit, and what a friend would tell them.

namespace pozhil::second {

/// Whether a statement begins with a word of other languages that can't be a variable there.
/// \param statement index of its first token
bool beginsForeign(const TokenReader& tokens, std::size_t statement);

/// What to do about a fault that comes of such a habit; empty if it comes of none that is known.
/// \param statement index of the first token of the statement with the fault
std::string habitRemedy(const TokenReader& tokens, std::size_t statement, const SecondFault& fault);

} // namespace pozhil::second
