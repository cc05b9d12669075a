#pragma once

#include "language/widgets.h"

#include <string_view>
#include <vector>

/// What may be written in அசைவூட்டம், which moves a widget.
namespace pozhil::language::second {

/// The word of what changes how far.
constexpr std::string_view ANIMATION_TARGETS = "இலக்கு";

/// The property that names the curve.
constexpr std::string_view ANIMATION_CURVE = "வகை";

/// The properties between the brackets of an animation.
Rows<WidgetProperty> animationProperties();

/// What an animation of \p widget can change; nothing if the widget takes none.
std::vector<const WidgetProperty*> animationTargets(const Widget& widget);

/// The names of all curves.
std::vector<std::string_view> curveNames();

} // namespace pozhil::language::second
