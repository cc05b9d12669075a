#include "generator/web/write/animation.h"

#include "generator/web/write/widget_writer.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace pozhil {
namespace {

struct Target {
    std::string_view name;
    Block block;
};

// A scaled widget grows about its centre.
constexpr Target TARGETS[] = {
    {"அகலம்", "    $width = lerp($width, $v, t);\n"},
    {"உயரம்", "    $height = lerp($height, $v, t);\n"},
    {"வளைவு", "    $radius = lerp($radius, $v, t);\n"},
    {"விரிவு", R"(
    float scale = lerp(1.0f, $v, t);
    $boxX -= ($width * scale - $width) / 2.0f;
    $boxY -= ($height * scale - $height) / 2.0f;
    $width *= scale;
    $height *= scale;
)"},
    {"கி_நகர்வு", "    $boxX = lerp($boxX, $boxX + $v, t);\n"},
    {"நெ_நகர்வு", "    $boxY = lerp($boxY, $boxY + $v, t);\n"},
};

} // namespace

void emitAnimationProgress(WidgetWriter& widget, const char* isHover) {
    const AnimationNode* animation = widget.widget().animation.get();
    if (animation == nullptr) {
        return;
    }
    widget.block(R"(
    bool animActive = false;
    std::string aCond = $condition;
    if (aCond == "மவுஸ்_மேலே" || aCond == "hover" || aCond == "சுட்டி_மேல்") animActive = $isHover;
    if (aCond == "தானாக") animActive = true;
    float progress = updateProgress($key, aCond, animActive, $y, winHeight, $duration);
    float t = getCurveValue($curve, progress);
)",
                 {{"condition", widget.edition().literal(animation->condition)},
                  {"key", widget.key()},
                  {"isHover", isHover},
                  {"duration", floatConstant(animation->duration)},
                  {"curve", widget.edition().literal(animation->curve)}});
}

bool startsOnHover(const AnimationNode& animation) {
    constexpr std::string_view CONDITIONS[] = {"மவுஸ்_மேலே", "hover", "சுட்டி_மேல்"};
    return std::find(std::begin(CONDITIONS), std::end(CONDITIONS), animation.condition) != std::end(CONDITIONS);
}

void emitAnimationTargets(WidgetWriter& widget, const AnimatedBox& box) {
    const AnimationNode* animation = widget.widget().animation.get();
    if (animation == nullptr) {
        return;
    }
    const Holes known = {
        {"boxX", box.x}, {"boxY", box.y}, {"width", box.width}, {"height", box.height}, {"radius", box.radius}};
    for (const auto& [name, value] : animation->numericTargets) {
        const auto* target = std::find_if(std::begin(TARGETS), std::end(TARGETS),
                                          [&name = name](const Target& one) { return one.name == name; });
        if (target != std::end(TARGETS)) {
            Holes holes = {{"v", floatConstant(value)}};
            std::copy_if(known.begin(), known.end(), std::back_inserter(holes),
                         [&](const Hole& hole) { return target->block.has(hole.first); });
            widget.block(target->block, holes);
        }
    }
}

} // namespace pozhil
