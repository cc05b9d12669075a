#pragma once

#include <map>
#include <optional>
#include <string>

namespace pozhil {

/// Records of an animation block. They hold values, not nodes.

/// How far one animated quantity goes: the value, whether it is relative, and whether it was given a minus.
struct AnimationAmount {
    float value = 0;
    bool isDelta = false;
    bool isNegative = false;
};

/// What an animation changes; a target that is not named stays empty.
struct AnimationTargetNode {
    std::optional<AnimationAmount> fadeIn;
    std::optional<AnimationAmount> fadeOut;
    std::optional<AnimationAmount> scaleUp;
    std::optional<AnimationAmount> scaleDown;
    std::optional<AnimationAmount> slideLeft;
    std::optional<AnimationAmount> slideRight;
    std::optional<AnimationAmount> slideUp;
    std::optional<AnimationAmount> slideDown;
    std::optional<AnimationAmount> rotateCw;
    std::optional<AnimationAmount> rotateCcw;
    std::optional<AnimationAmount> moveX;
    std::optional<AnimationAmount> moveY;
    std::optional<AnimationAmount> width;
    std::optional<AnimationAmount> height;
    std::optional<AnimationAmount> radius;
    std::optional<std::string> color;
    bool bounce = false;
    bool elastic = false;
};

/// அசைவூட்டம்: how a widget moves. The duration is in milliseconds.
struct AnimationNode {
    float duration = 0;
    std::string curve = "linear";
    std::map<std::string, float> numericTargets;
    std::string condition;
    std::map<std::string, std::string> stringTargets;
    AnimationTargetNode target;
};

} // namespace pozhil
