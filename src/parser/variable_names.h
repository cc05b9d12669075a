#pragma once

#include "scanner/token.h"

namespace pozhil {

/// Whether \p token can name a variable. Keywords can, so that they read naturally as names.
bool isValidVariableName(const Token& token);

} // namespace pozhil
