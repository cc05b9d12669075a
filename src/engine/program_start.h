#pragma once

#include "engine/calls.h"

/// What all programs have in common, however they go on after their statements.

namespace pozhil::engine {

/// Readies streams, memory, members and structures for a program, which becomes the running one.
void prepareProgram(const ProgramInfo& program);

/// Carries out the statements of the running program.
void startProgram();

/// Calls the function. What the C++ library throws becomes a fault as well, and so does whatever else is thrown.
void callWithFaults(void (*function)(void* argument), void* argument);

} // namespace pozhil::engine
