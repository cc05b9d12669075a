#pragma once

namespace pozhil::engine {

/// Calls the function on a stack that is far larger than that of the program, and sets Frame::stackLimit to where it
/// becomes too full. Without room for a large one the stack is smaller. Inside of such a call it is just called.
/// \param function must not throw
void runOnBigStack(void (*function)(void* argument), void* argument);

/// Asks for more room where the stack has become too full.
/// \param end where the call that asks begins
/// \return whether there is some; the limit has moved then
bool extendStack(const void* end);

} // namespace pozhil::engine
