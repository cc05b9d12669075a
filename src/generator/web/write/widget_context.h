#pragma once

#include "emit/code_writer.h"
#include "generator/web/write/edition_writer.h"
#include "generator/web/write/extent.h"
#include "parser/syntax_tree.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace pozhil {

/// What all widgets of a program share while they are written: the text, the edition, the running number, and each
/// other.
class WidgetContext {
public:
    /// \param out, edition outlive the context; the edition writes to the same text
    WidgetContext(CodeWriter& out, EditionWriter& edition) : out_(out), edition_(edition) {}
    virtual ~WidgetContext() = default;

    WidgetContext(const WidgetContext&) = delete;
    WidgetContext& operator=(const WidgetContext&) = delete;

    CodeWriter& out() { return out_; }
    EditionWriter& edition() { return edition_; }

    /// The next number in order of emission; it tells static locals of the emitted text apart.
    std::uint64_t nextNumber() { return ++numbers_; }

    /// Writes \p widget and all below it, with its corner where the texts \p x and \p y of the emitted program tell.
    virtual void writeWidget(const WidgetNode& widget, const std::string& x, const std::string& y) = 0;

    /// Sizes that a widget has while it is there.
    virtual Extent widthOf(const WidgetNode& widget) = 0;
    virtual Extent heightOf(const WidgetNode& widget) = 0;

    /// What children take of their parent.
    virtual Room roomAcross(const std::vector<const WidgetNode*>& children) = 0;
    virtual Room roomDown(const std::vector<const WidgetNode*>& children) = 0;

    /// Learns what stands on a page before its widgets are written.
    virtual void beginPage(const WidgetNode& root) = 0;

    /// Whether the widget is a text that wraps, or holds one.
    virtual bool holdsWrappedText(const WidgetNode& widget) const = 0;

    /// In how many lists within each other what is being written comes, once for each element.
    std::size_t depthOfEach() const { return elementScopes_.size(); }

    /// The declarations by which it belongs to the elements of these lists, from the one at \p depth inwards.
    std::string elementScopes(std::size_t depth) const {
        std::string scopes;
        for (; depth < elementScopes_.size(); ++depth) {
            scopes += elementScopes_[depth] + "; ";
        }
        return scopes;
    }

    /// Everything written while it lives comes once for each element.
    class InEach {
    public:
        InEach(WidgetContext& context, std::string elementScope) : context_(context) {
            context_.elementScopes_.push_back(std::move(elementScope));
        }
        ~InEach() { context_.elementScopes_.pop_back(); }
        InEach(const InEach&) = delete;
        InEach& operator=(const InEach&) = delete;

    private:
        WidgetContext& context_;
    };

private:
    CodeWriter& out_;
    EditionWriter& edition_;
    std::uint64_t numbers_ = 0;
    std::vector<std::string> elementScopes_;
};

} // namespace pozhil
