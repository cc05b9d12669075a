#pragma once

#include "generator/web/measure/widget_kind.h"
#include "generator/web/write/presence.h"
#include "parser/syntax_tree.h"

#include <string>
#include <unordered_map>

namespace pozhil {

class WidgetMetrics;

/// How wide the room is that widgets offer to those in them, as far as texts that wrap ask for it. Of a widget that holds no
/// such text nothing is known.
class Rooms {
public:
    /// \param findKind finds the rules by which widgets offer room
    /// \param presence knows which texts wrap; it outlives the rooms
    Rooms(WidgetLookup findKind, const Presence& presence) : findKind_(findKind), presence_(presence) {}

    /// Learns what stands in \p root, a widget that is given the room of the page.
    void learn(const WidgetNode& root);

    /// Whether \p widget is a text that wraps, or holds one.
    bool holdsWrappedText(const WidgetNode& widget) const { return parents_.count(&widget) != 0; }

    /// What is offered to \p widget, which isn't null if it holds a text that wraps.
    /// \param metrics knows what its neighbours take
    const OfferedRoom* offeredTo(const WidgetNode& widget, WidgetMetrics& metrics);

private:
    bool learn(const WidgetNode& widget, const WidgetNode* parent);

    WidgetLookup findKind_;
    const Presence& presence_;
    /// Of each widget that holds a text that wraps the widget that it stands in; null for the root.
    std::unordered_map<const WidgetNode*, const WidgetNode*> parents_;
    std::unordered_map<const WidgetNode*, OfferedRoom> offered_;
};

} // namespace pozhil
