#pragma once

#include "generator/web/write/extent.h"
#include "generator/web/write/layering.h"
#include "parser/syntax_tree.h"

#include <initializer_list>
#include <optional>
#include <vector>

namespace pozhil {

class Presence;
class WidgetWriter;

/// What a column or a row knows of its children before the page runs.
struct LayoutChildren {
    explicit LayoutChildren(WidgetWriter& layout);

    std::vector<const WidgetNode*> widgets;
    Room across;
    Room down;
    /// The gap between two children, and all gaps together.
    float spacing = 0;
    Extent gaps;
    /// Shares of the free space, all children together.
    Extent totalFlex;
};

/// How many shares of the free space a child takes; nothing for a child with a size of its own.
std::optional<float> flexShare(const WidgetNode& child);

/// Shares of the free space, all children together.
Extent sharesOf(const std::vector<const WidgetNode*>& children, Presence& presence);

/// Whether the layout scrolls.
bool hasScrollBar(const WidgetNode& layout);

/// Assigns the size of a layout along one axis: what the source says, else the window's for the root of a page.
void emitLayoutSize(WidgetWriter& layout, std::initializer_list<const char*> names, const char* variable,
                    const char* forced, const char* window);

/// The clip rectangle of a scrolling layout; written before its children, and taken back after them.
void emitScrollClip(WidgetWriter& layout, const CutArea& area);
/// The same for what doesn't scroll: its texts may stand out of it.
void emitClip(WidgetWriter& layout, const CutArea& area);
/// What the widgets inside know of the clip rectangle, for a layout that sets the clip itself.
void emitClipRectangle(WidgetWriter& layout, const CutArea& area);
void emitClipEnd(WidgetWriter& layout);

/// Writes a child that stands where the texts \p x and \p y of the emitted program tell. Of the elements of a list, of which
/// there may be many, only those near the window are drawn.
void emitVisibleChild(WidgetWriter& layout, const WidgetNode& child, const char* x, const char* y);

/// The direction in which a layout places its children, by the names of its emitted variables.
struct LayoutAxis {
    const char* letter;      ///< W or H, the end of containerW, remainingH and so on
    const char* fixedSum;    ///< what the children with a size of their own take
    const char* gapProperty; ///< the property of a gap that says its size
    const char* gapBase;     ///< what a gap's percentage is taken of
    const char* offset;      ///< how far the layout is scrolled
    Extent (WidgetWriter::*sizeOf)(const WidgetNode&) const;
    Room (WidgetWriter::*roomOf)(const std::vector<const WidgetNode*>&) const;
};

/// How the free space is shared out among the children.
void emitShares(WidgetWriter& layout, const LayoutChildren& children, const LayoutAxis& axis);

/// Keeps the offset of a scrolling layout within its content. `maxScroll` is known after it.
///
/// \param content, visible names of the variables that hold the two sizes
void emitScrollLimits(WidgetWriter& layout, const LayoutAxis& axis, const char* content, const char* visible);

/// An axis as positions name it, and as it ends the names of variables.
struct ScrollAxis {
    const char* property;
    const char* letter;
};

constexpr ScrollAxis SCROLL_X = {"x", "X"};
constexpr ScrollAxis SCROLL_Y = {"y", "Y"};

/// How a scrolling layout eases towards the widget that the program wants to see.
///
/// \param offset name of the variable that holds how far it is scrolled
/// \param start where the layout begins, along the axis
void emitScrollToId(WidgetWriter& layout, const char* offset, const char* start, const ScrollAxis& axis);

} // namespace pozhil
