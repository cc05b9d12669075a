#include "generator/web/widgets/snack_bar.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// What the bar says, as a std::string of the emitted program.
Filling messageOf(WidgetWriter& bar) {
    constexpr const char* NO_MESSAGE = "std::string(u8\"இப்போது இல்லை நீ பிறகு சேர்த்துக்கலாம் \")";
    EditionWriter& edition = bar.edition();
    const Expression* message = findProperty(bar.widget(), {"செய்தி"});
    if (const WidgetNode* content = asWidget(message)) {
        return edition.text(findProperty(*content, {"உரை"}), "std::string(u8\"[விட்ஜெட்]\")");
    }
    const auto children = childWidgets(bar.widget());
    if (message != nullptr || children.empty()) {
        return edition.text(message, NO_MESSAGE);
    }
    return edition.text(findProperty(*children.front(), {"உரை"}), "std::string(u8\"தகவல்\")");
}

/// அறிவிப்பு_பட்டை where a widget stands: nothing.
void emitSnackBar(WidgetWriter&) {}

} // namespace

void emitSnackBarFunction(WidgetWriter& bar) {
    constexpr ByteColour USUAL = {50, 50, 50, 255};
    const std::optional<Colour> given = colourOf(findProperty(bar.widget(), {"பின்னணி"}));
    const ByteColour colour = given ? byteColour(*given) : USUAL;
    bar.edition().writeMessageFunction(bar, messageOf(bar), colour);
}

extern const WidgetKind SNACK_BAR = {language::widget::SNACK_BAR, emitSnackBar};

} // namespace pozhil
