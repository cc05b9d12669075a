#pragma once

#include "parser/second/property_values.h"
#include "parser/tree/animation.h"

namespace pozhil::second {

/// அசைவூட்டம்: what moves a widget.
class AnimationGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// அசைவூட்டம் ( properties, இலக்கு ( targets ) )
    /// \return null if the widget can't be moved, which is told
    /// \throws SyntaxFault
    std::unique_ptr<AnimationNode> parseAnimation(const language::Widget& widget);

private:
    void parseItem(AnimationNode& animation, const language::Widget& widget, PropertyList& list);
    void checkCurve(const WrittenProperty& written, const std::string& name);
    void parseTargets(AnimationNode& animation, const language::Widget& widget);
    void parseTarget(AnimationNode& animation, PropertyList& list);
};

} // namespace pozhil::second
