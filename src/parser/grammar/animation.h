#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Animations and their targets.
class AnimationGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// ( keys with values ), அசைவூட்டம் already taken. What it doesn't know is dropped.
    std::unique_ptr<AnimationNode> parseAnimation();

    /// The targets of an animation, each by its own word.
    AnimationTargetNode parseAnimationTarget();

private:
    void parseAnimationItem(AnimationNode& animation);
    void openAnimationValue();
    void parseAnimationTargets(AnimationNode& animation);
    AnimationAmount parseAnimationAmount();
};

} // namespace pozhil
