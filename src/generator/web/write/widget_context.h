#pragma once

#include "emit/code_writer.h"
#include "generator/web/write/edition.h"
#include "parser/syntax_tree.h"

#include <cstdint>
#include <string>

namespace pozhil {

/// What all widgets of a program share while they are written: the text, the edition, the running number, and each
/// other.
class WidgetContext {
public:
    /// \param out, edition outlive the context; the edition writes to the same text
    WidgetContext(CodeWriter& out, Edition& edition) : out_(out), edition_(edition) {}
    virtual ~WidgetContext() = default;

    WidgetContext(const WidgetContext&) = delete;
    WidgetContext& operator=(const WidgetContext&) = delete;

    CodeWriter& out() { return out_; }
    Edition& edition() { return edition_; }

    /// The next number in order of emission; it tells static locals of the emitted text apart.
    std::uint64_t nextNumber() { return ++numbers_; }

    /// Writes \p widget and all below it, with its corner where the texts \p x and \p y of the emitted program tell.
    virtual void writeWidget(const WidgetNode& widget, const std::string& x, const std::string& y) = 0;

    /// Sizes of a widget in pixels, as far as the source tells them.
    virtual float widthOf(const WidgetNode& widget) = 0;
    virtual float heightOf(const WidgetNode& widget) = 0;

private:
    CodeWriter& out_;
    Edition& edition_;
    std::uint64_t numbers_ = 0;
};

} // namespace pozhil
