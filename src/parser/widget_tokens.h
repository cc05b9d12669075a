#pragma once

#include "language/widgets.h"
#include "scanner/token.h"

namespace pozhil {

/// Whether \p token is the word of a widget.
bool isWidgetToken(const Token& token);

/// What stands between the brackets of the widget that \p word begins; words that begin none have the general form.
language::WidgetForm widgetForm(const Token& word);

} // namespace pozhil
