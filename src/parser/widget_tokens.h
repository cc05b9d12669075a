#pragma once

#include "scanner/token.h"

namespace pozhil {

/// Whether \p token is the word of a widget.
bool isWidgetToken(const Token& token);

} // namespace pozhil
