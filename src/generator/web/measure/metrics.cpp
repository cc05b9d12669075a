#include "generator/web/measure/metrics.h"

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/widget_properties.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace pozhil {
namespace {

constexpr MetricAxis WIDTH = {"style_அகலம்", "அகலம்", &WidgetMetrics::calculateWidgetWidth};
constexpr MetricAxis HEIGHT = {"style_உயரம்", "உயரம்", &WidgetMetrics::calculateWidgetHeight};

struct KindRules {
    std::string_view kind;
    MetricRule width;
    MetricRule height;
};

constexpr KindRules KINDS[] = {
    {"உரைபொத்தான்", textButtonWidth, fixed<40>},
    {"பொத்தான்", buttonWidth, sized<40>},
    {"இவெ", plainSized<0>, plainSized<0>},
    {"வெற்றிடம்", fixed<0>, plainSized<0>},
    {"உள்_இவெ", paddingSize, paddingSize},
    {"உள்_இவே", paddingSize, paddingSize},
    {"உரை", textWidth, textHeight},
    {"அளவி", sized<200>, sized<28>},
    {"கீழ்வரி", plainSized<200>, fixed<40>},
    {"படம்", sized<100>, sized<100>},
    {"தேர்வுபெட்டி", checkBoxWidth, checkBoxHeight},
    {"வட்டத்தேர்வு", fixed<250>, fixed<30>},
    {"மாற்றி", fixed<48>, fixed<28>},
    {"நெகிழ்வு", firstChild, firstChild},
    {"விரிவாக்கம்", firstChild, firstChild},
    {"அடுக்கி", largestChild, largestChild},
    {"பெட்டி", boxSize, boxSize},
    {"தேடுபொறி", plainSized<350>, sized<50>},
    {"தேடல்_பட்டை", sized<350>, sized<50>},
    {"நெடுவரிசை", largestChild, lineOfChildren},
    {"கிடைவரிசை", lineOfChildren, largestChild},
    {"மடிப்பு", fixed<0>, wrapHeight},
    {"கட்டம்_காட்சி", gridWidth, gridHeight},
    {"பிரிப்பான்", sized<300>, sized<20>},
    {"அட்டை", cardWidth, cardHeight},
    {"எச்சரிக்கை", sized<400>, sized<280>},
    {"சுழல்_காட்டி", spinnerSize, spinnerSize},
    {"முன்னேற்றவரி", sized<200>, sized<6>},
    {"தகவல்பட்டை", sized<300>, sized<40>},
    {"உரைபெட்டி", sized<320>, sized<60>},
    {"பட்டியல்_உருப்படி", plainSized<200>, tileHeight},
    {"வட்டபடம்", sized<48>, sized<48>},
    {"தத்தல்", fixed<0>, fixed<50>},
};

float measureOnce(WidgetMetrics& metrics, const Statement* statement, const MetricAxis& axis,
                  MetricRule KindRules::*rule, std::unordered_map<const Statement*, float>& known) {
    const WidgetNode* widget = asWidget(statement);
    if (widget == nullptr) {
        return 0.0F;
    }
    const auto found = known.find(statement);
    if (found != known.end()) {
        return found->second;
    }
    const auto* rules = std::find_if(std::begin(KINDS), std::end(KINDS),
                                     [&](const KindRules& kind) { return kind.kind == widget->kind; });
    const float size = rules == std::end(KINDS) ? 0.0F : (rules->*rule)({metrics, *widget, axis});
    known.emplace(statement, size);
    return size;
}

} // namespace

float WidgetMetrics::calculateWidgetWidth(const Statement* statement) {
    return measureOnce(*this, statement, WIDTH, &KindRules::width, widths_);
}

float WidgetMetrics::calculateWidgetHeight(const Statement* statement) {
    return measureOnce(*this, statement, HEIGHT, &KindRules::height, heights_);
}

} // namespace pozhil
