#pragma once

#include "front_end/front_end.h"

namespace pozhil {

/// Shows the first hints on a program on standard error, a line each, unless the user has switched them off.
void reportHints(const ParsedSource& parsed);

} // namespace pozhil
