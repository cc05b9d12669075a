#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

#include <array>

namespace pozhil {
namespace {

constexpr const char* NO_ID = "default_id";

/// A variable of the emitted block, and the properties that may say its value.
struct BoxNumber {
    const char* variable;
    const char* styleName;
    const char* name;
};

void emitBox(WidgetWriter& field) {
    constexpr std::array<BoxNumber, 3> NUMBERS = {{
        {"tbW", "style_அகலம்", "அகலம்"},
        {"tbH", "style_உயரம்", "உயரம்"},
        {"radius", "style_வளைவு", "வளைவு"},
    }};
    constexpr float BORDER = 1.0F;
    const WidgetNode& widget = field.widget();
    field.block(R"(
{
    float tbX = std::floor($x); float tbY = std::floor($y);
    float tbW = 320.0f, tbH = 50.0f, radius = 8.0f, fSize = 16.0f;
)");
    for (const BoxNumber& one : NUMBERS) {
        if (const std::optional<float> number = constantOf(findProperty(widget, {one.styleName, one.name}))) {
            field.block("    $variable = $number;\n", {{"variable", one.variable}, {"number", floatConstant(*number)}});
        }
    }
    field.block(R"(
    tbW = responsiveW(tbW, winWidth, 40.0f);
    if (forcedW > 0.0f) tbW = forcedW;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, tbX, tbY, tbW, tbH, radius);
    nvgFillColor(vg, $fill);
    nvgStrokeColor(vg, $border);
    nvgStrokeWidth(vg, $borderWidth);
    nvgFill(vg);
    nvgStroke(vg);
)",
                {{"fill", floatColour(colourProperty(widget, {"style_களப்பின்னணி", "பின்னணி"}, "#FFFFFF"))},
                 {"border", floatColour(colourProperty(widget, {"style_கரை_நிறம்", "கரை_நிறம்"}, "#E5E7EB"))},
                 {"borderWidth", numberConstant(widget, {"style_கரை_அளவு", "கரை_அளவு"}, BORDER)}});
}

void emitError(WidgetWriter& field, const std::string& id) {
    field.block(R"(
    bool hasError = g_inputErrors.count($id) && !g_inputErrors[$id].empty();
    if (hasError) {
        nvgBeginPath(vg);
        nvgRoundedRect(vg, tbX, tbY, tbW, tbH, radius);
        nvgStrokeColor(vg, nvgRGBA(244, 67, 54, 255));
        nvgStrokeWidth(vg, 2.0f);
        nvgStroke(vg);
        drawFixedText(tbX, tbY + tbH + 4, g_inputErrors[$id].c_str(), "#F44336", 12.0f, "left");
    }
)",
                {{"id", field.nameFrom(field.edition().literal(id))}});
}

/// A widget in front of the text, such as an icon.
void emitPrefix(WidgetWriter& field) {
    field.block("    float prefixOffset = 0.0f;\n");
    const WidgetNode* prefix = asWidget(findProperty(field.widget(), {"முன்னணி"}));
    if (prefix == nullptr) {
        return;
    }
    field.block(R"(
    {
        float leadW = $width; float leadH = $height;
        float leadY = tbY + std::floor((tbH - leadH) / 2.0f);
        float leadX = tbX + 12.0f;
        prefixOffset = leadW + 12.0f;
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = -1.0f; forcedH = -1.0f;
        $prefix
        forcedW = savedForcedW; forcedH = savedForcedH;
    }
)",
                {{"width", field.widthOf(*prefix).text()},
                 {"height", field.heightOf(*prefix).text()},
                 {"prefix", field.blocks([&] { field.slot(*prefix, "leadX", "leadY"); })}});
}

/// The browser's field: made when it is first drawn, and placed over its box in each frame.
void emitOverlay(WidgetWriter& field, const std::string& id) {
    EditionWriter& edition = field.edition();
    const std::string name = field.nameFrom(edition.literal(id == NO_ID ? "text_" + field.number() : id));
    const bool hasManyLines = isTrue(findProperty(field.widget(), {"பலவரி"}));
    field.block(
        R"(
    pozhil_place_text_field($id, $hint, $manyLines, "$colour", tbX, tbY, tbW, tbH, prefixOffset, fSize);
    $field
)",
        {{"field", edition.layering().hasField(field.key(), {"tbX", "tbX + tbW", "tbY", "tbY + tbH"}, name)},
         {"id", name},
         {"hint", edition.literal(textOf(findProperty(field.widget(), {"குறிப்பு"})))},
         {"manyLines", hasManyLines ? "true" : "false"},
         {"colour", cssColour(colourProperty(field.widget(), {"style_எழுத்து_நிறம்", "எழுத்து_நிறம்"}, "#333333"))}});
    edition.writeField(field, name);
    field.block("}\n");
}

/// உரைபெட்டி: a box with a field of the browser over it, of one line or several.
void emitTextField(WidgetWriter& field) {
    const std::string given = textOf(findProperty(field.widget(), {"அடையாளம்"}));
    const std::string id = given.empty() ? NO_ID : given;
    emitBox(field);
    emitError(field, id);
    emitPrefix(field);
    emitOverlay(field, id);
}

} // namespace

extern const WidgetKind TEXT_FIELD = {language::widget::TEXT_FIELD, emitTextField, sized<320>, sized<60>};

} // namespace pozhil
