#include "generator/web/write/text_value.h"

#include "base/number_text.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"

namespace pozhil {
namespace {

std::string globalVariable(const std::string& name) {
    return "global_vars[\"" + name + "\"]";
}

} // namespace

Filling textValue(WidgetWriter& widget, const Expression* value, const char* otherwise) {
    if (value == nullptr) {
        return otherwise;
    }
    if (const auto* member = nodeCast<GetExpression>(value)) {
        const auto* object = nodeCast<VariableAccess>(member->object.get());
        if (object != nullptr && object->name == "காட்சி_நிலை") {
            return globalVariable(member->member.value);
        }
    }
    if (const auto* variable = nodeCast<VariableAccess>(value)) {
        return globalVariable(variable->name);
    }
    if (const WidgetNode* inner = asWidget(value)) {
        const Expression* text = findProperty(*inner, {"உரை"});
        return text == nullptr ? Filling("std::string(u8\"[விட்ஜெட்]\")") : widget.expression(text);
    }
    return widget.expression(value);
}

Filling textArgument(WidgetWriter& widget, const Expression* value) {
    const auto* literal = nodeCast<StringLiteral>(value);
    if (value == nullptr || literal != nullptr) {
        return "\"" + textOf(value) + "\"";
    }
    return Filling(std::vector<Filling>{"fn_any_to_string(", textValue(widget, value, ""), ").c_str()"});
}

Filling numberValue(WidgetWriter& widget, const Expression* value, float usual) {
    const std::optional<float> constant = value == nullptr ? usual : constantOf(value);
    if (constant) {
        return floatConstant(*constant);
    }
    return Filling(std::vector<Filling>{"(float)fn_get_double(", widget.expression(value), ")"});
}

Filling truthValue(WidgetWriter& widget, const Expression* value) {
    if (value == nullptr || nodeCast<BooleanLiteral>(value) != nullptr) {
        return isTrue(value) ? "true" : "false";
    }
    return Filling(std::vector<Filling>{"fn_compare_any(", widget.expression(value), ", true, \"==\")"});
}

float fontSizeOf(const TextStyle& style) {
    constexpr float USUAL = 16.0F;
    return style.size > 0 ? style.size : USUAL;
}

std::string weightOf(const TextStyle& style) {
    return style.weight.empty() ? "400" : toAsciiDigits(style.weight);
}

} // namespace pozhil
