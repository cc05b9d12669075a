#pragma once

#include "generator/web/write/extent.h"

#include <string>
#include <string_view>

namespace pozhil {

class WidgetWriter;
struct Measure;
struct WidgetNode;

/// Writes the block of one widget.
using WidgetBlock = void (*)(WidgetWriter&);

/// The size of a widget along an axis, while it is there (metric_rules.h).
using MetricRule = Extent (*)(const Measure& measure);

/// The width that a widget offers to one of those in it, as floats of the emitted text. They hold where the widget itself
/// is drawn or measured: there `pozhil_room_width` and `pozhil_imposed_width` are what it was offered.
struct OfferedRoom {
    std::string width = "pozhil_room_width";
    /// What is imposed on it, which a padding between may make larger than its room; -1 leaves it free.
    std::string imposed = "-1.0f";
};

/// What a widget offers to \p child, which may be one of the elements of a list in it.
using RoomRule = OfferedRoom (*)(const Measure& measure, const WidgetNode& child);

/// A kind of widget: the row that its file ends in.
struct WidgetKind {
    /// What the source calls it.
    std::string_view word;
    /// Null for a record that a parent reads and nobody draws.
    WidgetBlock block;
    /// Null for a widget that takes no room in its parent.
    MetricRule width = nullptr;
    MetricRule height = nullptr;
    /// Null for a widget that offers all its room, and imposes nothing.
    RoomRule room = nullptr;
};

/// Finds the row of a word; null for a word that is no widget.
using WidgetLookup = const WidgetKind* (*)(std::string_view word);

} // namespace pozhil
