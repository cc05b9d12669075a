#pragma once

#include "generator/web/measure/metrics.h"

#include <optional>

namespace pozhil {

/// Widths and heights follow the same rules with other words.
struct MetricAxis {
    const char* styleName;
    const char* name;
    float (WidgetMetrics::*measure)(const Statement*);
};

/// What a rule measures with.
struct Measure {
    WidgetMetrics& metrics;
    const WidgetNode& widget;
    const MetricAxis& axis;

    float of(const Statement* child) const { return (metrics.*axis.measure)(child); }
};

/// The size of a widget along the axis of \p measure.
using MetricRule = float (*)(const Measure& measure);

/// A size that the source gives. A percentage is resolved in the running page and counts as nothing here.
std::optional<float> fixedSize(const Expression* expression);

/// The size that the source gives along the axis, in the style block or beside it.
std::optional<float> givenSize(const Measure& measure);

/// The size that the source gives along the axis beside the style block.
std::optional<float> plainSize(const Measure& measure);

/// A whole number among the properties.
float numberProperty(const WidgetNode& widget, const char* name, float usual);

template <int USUAL> float sized(const Measure& measure) {
    return givenSize(measure).value_or(static_cast<float>(USUAL));
}

template <int USUAL> float plainSized(const Measure& measure) {
    return plainSize(measure).value_or(static_cast<float>(USUAL));
}

template <int SIZE> float fixed(const Measure&) {
    return static_cast<float>(SIZE);
}

float largestChild(const Measure& measure);
float firstChild(const Measure& measure);

/// Children in a line, with gaps between them.
float lineOfChildren(const Measure& measure);

/// மடிப்பு: three lines are assumed, since nobody knows the window yet.
float wrapHeight(const Measure& measure);

float textButtonWidth(const Measure& measure);
float buttonWidth(const Measure& measure);
float textWidth(const Measure& measure);
float textHeight(const Measure& measure);
float paddingSize(const Measure& measure);
float checkBoxWidth(const Measure& measure);
float checkBoxHeight(const Measure& measure);

/// பெட்டி: from the style record among its children first.
float boxSize(const Measure& measure);

float cardWidth(const Measure& measure);
float cardHeight(const Measure& measure);
float spinnerSize(const Measure& measure);
float tileHeight(const Measure& measure);

float gridWidth(const Measure& measure);
float gridHeight(const Measure& measure);

} // namespace pozhil
