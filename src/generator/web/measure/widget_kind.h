#pragma once

#include "generator/web/write/extent.h"

#include <string_view>

namespace pozhil {

class WidgetWriter;
struct Measure;

/// Writes the block of one widget.
using WidgetBlock = void (*)(WidgetWriter&);

/// The size of a widget along an axis, while it is there (metric_rules.h).
using MetricRule = Extent (*)(const Measure& measure);

/// A kind of widget: the row that its file ends in.
struct WidgetKind {
    /// What the source calls it.
    std::string_view word;
    /// Null for a record that a parent reads and nobody draws.
    WidgetBlock block;
    /// Null for a widget that takes no room in its parent.
    MetricRule width = nullptr;
    MetricRule height = nullptr;
};

/// Finds the row of a word; null for a word that is no widget.
using WidgetLookup = const WidgetKind* (*)(std::string_view word);

} // namespace pozhil
