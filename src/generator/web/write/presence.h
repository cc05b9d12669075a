#pragma once

#include "generator/web/write/extent.h"

#include <string>

namespace pozhil {

struct Expression;
struct EachNode;
struct WidgetNode;

/// What of sizes only the running page knows. First of all how often a child is there: once, only while a condition holds,
/// or once for each element of a list. Then where a text wraps. An edition whose widgets are always there, and whose texts
/// are of one line, has nothing to add.
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

    /// Whether the widget is a text that wraps at the room there is.
    virtual bool wraps(const WidgetNode&) const { return false; }

    /// The lines of a text that wraps: an object of the emitted text with the floats `width` and `height` and the function
    /// `draw`.
    /// \param shown what it shows, a std::string of the emitted text
    virtual std::string wrappedText(const WidgetNode& text, const std::string& shown);
    /// The same size of the text that the source gives it.
    virtual Extent wrappedSize(const WidgetNode& text, const char* side);

    /// The float that a size of the source is in the emitted text, empty for what is none.
    /// \param base text of the size that a percentage is taken of
    virtual std::string sizeText(const Expression*, const std::string& /*base*/) { return {}; }

protected:
    /// What an edition without lists of widgets answers who asks for their elements.
    /// \throws std::logic_error
    [[noreturn]] static void refuseElements();

private:
    [[noreturn]] static void refuseWrapping();
};

} // namespace pozhil
