#pragma once

namespace pozhil::engine {

/// Calls the function on a stack that is far larger than that of the program, and sets Frame::stackLimit to where it
/// becomes too full. Without room for a large one the stack is smaller. Inside of such a call it is just called.
/// \param function must not throw
void runOnBigStack(void (*function)(void* argument), void* argument);

} // namespace pozhil::engine
