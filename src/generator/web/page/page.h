#pragma once

#include "parser/tree/application.h"

namespace pozhil {

class WidgetContext;

/// A page: the application \p app, drawn while it is the page being shown.
void emitPage(WidgetContext& context, const WebAppNode& app);

} // namespace pozhil
