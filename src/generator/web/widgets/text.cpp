#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// Fading in while rising, and counting up to a number.
void emitTextAnimation(WidgetWriter& text) {
    const AnimationNode* animation = text.widget().animation.get();
    if (animation == nullptr) {
        return;
    }
    text.block(
        R"(
    float p = updateProgress(${n}ULL, $condition, false, $y, winHeight, $duration);
    float t = getCurveValue($curve, p);
    if ($fades) { animAlpha = p; animOffsetY = 30.0f * (1.0f - p); }
)",
        {{"condition", text.edition().literal(animation->condition)},
         {"duration", floatConstant(animation->duration)},
         {"curve", text.edition().literal(animation->curve)},
         {"fades", animation->numericTargets.count("மங்குநழுவு") != 0 || animation->stringTargets.count("மங்குநழுவு") != 0
                       ? "1"
                       : "0"}});
    const auto number = animation->numericTargets.find("மதிப்பு");
    if (number != animation->numericTargets.end()) {
        text.block(R"(
    int currentNum = (int)(0.0f + ($value * t));
    TextParts parts = splitText(textContent);
    textContent = parts.prefix + std::to_string(currentNum) + parts.suffix;
)",
                   {{"value", floatConstant(number->second)}});
    }
}

/// How the canvas calls an alignment.
const char* canvasAlignment(const std::string& align) {
    const bool isCentre = align == "மையம்" || align == "center";
    return isCentre ? "center" : align == "வலது" || align == "right" ? "right" : "left";
}

/// A text in as many lines as the room makes of it.
void emitWrappedLines(WidgetWriter& text) {
    const TextStyle& style = text.widget().style;
    const EditionWriter& edition = text.edition();
    text.block(R"(
    $wrapped.draw(textContent, $x, $y, $align, "$colour", $weight, $underline, $font, animAlpha, animOffsetY);
}
)",
               {{"wrapped", text.edition().wrappedText(text.widget(), "textContent")},
                {"align", edition.literal(canvasAlignment(style.align))},
                {"colour", cssColour(styleColour(style.color.empty() ? "#000000" : style.color))},
                {"weight", edition.literal(weightOf(style))},
                {"underline", style.underline ? "true" : "false"},
                {"font", edition.literal(style.font)}});
}

/// உரை: a line of text, which gets smaller until it fits, or lines where it wraps.
void emitText(WidgetWriter& text) {
    const TextStyle& style = text.widget().style;
    const EditionWriter& edition = text.edition();
    text.block(R"(
{
    std::string textContent = $value;
    float animAlpha = 1.0f;
    float animOffsetY = 0.0f;
)",
               {{"value", textValue(text, findProperty(text.widget(), {"உரை"}), "std::string(\"\")")}});
    emitTextAnimation(text);
    if (edition.wraps(text.widget())) {
        emitWrappedLines(text);
        return;
    }
    text.block(R"(
    float textX = $x; float textY = $y; float drawX = textX;
    float responsiveSize = responsiveTextSize($size, winWidth);
    float _actualW = getTextWidth(textContent.c_str(), responsiveSize);
    float _maxW = (forcedW > 0.0f) ? forcedW : winWidth;
    if (_actualW > _maxW - 20.0f) {
        responsiveSize *= (_maxW - 20.0f) / _actualW;
    }
    std::string webAlign = "left";
    std::string alignProp = $align;
    if (alignProp == "மையம்" || alignProp == "center") {
        webAlign = "center";
        drawX = textX + getTextWidth(textContent.c_str(), responsiveSize) / 2.0f;
    }
    drawFixedText(drawX, textY, textContent.c_str(), "$colour", responsiveSize, webAlign.c_str(), $weight, $underline, $font, animAlpha, animOffsetY);
}
)",
               {{"size", floatConstant(fontSizeOf(style))},
                {"align", edition.literal(style.align.empty() ? "இடது" : style.align)},
                {"colour", cssColour(styleColour(style.color.empty() ? "#000000" : style.color))},
                {"weight", edition.literal(weightOf(style))},
                {"underline", style.underline ? "true" : "false"},
                {"font", edition.literal(style.font)}});
}

Extent textWidth(const Measure& measure) {
    constexpr std::size_t UNKNOWN_LENGTH = 10;
    constexpr float PER_CODE_POINT = 0.65F;
    if (measure.metrics.presence().wraps(measure.widget)) {
        return measure.metrics.presence().wrappedSize(measure.widget, "width");
    }
    const float styleSize = measure.widget.style.size;
    const float size = styleSize > 0 ? styleSize : numberProperty(measure.widget, "style_அளவு", USUAL_TEXT_SIZE);
    std::size_t count = UNKNOWN_LENGTH;
    for (const auto& property : measure.widget.properties) {
        if (const auto* text = nodeCast<StringLiteral>(property.second.get())) {
            count = countCodePoints(text->value);
            break;
        }
    }
    return static_cast<float>(count) * PER_CODE_POINT * size;
}

Extent textHeight(const Measure& measure) {
    constexpr float USUAL_HEIGHT = 20.0F;
    if (measure.metrics.presence().wraps(measure.widget)) {
        return measure.metrics.presence().wrappedSize(measure.widget, "height");
    }
    return measure.widget.style.size > 0 ? measure.widget.style.size : USUAL_HEIGHT;
}

} // namespace

extern const WidgetKind TEXT = {language::widget::TEXT, emitText, textWidth, textHeight};

} // namespace pozhil
