#pragma once

#include "diagnostics/second_fault.h"
#include "parser/second/token_reader.h"

#include <cstddef>

/// What people who know other languages write by habit, and what a friend would tell them.

namespace pozhil::second {

/// Whether a statement begins with a word of other languages that can't be a variable there.
/// \param statement index of its first token
bool beginsForeign(const TokenReader& tokens, std::size_t statement);

/// Notes with a fault that comes of such a habit what to do about it; nothing if it comes of none that is known.
/// \param statement index of the first token of the statement with the fault
void setHabitRemedy(const TokenReader& tokens, std::size_t statement, SecondFault& fault);

} // namespace pozhil::second
