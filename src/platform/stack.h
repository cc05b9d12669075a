#pragma once

#include <functional>

namespace pozhil::platform {

/// Runs \p work on a stack that bears the highest tree, whatever size the system gives to stacks (ulimit -s), and waits
/// for it. Threads that are started from then on get stacks of the usual size. Without the memory for such a stack,
/// \p work runs on the one that is there.
/// \return what \p work returns
/// \throws what \p work throws
int runOnOwnStack(const std::function<int()>& work);

} // namespace pozhil::platform
