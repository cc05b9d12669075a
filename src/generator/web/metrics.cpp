#include "generator/web/metrics.h"

#include "generator/web/widget_writer.h"
#include "scanner/number_text.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

namespace pozhil {
namespace {

/// Widths and heights follow the same rules with other words.
struct Axis {
    const char* styleName;
    const char* name;
    float (WidgetMetrics::*measure)(const Statement*);
};

constexpr Axis WIDTH = {"style_அகலம்", "அகலம்", &WidgetMetrics::calculateWidgetWidth};
constexpr Axis HEIGHT = {"style_உயரம்", "உயரம்", &WidgetMetrics::calculateWidgetHeight};

/// What a rule measures with.
struct Measure {
    WidgetMetrics& metrics;
    const WidgetNode& widget;
    const Axis& axis;

    float of(const Statement* child) const { return (metrics.*axis.measure)(child); }
};

using Rule = float (*)(const Measure&);

struct KindRules {
    std::string_view kind;
    Rule width;
    Rule height;
};

/// A percentage is resolved in the running page and counts as nothing here.
std::optional<float> fixedSize(const Expression* expression) {
    return nodeCast<PercentageLiteral>(expression) != nullptr ? 0.0F : numberOf(expression);
}

/// The size that the source gives along the axis, in the style block or beside it.
std::optional<float> givenSize(const Measure& measure) {
    return fixedSize(findProperty(measure.widget, {measure.axis.styleName, measure.axis.name}));
}

std::optional<float> plainSize(const Measure& measure) {
    return fixedSize(findProperty(measure.widget, {measure.axis.name}));
}

float numberProperty(const WidgetNode& widget, const char* name, float usual) {
    return numberOf(findProperty(widget, {name})).value_or(usual);
}

template <int USUAL> float sized(const Measure& measure) {
    return givenSize(measure).value_or(static_cast<float>(USUAL));
}

template <int USUAL> float plainSized(const Measure& measure) {
    return plainSize(measure).value_or(static_cast<float>(USUAL));
}

template <int SIZE> float fixed(const Measure&) {
    return static_cast<float>(SIZE);
}

float largestChild(const Measure& measure) {
    float largest = 0.0F;
    for (const WidgetNode* child : childWidgets(measure.widget)) {
        largest = std::max(largest, measure.of(child));
    }
    return largest;
}

float firstChild(const Measure& measure) {
    const auto children = childWidgets(measure.widget);
    return children.empty() ? 0.0F : measure.of(children.front());
}

/// Children in a line, with gaps between them.
float lineOfChildren(const Measure& measure) {
    const auto children = childWidgets(measure.widget);
    float sum = 0.0F;
    for (const WidgetNode* child : children) {
        sum += measure.of(child);
    }
    const float gaps = children.size() > 1 ? static_cast<float>(children.size() - 1) : 0.0F;
    return sum + gaps * numberProperty(measure.widget, "இடைவெளி", 0.0F);
}

/// How wide a label is, by a rough width per code point.
float labelWidth(const WidgetNode& widget, float size) {
    constexpr float NARROWEST = 80.0F;
    constexpr float PADDING = 32.0F;
    constexpr float PER_CODE_POINT = 0.45F;
    const auto* text = nodeCast<StringLiteral>(findProperty(widget, {"உரை"}));
    const std::size_t count = text == nullptr ? 0 : countCodePoints(text->value);
    return std::max(NARROWEST, PADDING + static_cast<float>(count) * PER_CODE_POINT * size);
}

constexpr float USUAL_TEXT_SIZE = 16.0F;

float textButtonWidth(const Measure& measure) {
    return labelWidth(measure.widget, numberProperty(measure.widget, "style_அளவு", USUAL_TEXT_SIZE));
}

float buttonWidth(const Measure& measure) {
    const std::optional<float> given = givenSize(measure);
    return given ? *given : labelWidth(measure.widget, USUAL_TEXT_SIZE);
}

float textWidth(const Measure& measure) {
    constexpr std::size_t UNKNOWN_LENGTH = 10;
    constexpr float PER_CODE_POINT = 0.65F;
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

float textHeight(const Measure& measure) {
    constexpr float USUAL_HEIGHT = 20.0F;
    return measure.widget.style.size > 0 ? measure.widget.style.size : USUAL_HEIGHT;
}

float paddingSize(const Measure& measure) {
    constexpr float BOTH_SIDES = 20.0F;
    const auto* padding = dynamic_cast<const PaddingNode*>(&measure.widget);
    return firstChild(measure) + (padding == nullptr ? BOTH_SIDES : 2 * padding->padding);
}

constexpr float CHECK_BOX = 24.0F;

float checkBoxWidth(const Measure& measure) {
    constexpr float GAP = 12.0F;
    if (const std::optional<float> given = givenSize(measure)) {
        return *given;
    }
    return childWidgets(measure.widget).empty() ? CHECK_BOX : CHECK_BOX + GAP + firstChild(measure);
}

float checkBoxHeight(const Measure& measure) {
    const std::optional<float> given = givenSize(measure);
    return given ? *given : std::max(CHECK_BOX, firstChild(measure));
}

/// A box takes its size from the style record among its children first.
float boxSize(const Measure& measure) {
    constexpr float USUAL = 100.0F;
    for (const WidgetNode* child : childWidgets(measure.widget)) {
        if (child->kind == "பெட்டி_பாணி") {
            const std::optional<float> size = plainSize({measure.metrics, *child, measure.axis});
            if (size) {
                return *size;
            }
        }
    }
    return givenSize(measure).value_or(USUAL);
}

/// Three lines are assumed, since nobody knows the window yet.
float wrapHeight(const Measure& measure) {
    constexpr float LINES = 3.0F;
    constexpr float USUAL_GAP = 10.0F;
    return LINES * largestChild(measure) + (LINES - 1.0F) * numberProperty(measure.widget, "இடைவெளி", USUAL_GAP);
}

template <int USUAL> float cardSize(const Measure& measure) {
    constexpr float BOTH_SIDES = 20.0F;
    if (const std::optional<float> given = givenSize(measure)) {
        return *given;
    }
    return childWidgets(measure.widget).empty() ? static_cast<float>(USUAL) : firstChild(measure) + BOTH_SIDES;
}

float spinnerSize(const Measure& measure) {
    constexpr float USUAL = 40.0F;
    return numberProperty(measure.widget, "style_அளவு", USUAL);
}

float tileHeight(const Measure& measure) {
    constexpr float ONE_LINE = 56.0F;
    constexpr float TWO_LINES = 72.0F;
    const bool hasSubtitle = findProperty(measure.widget, {"துணைத்_தலைப்பு"}) != nullptr;
    return plainSize(measure).value_or(hasSubtitle ? TWO_LINES : ONE_LINE);
}

std::size_t gridColumns(const WidgetNode& grid) {
    constexpr float USUAL = 3.0F;
    const float columns =
        numberOf(findProperty(grid, {"குறுக்கு_எண்ணிக்கை"})).value_or(numberProperty(grid, "cols", USUAL));
    return static_cast<std::size_t>(std::clamp(columns, 1.0F, 1.0e6F));
}

/// The gap between cells: the size of a spacer among the properties, or the usual one.
float gridGap(const Measure& measure, std::optional<float> otherwise) {
    constexpr float USUAL = 10.0F;
    for (const auto& property : measure.widget.properties) {
        const WidgetNode* spacer = asWidget(property.second.get());
        if (spacer != nullptr && spacer->kind == "இவெ") {
            const std::optional<float> size = numberOf(findProperty(*spacer, {measure.axis.name}));
            if (size) {
                return *size;
            }
        }
    }
    return otherwise.value_or(USUAL);
}

float gridSize(const Measure& measure, std::size_t cells, float emptyCell, std::optional<float> namedGap) {
    const float largest = largestChild(measure);
    const float cell = largest == 0.0F ? emptyCell : largest;
    const float gaps = cells > 1 ? static_cast<float>(cells - 1) : 0.0F;
    return static_cast<float>(cells) * cell + gaps * gridGap(measure, namedGap);
}

float gridWidth(const Measure& measure) {
    constexpr float EMPTY_CELL = 150.0F;
    if (const std::optional<float> given =
            fixedSize(findProperty(measure.widget, {measure.axis.styleName, measure.axis.name, "width"}))) {
        return *given;
    }
    return gridSize(measure, gridColumns(measure.widget), EMPTY_CELL, std::nullopt);
}

float gridHeight(const Measure& measure) {
    constexpr float EMPTY_CELL = 40.0F;
    if (const std::optional<float> given = givenSize(measure)) {
        return *given;
    }
    const std::size_t columns = gridColumns(measure.widget);
    const std::size_t rows = (columns + childWidgets(measure.widget).size() - 1) / columns;
    return gridSize(measure, rows, EMPTY_CELL, numberOf(findProperty(measure.widget, {"v_gap"})));
}

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
    {"அட்டை", cardSize<350>, cardSize<200>},
    {"எச்சரிக்கை", sized<400>, sized<280>},
    {"சுழல்_காட்டி", spinnerSize, spinnerSize},
    {"முன்னேற்றவரி", sized<200>, sized<6>},
    {"தகவல்பட்டை", sized<300>, sized<40>},
    {"உரைபெட்டி", sized<320>, sized<60>},
    {"பட்டியல்_உருப்படி", plainSized<200>, tileHeight},
    {"வட்டபடம்", sized<48>, sized<48>},
    {"தத்தல்", fixed<0>, fixed<50>},
};

float measureOnce(WidgetMetrics& metrics, const Statement* statement, const Axis& axis, Rule KindRules::*rule,
                  std::unordered_map<const Statement*, float>& known) {
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

std::size_t countCodePoints(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::optional<float> numberOf(const Expression* expression) {
    const auto* number = nodeCast<NumberLiteral>(expression);
    return number == nullptr ? std::nullopt : std::optional(floatOf(number->value));
}

} // namespace pozhil
