#pragma once

#include "parser/second/property_values.h"

namespace pozhil::second {

/// Style blocks: the look of the widget around them.
class StyleGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// Whether a style block of this widget comes next, maybe after the key of styles.
    bool isStyleAhead(const language::Widget& widget) const;

    /// word ( properties ), or பாணி : word ( properties )
    /// \throws SyntaxFault
    void parseStyle(const language::Widget& widget, WidgetNode& node);

private:
    void parseProperty(const language::Widget& widget, WidgetNode& node, PropertyList& list);
};

} // namespace pozhil::second
