#include "generator/web/write/sizes.h"

#include "base/number_text.h"
#include "generator/web/write/widget_writer.h"
#include "language/alignments.h"

#include <string_view>

namespace pozhil {
namespace {

std::string percentOf(const std::string& literal, const std::string& base) {
    const float percentage = floatOf(std::string_view(literal).substr(0, literal.size() - 1));
    return "(" + base + " * " + std::to_string(percentage / 100) + "f)";
}

bool endsInPercent(const std::string& text) {
    return !text.empty() && text.back() == '%';
}

std::string choice(EditionWriter& edition, const TernaryExpression& ternary, const std::string& base) {
    const std::string condition = ternary.condition == nullptr ? "" : edition.sizeCondition(*ternary.condition, base);
    const std::string thenSize = processPercentage(edition, ternary.thenBranch.get(), base);
    const std::string elseSize = processPercentage(edition, ternary.elseBranch.get(), base);
    const bool isWhole = !condition.empty() && !thenSize.empty() && !elseSize.empty();
    return isWhole ? "(" + condition + " ? " + thenSize + " : " + elseSize + ")" : "";
}

} // namespace

std::string processPercentage(EditionWriter& edition, const Expression* expression, const std::string& base) {
    if (const auto* percentage = nodeCast<PercentageLiteral>(expression)) {
        return percentOf(percentage->value, base);
    }
    if (const auto* text = nodeCast<StringLiteral>(expression)) {
        return endsInPercent(text->value) ? percentOf(text->value, base) : "";
    }
    if (const auto* number = nodeCast<NumberLiteral>(expression)) {
        const bool isWhole = number->value.find('.') == std::string::npos;
        return toAsciiDigits(number->value) + (isWhole ? ".0f" : "f");
    }
    if (const auto* grouping = nodeCast<GroupingExpression>(expression)) {
        const std::string inner = processPercentage(edition, grouping->inner.get(), base);
        return inner.empty() ? "" : "(" + inner + ")";
    }
    if (const auto* ternary = nodeCast<TernaryExpression>(expression)) {
        return choice(edition, *ternary, base);
    }
    return expression == nullptr ? "" : edition.computedSize(*expression, base);
}

void emitGivenSize(WidgetWriter& widget, std::initializer_list<const char*> names, const char* variable,
                   const char* base) {
    emitSize(widget, findProperty(widget.widget(), names), variable, base);
}

void emitSize(WidgetWriter& widget, const Expression* size, const char* variable, const char* base) {
    const std::string text = processPercentage(widget.edition(), size, base);
    if (!text.empty()) {
        widget.block("    $variable = $size;\n", {{"variable", variable}, {"size", text}});
    }
}

void emitOwnSize(WidgetWriter& widget, const char* width, const char* height) {
    emitGivenSize(widget, {"style_அகலம்", "அகலம்"}, width, "(forcedW > 0.0f ? forcedW : winWidth)");
    emitGivenSize(widget, {"style_உயரம்", "உயரம்"}, height, "(forcedH > 0.0f ? forcedH : winHeight)");
    widget.block("    if (forcedW > 0.0f) $width = forcedW;\n    if (forcedH > 0.0f) $height = forcedH;\n",
                 {{"width", width}, {"height", height}});
}

void emitOwnWidth(WidgetWriter& widget, const char* width) {
    emitGivenSize(widget, {"style_அகலம்", "அகலம்"}, width, "(forcedW > 0.0f ? forcedW : winWidth)");
    widget.block("    if (forcedW > 0.0f) $width = forcedW;\n", {{"width", width}});
}

std::pair<float, float> getAlignmentCoords(சீரமைப்பு_வகை alignment) {
    const language::Rows<language::Alignment> rows = language::alignments();
    const auto index = static_cast<std::size_t>(alignment);
    const language::Alignment& row = *(rows.begin() + (index < rows.size() ? index : 0));
    return {row.x, row.y};
}

} // namespace pozhil
