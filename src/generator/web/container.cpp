#include "generator/web/animation.h"
#include "generator/web/box.h"
#include "generator/web/colours.h"
#include "generator/web/layout_children.h"
#include "generator/web/literals.h"
#include "generator/web/metrics.h"
#include "generator/web/press_handler.h"
#include "generator/web/sizes.h"
#include "generator/web/text_value.h"
#include "generator/web/widget_writer.h"

#include <algorithm>

namespace pozhil {
namespace {

constexpr std::string_view STYLE_KIND = "பெட்டி_பாணி";
constexpr Colour WHITE = {1.0F, 1.0F, 1.0F, 1.0F};

/// A property of the style record among the box's children.
const Expression* styleProperty(const WidgetNode& box, std::initializer_list<const char*> names) {
    const WidgetNode* style = childOfKind(box, STYLE_KIND);
    return style == nullptr ? nullptr : findProperty(*style, names);
}

/// A number of the box itself, else of its style record.
float numberIn(const WidgetNode& box, std::initializer_list<const char*> names, const char* styleName) {
    const std::optional<float> own = numberOf(findProperty(box, names));
    return own ? *own : numberOf(styleProperty(box, {styleName})).value_or(0.0F);
}

Colour colourIn(const WidgetNode& box) {
    Colour colour = WHITE;
    for (const Expression* source :
         {styleProperty(box, {"பின்னணி"}), styleProperty(box, {"பெட்டிபின்னணி"}), findProperty(box, {"பின்னணி"})}) {
        colour = colourOf(source).value_or(colour);
    }
    return colour;
}

std::optional<Colour> hoverColourIn(const WidgetNode& box) {
    const std::optional<Colour> own = colourOf(findProperty(box, {"style_மேம்படுத்தப்பட்ட_நிறம்"}));
    return own ? own : colourOf(styleProperty(box, {"style_மேம்படுத்தப்பட்ட_நிறம்", "மேம்படுத்தப்பட்ட_நிறம்"}));
}

/// A size may depend on the window, chosen anew in each frame.
void emitSize(const WidgetWriter& box, std::initializer_list<const char*> names, const char* styleName,
              const char* variable, const char* base) {
    const Expression* own = findProperty(box.widget(), names);
    const Expression* size = own == nullptr ? styleProperty(box.widget(), {styleName}) : own;
    std::string text = processPercentage(size, base);
    const auto* choice = nodeCast<TernaryExpression>(size);
    if (choice != nullptr && !text.empty()) {
        text = "(" + processPercentage(choice->condition.get(), base) + ") ? " +
               processPercentage(choice->thenBranch.get(), base) + " : " +
               processPercentage(choice->elseBranch.get(), base);
    }
    if (!text.empty()) {
        box.block("    $variable = $size;\n", {{"variable", variable}, {"size", text}});
    }
}

void emitRectangle(const WidgetWriter& box) {
    const WidgetNode& widget = box.widget();
    box.block(R"(
{
    float boxX = std::floor($x); float boxY = std::floor($y);
    float boxW = 100.0f; float boxH = 100.0f;
)");
    emitSize(box, {"style_அகலம்", "அகலம்"}, "அகலம்", "boxW", "(forcedW > 0.0f ? forcedW : winWidth)");
    emitSize(box, {"style_உயரம்", "உயரம்"}, "உயரம்", "boxH", "(forcedH > 0.0f ? forcedH : winHeight)");
    box.block(R"(
    if (forcedW > 0.0f) boxW = forcedW;
    if (forcedH > 0.0f) boxH = forcedH;
    float radius = $radius;
    float shadow = $shadow;
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isBoxHover = mx >= boxX && mx <= boxX + boxW && my >= boxY && my <= boxY + boxH && (!g_block_background_clicks || g_inside_overlay);
)",
              {{"radius", floatConstant(numberIn(widget, {"style_வளைவு", "வளைவு"}, "வளைவு"))},
               {"shadow", floatConstant(numberIn(widget, {"நிழல்"}, "நிழல்"))}});
    if (findProperty(widget, {"அழுத்தினால்"}) != nullptr) {
        box.block("    if (isBoxHover) pozhil_pointer_cursor();\n");
    }
    box.block("    NVGcolor boxColor = $colour;\n", {{"colour", floatColour(colourIn(widget))}});
}

/// The colours that the animation fades to: its own, else the one under the pointer.
std::vector<Colour> colourTargets(const WidgetNode& box) {
    std::vector<Colour> targets;
    for (const auto& [name, colour] : box.animation->stringTargets) {
        if (name == "பெட்டிபின்னணி" || name == "பின்னணி") {
            targets.push_back(styleColour(colour));
        }
    }
    const std::optional<Colour> hover = hoverColourIn(box);
    if (targets.empty() && hover) {
        targets.push_back(*hover);
    }
    return targets;
}

void emitAnimation(const WidgetWriter& box) {
    emitAnimationProgress(box, "isBoxHover");
    if (startsOnHover(*box.widget().animation)) {
        box.block("    if (isBoxHover) pozhil_pointer_cursor();\n");
    }
    emitAnimationTargets(box, {"boxX", "boxY", "boxW", "boxH", "radius"});
    for (const Colour& target : colourTargets(box.widget())) {
        box.block(R"(
    {
        NVGcolor targetCol = $target;
        boxColor = lerpColor(boxColor, targetCol, t);
    }
)",
                  {{"target", floatColour(target)}});
    }
}

/// How the box answers the pointer: gradually with an animation, at once without.
void emitHover(const WidgetWriter& box) {
    if (box.widget().animation != nullptr) {
        emitAnimation(box);
        return;
    }
    const std::optional<Colour> hover = hoverColourIn(box.widget());
    box.block(
        R"(
    if (isBoxHover && $hasColour) {
        boxColor = $colour;
        pozhil_pointer_cursor();
    }
)",
        {{"hasColour", hover ? "true" : "false"}, {"colour", floatColour(hover.value_or(colourIn(box.widget())))}});
}

/// The shadow has a hole where the box lies, so that none shows through a translucent one.
void emitShadow(const WidgetWriter& box) {
    box.block(R"(
    if (shadow > 0) {
        float shadowBlur = shadow * 8.0f;
        float offsetY = shadow * 1.5f;
        NVGpaint shadowPaint = nvgBoxGradient(vg, boxX, boxY + offsetY, boxW, boxH, radius, shadowBlur, nvgRGBA(0, 0, 0, 25), nvgRGBA(0, 0, 0, 0));
        nvgBeginPath(vg);
        nvgRect(vg, boxX - shadowBlur - 10, boxY - shadowBlur - 10, boxW + (shadowBlur * 2) + 20, boxH + (shadowBlur * 2) + 20);
        nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);
        nvgPathWinding(vg, NVG_HOLE);
        nvgFillPaint(vg, shadowPaint);
        nvgFill(vg);
    }
)");
}

/// The picture is kept by its path, which may change while the page runs.
void emitBody(const WidgetWriter& box) {
    const Expression* own = findProperty(box.widget(), {"பின்னணிபடம்"});
    const Expression* image = own == nullptr ? styleProperty(box.widget(), {"பின்னணிபடம்"}) : own;
    box.block(R"(
    nvgBeginPath(vg);
    nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);
)");
    if (image == nullptr) {
        box.block("    nvgFillColor(vg, boxColor);\n");
    } else {
        box.block(R"(
    static std::map<std::string, int> bgImgCache;
    std::string bgImgPath = fn_any_to_string($path);
    if (bgImgCache.find(bgImgPath) == bgImgCache.end()) {
        bgImgCache[bgImgPath] = nvgCreateImage(vg, bgImgPath.c_str(), 0);
    }
    int bgImgHandle = bgImgCache[bgImgPath];
    if (bgImgHandle > 0) {
        nvgFillPaint(vg, nvgImagePattern(vg, boxX, boxY, boxW, boxH, 0.0f, bgImgHandle, 1.0f));
    } else {
        nvgFillColor(vg, boxColor);
    }
)",
                  {{"path", textValue(box, image, "")}});
    }
    box.block("    nvgFill(vg);\n");
}

void emitPress(const WidgetWriter& box) {
    const Expression* handler = findProperty(box.widget(), {"அழுத்தினால்"});
    if (handler == nullptr || dynamic_cast<const ContainerNode*>(&box.widget()) == nullptr) {
        return;
    }
    box.block(R"(
    bool isBoxClicked = g_mouseClicked && mx >= boxX && mx <= boxX + boxW && my >= boxY && my <= boxY + boxH;
    if (isBoxClicked) {
        $handler
    }
)",
              {{"handler", handlerCall(box, handler)}});
}

std::string alignmentWord(const Expression* value) {
    if (const auto* member = nodeCast<GetExpression>(value)) {
        return member->member.value;
    }
    const auto* variable = nodeCast<VariableAccess>(value);
    return variable == nullptr ? textOf(value) : variable->name;
}

/// Where a child stands in the box. Written as a property, மைய_வலது puts it at the bottom.
std::pair<float, float> alignmentOf(const WidgetNode& child) {
    static constexpr std::pair<std::string_view, std::pair<float, float>> WORDS[] = {
        {"மேல்_இடது", {-1.0F, -1.0F}}, {"மேல்_மையம்", {0.0F, -1.0F}}, {"மேல்_வலது", {1.0F, -1.0F}},
        {"மைய_இடது", {-1.0F, 0.0F}},  {"மையம்", {0.0F, 0.0F}},      {"மைய_வலது", {1.0F, 1.0F}},
        {"கீழ்_இடது", {-1.0F, 1.0F}},   {"கீழ்_மையம்", {0.0F, 1.0F}},   {"கீழ்_வலது", {1.0F, 1.0F}},
    };
    const std::string word = alignmentWord(findProperty(child, {"சீரமைப்பு"}));
    const auto* found =
        std::find_if(std::begin(WORDS), std::end(WORDS), [&](const auto& entry) { return entry.first == word; });
    return found == std::end(WORDS) ? getAlignmentCoords(child.alignment) : found->second;
}

/// A text is measured as it will be drawn, since its width by the count of its letters is only a rough one.
void emitChildSize(const WidgetWriter& box, const WidgetNode& child) {
    box.block("        float childW = $width; float childH = $height;\n",
              {{"width", floatConstant(box.widthOf(child))}, {"height", floatConstant(box.heightOf(child))}});
    if (child.kind == "உரை") {
        box.block(R"block(
        if (std::string(u8"உரை") == "$kind") {
            childW = pozhil_text_width(fn_any_to_string($text).c_str(), $size, "$weight");
        }
)block",
                  {{"kind", child.kind},
                   {"text", textValue(box, findProperty(child, {"உரை"}), "std::string(\"\")")},
                   {"size", floatConstant(fontSizeOf(child.style))},
                   {"weight", child.style.weight.empty() ? "400" : child.style.weight}});
    }
}

void emitChild(const WidgetWriter& box, const WidgetNode& child) {
    const auto [alignX, alignY] = alignmentOf(child);
    box.block("    {\n");
    emitChildSize(box, child);
    box.block(R"(
        float childX = boxX + (boxW - childW) * (1.0f + $alignX) / 2.0f;
        float childY = boxY + (boxH - childH) * (1.0f + $alignY) / 2.0f;
)",
              {{"alignX", floatConstant(alignX)}, {"alignY", floatConstant(alignY)}});
    if (child.kind == "உரை") {
        box.block("        childY += 2.0f;\n");
    }
    box.block(R"(
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = -1.0f; forcedH = -1.0f;
        $child
        forcedW = savedForcedW; forcedH = savedForcedH;
    }
)",
              {{"child", box.blocks([&] { box.child(child, "childX", "childY"); })}});
}

} // namespace

void emitContainer(const WidgetWriter& box) {
    emitRectangle(box);
    emitHover(box);
    emitShadow(box);
    emitBody(box);
    emitPress(box);
    box.block(R"(
    nvgSave(vg);
    nvgBeginPath(vg);
    nvgIntersectScissor(vg, boxX, boxY, boxW, boxH);
)");
    emitClipRectangle(box, "boxX", "boxY", "boxW", "boxH");
    box.block("    float oldForcedW_container = forcedW; float oldForcedH_container = forcedH;\n");
    for (const WidgetNode* child : childWidgets(box.widget())) {
        if (child->kind != STYLE_KIND) {
            emitChild(box, *child);
        }
    }
    box.block("    forcedW = oldForcedW_container; forcedH = oldForcedH_container;\n");
    emitClipEnd(box);
    box.block("}\n");
}

} // namespace pozhil
