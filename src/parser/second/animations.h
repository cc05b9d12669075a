#pragma once

#include "language/widgets.h"
#include "parser/second/property_values.h"
#include "parser/tree/animation.h"

namespace pozhil::second {

/// அசைவூட்டம்: what moves a widget.
class AnimationGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// அசைவூட்டம் ( items )
    /// \throws SyntaxFault
    std::unique_ptr<AnimationNode> parseAnimation(const language::Widget& widget);

private:
    void parseItem(AnimationNode& animation);
    void parseTargets(AnimationNode& animation);
    void parseTarget(AnimationNode& animation);
};

} // namespace pozhil::second
