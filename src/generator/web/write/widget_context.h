#pragma once

#include "emit/code_writer.h"
#include "generator/web/write/edition.h"
#include "generator/web/write/extent.h"
#include "parser/syntax_tree.h"

#include <cstdint>
#include <string>
#include <vector>

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

    /// Sizes that a widget has while it is there.
    virtual Extent widthOf(const WidgetNode& widget) = 0;
    virtual Extent heightOf(const WidgetNode& widget) = 0;

    /// What children take of their parent.
    virtual Room roomAcross(const std::vector<const WidgetNode*>& children) = 0;
    virtual Room roomDown(const std::vector<const WidgetNode*>& children) = 0;

    /// In how many lists within each other what is being written comes, once for each element.
    int depthOfEach() const { return depthOfEach_; }

    /// Everything written while it lives comes once for each element.
    class InEach {
    public:
        explicit InEach(WidgetContext& context) : context_(context) { ++context_.depthOfEach_; }
        ~InEach() { --context_.depthOfEach_; }
        InEach(const InEach&) = delete;
        InEach& operator=(const InEach&) = delete;

    private:
        WidgetContext& context_;
    };

private:
    CodeWriter& out_;
    Edition& edition_;
    std::uint64_t numbers_ = 0;
    int depthOfEach_ = 0;
};

} // namespace pozhil
