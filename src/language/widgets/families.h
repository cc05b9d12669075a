#pragma once

#include "language/widgets.h"

/// The widgets by families. In each file a widget's properties stand above its row.
namespace pozhil::language {

/// Texts and buttons.
Rows<Widget> textWidgets();
/// What a program is told by.
Rows<Widget> inputWidgets();
/// Layouts, and the gaps and shares in them.
Rows<Widget> layoutWidgets();
/// Boxes and pictures.
Rows<Widget> boxWidgets();
/// Bars, pages, and what stands above a page.
Rows<Widget> barWidgets();
/// Indicators.
Rows<Widget> indicatorWidgets();

} // namespace pozhil::language
