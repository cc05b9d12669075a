#include "generator/web/widgets/snack_bar.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// The text of a widget that is shown as a message.
Filling textIn(WidgetWriter& bar, const WidgetNode& content, const char* otherwise) {
    const Expression* text = findProperty(content, {"உரை"});
    return text == nullptr ? Filling(otherwise) : bar.expression(text);
}

/// What the bar says, as an argument of fn_any_to_string.
Filling messageOf(WidgetWriter& bar) {
    const Expression* message = findProperty(bar.widget(), {"செய்தி"});
    if (const WidgetNode* content = asWidget(message)) {
        return textIn(bar, *content, "std::string(u8\"[விட்ஜெட்]\")");
    }
    if (message != nullptr) {
        return bar.expression(message);
    }
    const auto children = childWidgets(bar.widget());
    return children.empty() ? Filling("std::string(u8\"இப்போது இல்லை நீ பிறகு சேர்த்துக்கலாம் \")")
                            : textIn(bar, *children.front(), "std::string(u8\"தகவல்\")");
}

/// அறிவிப்பு_பட்டை where a widget stands: nothing.
void emitSnackBar(WidgetWriter&) {}

} // namespace

void emitSnackBarFunction(WidgetWriter& bar) {
    constexpr ByteColour USUAL = {50, 50, 50, 255};
    const std::optional<Colour> given = colourOf(findProperty(bar.widget(), {"பின்னணி"}));
    const ByteColour colour = given ? byteColour(*given) : USUAL;
    bar.block(R"block(
std::function<std::any()>([=]() mutable -> std::any {
    global_vars["active_sb"] = std::any(true);
    global_vars["sb_start_time"] = std::any((double)emscripten_get_now());
    global_vars["sb_y_pos"] = std::any(-100.0f);
    global_vars["sb_msg"] = std::any(fn_any_to_string($message));
    global_vars["sb_bg_r"] = std::any((int)$r);
    global_vars["sb_bg_g"] = std::any((int)$g);
    global_vars["sb_bg_b"] = std::any((int)$b);
    return std::any();
})
)block",
              {{"message", messageOf(bar)},
               {"r", std::to_string(colour.red)},
               {"g", std::to_string(colour.green)},
               {"b", std::to_string(colour.blue)}});
}

extern const WidgetKind SNACK_BAR = {language::widget::SNACK_BAR, emitSnackBar};

} // namespace pozhil
