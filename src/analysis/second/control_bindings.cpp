#include "analysis/second/control_bindings.h"

#include "language/property_words.h"
#include "parser/tree/shapes.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace pozhil::second {
namespace {

namespace widget = language::widget;

constexpr const char* VALUE = "மதிப்பு";
constexpr const char* GROUP = "குழு_மதிப்பு";

constexpr std::string_view CONTROLS[] = {
    widget::TEXT_FIELD, widget::PASSWORD_FIELD, widget::SEARCH_BAR, widget::SEARCH_FIELD, widget::CHECKBOX,
    widget::SWITCH,     widget::SLIDER,         widget::DROPDOWN,   widget::TAB_BAR,      widget::BOTTOM_NAVIGATION};

bool isPlain(const Expression* value) {
    value = withoutBrackets(value);
    if (const auto* member = nodeCast<GetExpression>(value)) {
        return isPlain(member->object.get());
    }
    if (const auto* element = nodeCast<IndexExpression>(value)) {
        return isPlain(element->object.get()) && isPlain(element->index.get());
    }
    if (const auto* operation = nodeCast<BinaryExpression>(value)) {
        return isPlain(operation->left.get()) && isPlain(operation->right.get());
    }
    return nodeCast<VariableAccess>(value) != nullptr || nodeCast<NumberLiteral>(value) != nullptr ||
           nodeCast<StringLiteral>(value) != nullptr || nodeCast<BooleanLiteral>(value) != nullptr;
}

std::optional<ControlBinding> bindingBy(const WidgetNode& control, const char* property, bool isOptional) {
    const auto found = control.properties.find(property);
    if (found == control.properties.end() || (isOptional && !isPlainPlace(*found->second))) {
        return std::nullopt;
    }
    return ControlBinding{&found->first, found->second.get(), isOptional};
}

bool has(const WidgetNode& control, std::string_view property) {
    return control.properties.find(std::string(property)) != control.properties.end();
}

} // namespace

bool isPlainPlace(const Expression& place) {
    const Expression* const value = withoutBrackets(&place);
    const bool hasForm = nodeCast<VariableAccess>(value) != nullptr || nodeCast<GetExpression>(value) != nullptr ||
                         nodeCast<IndexExpression>(value) != nullptr;
    return hasForm && isPlain(value);
}

std::optional<ControlBinding> bindingOf(const WidgetNode& control) {
    constexpr bool OPTIONAL = true;
    if (control.kind == widget::RADIO) {
        const bool isInGroup = has(control, VALUE) && has(control, GROUP);
        return isInGroup                                ? bindingBy(control, GROUP, OPTIONAL)
               : has(control, language::property::TEXT) ? bindingBy(control, VALUE, OPTIONAL)
                                                        : std::nullopt;
    }
    if (std::find(std::begin(CONTROLS), std::end(CONTROLS), control.kind) == std::end(CONTROLS)) {
        return std::nullopt;
    }
    return bindingBy(control, VALUE, control.kind == widget::SLIDER);
}

const Expression* ownValueOf(const WidgetNode& radio) {
    if (has(radio, VALUE) && has(radio, GROUP)) {
        return radio.properties.at(VALUE).get();
    }
    return bindingOf(radio) ? radio.properties.at(std::string(language::property::TEXT)).get() : nullptr;
}

} // namespace pozhil::second
