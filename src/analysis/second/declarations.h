#pragma once

#include "analysis/second/model.h"

namespace pozhil::second {

/// Makes the functions, structures and enumerations of a file's imports, and of what they import, visible in the file.
void linkImports(Model& model);

} // namespace pozhil::second
