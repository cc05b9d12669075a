#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// The diameter: the first size that is given, else twice the radius.
void emitDiameter(WidgetWriter& avatar) {
    constexpr float USUAL_RADIUS = 24.0F;
    const WidgetNode& widget = avatar.widget();
    const float radius = constantOf(findProperty(widget, {"style_வளைவு", "வளைவு"})).value_or(USUAL_RADIUS);
    avatar.block(R"(
{
    float caX = std::floor($x); float caY = std::floor($y);
    float diameter = $diameter;
)",
                 {{"diameter", floatConstant(2.0F * radius)}});
    if (findProperty(widget, {"style_அகலம்", "அகலம்"}) != nullptr) {
        emitGivenSize(avatar, {"style_அகலம்", "அகலம்"}, "diameter", "(forcedW > 0.0f ? forcedW : winWidth)");
    } else {
        emitGivenSize(avatar, {"style_உயரம்", "உயரம்"}, "diameter", "(forcedH > 0.0f ? forcedH : winHeight)");
    }
    avatar.block(R"(
    if (forcedW > 0.0f) diameter = forcedW;
    if (forcedH > 0.0f) diameter = forcedH;
    diameter = responsiveW(diameter, winWidth, 0.0f);
    float radius = diameter / 2.0f;
)");
}

void emitDisc(WidgetWriter& avatar, const std::string& imagePath) {
    const ByteColour fill = byteColour(colourProperty(avatar.widget(), {"style_பின்னணி", "பின்னணி"}, "#C8C8C8"));
    avatar.block("    int br = $r, bg = $g, bb = $b, ba = $a;\n", {{"r", std::to_string(fill.red)},
                                                                   {"g", std::to_string(fill.green)},
                                                                   {"b", std::to_string(fill.blue)},
                                                                   {"a", std::to_string(fill.alpha)}});
    if (!imagePath.empty()) {
        avatar.block(R"(
    static int avatarImg_$n = -1;
    if (avatarImg_$n == -1) avatarImg_$n = nvgCreateImage(vg, $path, 0);
)",
                     {{"path", avatar.edition().literal(imagePath)}});
    }
    avatar.block(R"(
    nvgBeginPath(vg);
    nvgCircle(vg, caX + radius, caY + radius, radius);
)");
    avatar.block(imagePath.empty() ? "    nvgFillColor(vg, nvgRGBA(br, bg, bb, ba));\n" : R"(
    if (avatarImg_$n > 0) {
        nvgFillPaint(vg, nvgImagePattern(vg, caX, caY, diameter, diameter, 0.0f, avatarImg_$n, 1.0f));
    } else {
        nvgFillColor(vg, nvgRGBA(br, bg, bb, ba));
    }
)");
    avatar.block("    nvgFill(vg);\n");
}

/// The border lies around the disc.
void emitBorder(WidgetWriter& avatar) {
    const WidgetNode& widget = avatar.widget();
    const float width = constantOf(findProperty(widget, {"style_கரை_அளவு", "கரை_அளவு"})).value_or(0.0F);
    if (width > 0.0F) {
        avatar.block(R"(
    nvgBeginPath(vg);
    nvgCircle(vg, caX + radius, caY + radius, radius + ($width / 2.0f));
    nvgStrokeColor(vg, $colour);
    nvgStrokeWidth(vg, $width);
    nvgStroke(vg);
)",
                     {{"width", floatConstant(width)},
                      {"colour", floatColour(colourProperty(widget, {"style_கரை_நிறம்", "கரை_நிறம்"}, "#000000"))}});
    }
}

void emitInitials(WidgetWriter& avatar, const WidgetNode& text) {
    avatar.block(R"block(
    drawFixedText(caX + radius, caY + radius + 2.0f, $text, "#FFFFFF", radius, "center");
)block",
                 {{"text", textArgument(avatar, findProperty(text, {"உரை"}))}});
}

/// வட்டபடம்: a round picture, or initials on a round background.
void emitAvatar(WidgetWriter& avatar) {
    const auto children = childWidgets(avatar.widget());
    const WidgetNode* content = children.empty() ? nullptr : children.front();
    const bool hasImage = content != nullptr && content->kind == language::widget::IMAGE;
    emitDiameter(avatar);
    emitDisc(avatar, hasImage ? textOf(findProperty(*content, {"பாதை"})) : "");
    emitBorder(avatar);
    if (content != nullptr && content->kind == language::widget::TEXT) {
        emitInitials(avatar, *content);
    }
    avatar.block("}\n");
}

} // namespace

extern const WidgetKind AVATAR = {language::widget::AVATAR, emitAvatar, sized<48>, sized<48>};

} // namespace pozhil
