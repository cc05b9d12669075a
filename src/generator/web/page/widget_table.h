#pragma once

#include "generator/web/measure/widget_kind.h"

namespace pozhil {

/// The row of the widgets that the source calls \p word; null for a word that is no widget.
const WidgetKind* findWidgetKind(std::string_view word);

} // namespace pozhil
