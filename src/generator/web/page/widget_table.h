#pragma once

#include "generator/web/measure/widget_kind.h"
#include "language/rows.h"

namespace pozhil {

/// The rows that the files of all widgets end in. The build gathers them: cmake/WidgetTable.cmake.
language::Rows<const WidgetKind*> widgetKinds();

/// The row of the widgets that the source calls \p word; null for a word that is no widget.
const WidgetKind* findWidgetKind(std::string_view word);

} // namespace pozhil
