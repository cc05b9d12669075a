#pragma once

#include "emit/emitted_block.h"
#include "generator/web/write/edition.h"
#include "generator/web/write/widget_properties.h"
#include "parser/syntax_tree.h"

#include <cstdint>
#include <functional>
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

    /// Sizes of a widget as far as the source tells them, as constants of the emitted text.
    float widthOf(const WidgetNode& widget) const;
    float heightOf(const WidgetNode& widget) const;

    /// Writes a block of the emitted text. Besides \p holes it may have `$x`, `$y` (the position) and `$n` (the number).
    void block(const Block& block, const Holes& holes = {});

    /// What the language of the program writes in the holes of the block.
    Edition& edition() const;
    /// The bodies of user's statements; for a hole that stands alone in its line.
    Filling statements(const StatementList& statements);
    /// Blocks and widgets that \p write writes, one level deeper; for a hole that stands alone in its line.
    Filling blocks(std::function<void()> write);
    /// Writes another widget, at the position that \p x and \p y tell.
    void child(const WidgetNode& widget, const std::string& x, const std::string& y);
    /// Writes what \p write writes for each of \p children, in functions of the emitted text where they are many.
    void eachChild(const std::vector<const WidgetNode*>& children, const std::function<void(const WidgetNode&)>& write);

    /// A fault in the source that is told without its place, to be thrown.
    Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const;

private:
    WidgetContext& context_;
    const WidgetNode& widget_;
    std::string x_;
    std::string y_;
    std::uint64_t number_;
};

} // namespace pozhil
