#include "generator/web/widgets/container_body.h"

#include "generator/web/write/animation.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

constexpr Colour WHITE = {1.0F, 1.0F, 1.0F, 1.0F};

/// A property of the style record among the box's children.
const Expression* styleProperty(const WidgetNode& box, std::initializer_list<const char*> names) {
    const WidgetNode* style = childOfKind(box, language::widget::BOX_STYLE);
    return style == nullptr ? nullptr : findProperty(*style, names);
}

/// A number of the box itself, else of its style record.
float numberIn(const WidgetNode& box, std::initializer_list<const char*> names, const char* styleName) {
    const std::optional<float> own = constantOf(findProperty(box, names));
    return own ? *own : constantOf(styleProperty(box, {styleName})).value_or(0.0F);
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

/// A size of the box itself, else of its style record. It may depend on the window, chosen anew in each frame.
void emitBoxSize(WidgetWriter& box, std::initializer_list<const char*> names, const char* styleName,
                 const char* variable, const char* base) {
    const Expression* own = findProperty(box.widget(), names);
    const Expression* size = own == nullptr ? styleProperty(box.widget(), {styleName}) : own;
    EditionWriter& edition = box.edition();
    std::string text = processPercentage(edition, size, base);
    const auto* choice = nodeCast<TernaryExpression>(size);
    if (choice != nullptr && !text.empty()) {
        text = "(" + edition.sizeCondition(*choice->condition, base) + ") ? " +
               processPercentage(edition, choice->thenBranch.get(), base) + " : " +
               processPercentage(edition, choice->elseBranch.get(), base);
    }
    if (!text.empty()) {
        box.block("    $variable = $size;\n", {{"variable", variable}, {"size", text}});
    }
}

// What lies over what.

constexpr PressArea AREA = {"boxX", "boxX + boxW", "boxY", "boxY + boxH"};

bool isPressed(const WidgetNode& box) {
    return findProperty(box, {"அழுத்தினால்"}) != nullptr && dynamic_cast<const ContainerNode*>(&box) != nullptr;
}

bool showsHover(const WidgetNode& box) {
    return hoverColourIn(box) || (box.animation != nullptr && startsOnHover(*box.animation));
}

const Expression* backgroundImageOf(const WidgetNode& box) {
    const Expression* own = findProperty(box, {"பின்னணிபடம்"});
    return own == nullptr ? styleProperty(box, {"பின்னணிபடம்"}) : own;
}

std::string topmostTest(const WidgetWriter& box) {
    const Layering& layers = box.edition().layering();
    if (isPressed(box.widget())) {
        return layers.takesPress(box.key(), AREA);
    }
    return showsHover(box.widget()) ? layers.takesHover(box.key(), AREA) : "";
}

/// What nobody sees lets presses through.
std::string shield(const WidgetWriter& box) {
    const bool isSeen = colourIn(box.widget()).alpha > 0.0F || backgroundImageOf(box.widget()) != nullptr;
    const bool isReached = isPressed(box.widget()) || showsHover(box.widget());
    return isSeen && !isReached ? box.edition().layering().shields(AREA) : "";
}

std::string holder(const WidgetWriter& box) {
    const bool takesPresses = isPressed(box.widget());
    return takesPresses || showsHover(box.widget()) ? box.edition().layering().holds(box.key(), takesPresses) : "";
}

void emitRectangle(WidgetWriter& box) {
    const WidgetNode& widget = box.widget();
    box.block(R"(
{
    float boxX = std::floor($x); float boxY = std::floor($y);
    float boxW = 100.0f; float boxH = 100.0f;
)");
    emitBoxSize(box, {"style_அகலம்", "அகலம்"}, "அகலம்", "boxW", "(forcedW > 0.0f ? forcedW : winWidth)");
    emitBoxSize(box, {"style_உயரம்", "உயரம்"}, "உயரம்", "boxH", "(forcedH > 0.0f ? forcedH : winHeight)");
    box.block(R"(
    if (forcedW > 0.0f) boxW = forcedW;
    if (forcedH > 0.0f) boxH = forcedH;
    float radius = $radius;
    float shadow = $shadow;
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isBoxHover = ${isTopmost}mx >= boxX && mx <= boxX + boxW && my >= boxY && my <= boxY + boxH && (!g_block_background_clicks || g_inside_overlay);
    $shield
    $holder
)",
              {{"isTopmost", topmostTest(box)},
               {"shield", shield(box)},
               {"holder", holder(box)},
               {"radius", floatConstant(numberIn(widget, {"style_வளைவு", "வளைவு"}, "வளைவு"))},
               {"shadow", floatConstant(numberIn(widget, {"நிழல்"}, "நிழல்"))}});
    if (findProperty(widget, {"அழுத்தினால்"}) != nullptr) {
        box.block("    if (isBoxHover) pozhil_pointer_cursor();\n");
    }
    box.block("    NVGcolor boxColor = $colour;\n", {{"colour", floatColour(colourIn(widget))}});
}

/// The colours that the animation names for the box.
std::vector<Colour> animatedColours(const WidgetNode& box) {
    std::vector<Colour> colours;
    for (const auto& [name, colour] : box.animation->stringTargets) {
        if (name == "பெட்டிபின்னணி" || name == "பின்னணி") {
            colours.push_back(styleColour(colour));
        }
    }
    return colours;
}

/// Whether an animation leads to the colour under the pointer, since it names none itself.
bool fadesToHoverColour(const WidgetNode& box) {
    return box.animation != nullptr && animatedColours(box).empty() && hoverColourIn(box);
}

void emitAnimation(WidgetWriter& box) {
    const WidgetNode& widget = box.widget();
    if (widget.animation == nullptr) {
        return;
    }
    emitAnimationProgress(box, "isBoxHover");
    if (startsOnHover(*widget.animation)) {
        box.block("    if (isBoxHover) pozhil_pointer_cursor();\n");
    }
    emitAnimationTargets(box, {"boxX", "boxY", "boxW", "boxH", "radius"});
    const std::vector<Colour> targets =
        fadesToHoverColour(widget) ? std::vector<Colour>{*hoverColourIn(widget)} : animatedColours(widget);
    for (const Colour& target : targets) {
        box.block(R"(
    {
        NVGcolor targetCol = $target;
        boxColor = lerpColor(boxColor, targetCol, t);
    }
)",
                  {{"target", floatColour(target)}});
    }
}

/// The colour under the pointer comes at once where no animation leads to it.
void emitHover(WidgetWriter& box) {
    const WidgetNode& widget = box.widget();
    const std::optional<Colour> hover = hoverColourIn(widget);
    box.block(R"(
    if (isBoxHover && $isAtOnce) {
        boxColor = $colour;
        pozhil_pointer_cursor();
    }
)",
              {{"isAtOnce", hover && !fadesToHoverColour(widget) ? "true" : "false"},
               {"colour", floatColour(hover.value_or(colourIn(widget)))}});
}

/// The shadow has a hole where the box lies, so that none shows through a translucent one.
void emitShadow(WidgetWriter& box) {
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
void emitFill(WidgetWriter& box) {
    const Expression* image = backgroundImageOf(box.widget());
    box.block(R"(
    nvgBeginPath(vg);
    nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);
)");
    if (image == nullptr) {
        box.block("    nvgFillColor(vg, boxColor);\n");
    } else {
        box.block(R"(
    static std::map<std::string, int> bgImgCache;
    std::string bgImgPath = $path;
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

void emitPress(WidgetWriter& box) {
    if (!isPressed(box.widget())) {
        return;
    }
    const Expression* handler = findProperty(box.widget(), {"அழுத்தினால்"});
    box.block(
        R"(
    bool isBoxClicked = ${isTopmost}g_mouseClicked && mx >= boxX && mx <= boxX + boxW && my >= boxY && my <= boxY + boxH;
    if (isBoxClicked) {
        $handler
    }
)",
        {{"isTopmost", box.edition().layering().takesPress(box.key(), AREA)}, {"handler", handlerCall(box, handler)}});
}

} // namespace

void emitContainerBody(WidgetWriter& box) {
    emitRectangle(box);
    emitAnimation(box);
    emitHover(box);
    emitShadow(box);
    emitFill(box);
    emitPress(box);
}

} // namespace pozhil
