#pragma once

#include "generator/web/measure/metrics.h"
#include "generator/web/measure/widget_kind.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace pozhil {

/// Widths and heights follow the same rules with other words.
struct MetricAxis {
    const char* styleName;
    const char* name;
    Extent (WidgetMetrics::*measure)(const Statement*);
};

/// What a rule measures with.
struct Measure {
    WidgetMetrics& metrics;
    const WidgetNode& widget;
    const MetricAxis& axis;

    /// What children take of the widget.
    Room roomOf(const std::vector<const WidgetNode*>& children) const { return metrics.roomOf(children, axis); }
};

/// A size that the source gives. A percentage is resolved in the running page and counts as nothing here.
std::optional<float> fixedSize(const Expression* expression);

/// The size that the source gives along the axis, in the style block or beside it.
std::optional<float> givenSize(const Measure& measure);

/// The size that the source gives along the axis beside the style block.
std::optional<float> plainSize(const Measure& measure);

/// A whole number among the properties.
float numberProperty(const WidgetNode& widget, const char* name, float usual);

template <int USUAL> Extent sized(const Measure& measure) {
    return givenSize(measure).value_or(static_cast<float>(USUAL));
}

template <int USUAL> Extent plainSized(const Measure& measure) {
    return plainSize(measure).value_or(static_cast<float>(USUAL));
}

template <int SIZE> Extent fixed(const Measure&) {
    return static_cast<float>(SIZE);
}

Extent largestChild(const Measure& measure);
Extent firstChild(const Measure& measure);

/// Children in a line, with gaps between them.
Extent lineOfChildren(const Measure& measure);

/// The room that a widget offers which is as wide as \p given, a float of the emitted text, unless its parent imposes another
/// width.
OfferedRoom roomOfOwnWidth(const std::string& given);

/// The room that a layout offers which takes all it gets, unless the source gives its width as a number.
OfferedRoom roomOfLayout(const Measure& measure, const WidgetNode& child);

/// The room of a widget that only stands around its child.
OfferedRoom sameRoom(const Measure& measure, const WidgetNode& child);

/// The room of what is as wide as the window.
OfferedRoom roomOfWindow(const Measure& measure, const WidgetNode& child);

/// How wide a button's label of the given size in pixels is, by a rough width per code point.
float labelWidth(const WidgetNode& widget, float size);

/// Letters of a text, roughly: a Tamil letter may have several code points.
std::size_t countCodePoints(const std::string& text);

/// The size of a text whose source says none, in pixels.
constexpr float USUAL_TEXT_SIZE = 16.0F;

} // namespace pozhil
