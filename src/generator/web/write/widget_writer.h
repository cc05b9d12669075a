#pragma once

#include "emit/emitted_block.h"
#include "generator/web/write/edition_writer.h"
#include "generator/web/write/extent.h"
#include "generator/web/write/widget_properties.h"
#include "parser/syntax_tree.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

class WidgetContext;

/// What the emitter of a widget works with: the widget, where it stands, and the means to write its block.
class WidgetWriter {
public:
    /// \param x, y texts of the emitted program that say where the widget's corner stands
    /// \param number tells the widget's static locals from those of other widgets
    WidgetWriter(WidgetContext& context, const WidgetNode& widget, std::string x, std::string y, std::uint64_t number);

    const WidgetNode& widget() const { return widget_; }
    const std::string& x() const { return x_; }
    const std::string& y() const { return y_; }
    std::string number() const { return std::to_string(number_); }
    /// A number for a part of the widget that has static locals of its own.
    std::string partNumber();

    /// Whether the widget stands at the corner of the page, where layouts fill the window.
    bool isRoot() const;
    /// Whether its top is the page's top, so that there is no variable of a parent to move on.
    bool isAtTop() const;

    /// Sizes that a widget has while it is there.
    Extent widthOf(const WidgetNode& widget) const;
    Extent heightOf(const WidgetNode& widget) const;

    /// What children take of their parent.
    Room roomAcross(const std::vector<const WidgetNode*>& children) const;
    Room roomDown(const std::vector<const WidgetNode*>& children) const;

    /// Whether the widget is a text that wraps, or holds one.
    bool holdsWrappedText(const WidgetNode& widget) const;

    /// Writes a block of the emitted text. Besides \p holes it may have `$x`, `$y` (the position) and `$n` (the number).
    void block(const Block& block, const Holes& holes = {});

    /// What the language of the program writes in the holes of the block.
    EditionWriter& edition() const;
    /// The bodies of user's statements; for a hole that stands alone in its line.
    Filling statements(const StatementList& statements);
    /// Blocks and widgets that \p write writes, one level deeper; for a hole that stands alone in its line.
    Filling blocks(std::function<void()> write);
    /// Writes another widget, at the position that \p x and \p y tell.
    void child(const WidgetNode& widget, const std::string& x, const std::string& y);

    using WriteChild = std::function<void(const WidgetNode&)>;
    /// Writes what \p write writes for each of \p children, in functions of the emitted text where they are many. What
    /// isn't always there is asked whether it is; what is there for each element of a list comes in a loop over it.
    void eachChild(const std::vector<const WidgetNode*>& children, const WriteChild& write);

    /// How far a child moves on what the layout places its children by; nothing if only the running page knows.
    using StepOf = std::function<std::optional<Extent>(const WidgetNode&)>;
    /// The same where children stand one after the other. Of lists whose elements all take the same room, those in the
    /// window are gone through alone.
    /// \param position, end as in Course
    void eachChildAlong(const std::vector<const WidgetNode*>& children, const std::string& position,
                        const std::string& end, const StepOf& stepOf, const WriteChild& write);

    /// The same for \p children as they are, whether they are there or not, and lists as one.
    void inParts(const std::vector<const WidgetNode*>& children, const WriteChild& write);
    /// Writes a widget that isn't a child of a layout, at the position that \p x and \p y tell, if it is there.
    void slot(const WidgetNode& widget, const std::string& x, const std::string& y);

    /// Whether what is being written comes once for each element of a list that is a child of this widget.
    bool isInOwnEach() const;
    /// The declarations, each with a semicolon, by which what is written after them belongs to the element.
    std::string elementScopes() const;
    /// A declaration, without a semicolon: the variable \p name of the block keeps its value from frame to frame. In a list
    /// each element has one of its own.
    Filling state(const std::string& type, const std::string& name, const Filling& first) const;
    /// A std::string of the emitted text by which the page knows what it makes for the widget. In a list each element has
    /// one of its own.
    std::string nameFrom(const std::string& name) const;
    /// An unsigned number of the emitted text by which the running page knows the widget. In a list each element
    /// has one of its own.
    std::string key() const;

    /// A fault in the source that is told without its place, to be thrown.
    Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const;

private:
    /// Whether the widget itself comes once for each element of a list.
    bool isInEach() const { return depthOfEach_ > 0; }
    void writeChild(const WidgetNode& child, const WriteChild& write);
    std::optional<Extent> stepOfElement(const EachNode& each, const StepOf& stepOf);
    void writeEach(const EachNode& each, const WriteChild& write, const Course* course);
    void whileShown(const WidgetNode& widget, const WriteChild& write);

    WidgetContext& context_;
    const WidgetNode& widget_;
    std::string x_;
    std::string y_;
    std::uint64_t number_;
    std::size_t depthOfEach_;
};

} // namespace pozhil
