#pragma once

#include "generator/web/write/extent.h"

#include <string>

namespace pozhil {

struct EachNode;
struct WidgetNode;

/// How often a child is there: once, only while a condition holds, or once for each element of a list. An edition whose
/// widgets are always there has nothing to add.
class Presence {
public:
    virtual ~Presence() = default;

    /// A bool of the emitted text, asked anew in each frame; empty for a widget that always takes its room.
    virtual std::string shownWhile(const WidgetNode&) { return {}; }

    /// Whether a field that hides what is typed takes room in a row. Where it doesn't, what comes next lies on it.
    virtual bool countsHiddenFields() const { return false; }

    /// What all elements take together, and the most that one takes.
    /// \param ofOne what one takes; it may name the element
    virtual Extent sumOverElements(const EachNode& each, const Extent& ofOne);
    virtual Extent largestOfElements(const EachNode& each, const Extent& ofOne);

protected:
    /// What an edition without lists of widgets answers who asks for their elements.
    /// \throws std::logic_error
    [[noreturn]] static void refuseElements();
};

} // namespace pozhil
