#pragma once

#include <string>

namespace pozhil {

class WidgetWriter;
struct AnimationNode;

/// Names of the emitted variables that hold a widget's rectangle and the radius of its corners.
struct AnimatedBox {
    std::string x;
    std::string y;
    std::string width;
    std::string height;
    std::string radius;
};

/// How far the animation has come in this frame, as `t` on its curve; nothing for a widget without one.
///
/// \param isHover name of the emitted variable that tells whether the pointer is over the widget
void emitAnimationProgress(WidgetWriter& widget, const char* isHover);

/// Whether the animation runs while the pointer is over the widget.
bool startsOnHover(const AnimationNode& animation);

/// Moves, sizes and rounds the box by `t`.
void emitAnimationTargets(WidgetWriter& widget, const AnimatedBox& box);

} // namespace pozhil
