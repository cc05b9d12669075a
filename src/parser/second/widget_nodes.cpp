#include "parser/second/widget_nodes.h"

#include "base/number_text.h"
#include "language/alignments.h"
#include "language/property_words.h"
#include "language/second/widgets.h"
#include "language/widget_words.h"
#include "parser/second/literals.h"

#include <algorithm>
#include <iterator>

namespace pozhil::second {
namespace {

using language::Widget;
using language::WidgetForm;
using language::WidgetProperty;

namespace property = language::property;
namespace widget = language::widget;

constexpr auto UPPER_LEFT = சீரமைப்பு_வகை::மேல்_இடது;

/// A property that a node keeps by another name than the source's.
struct Renamed {
    WidgetForm form;
    std::string_view style;
    std::string_view name;
    const char* key;
};

constexpr Renamed RENAMED[] = {
    {WidgetForm::Container, "", property::BOX_BACKGROUND, "பின்னணி"},
    {WidgetForm::GridView, "", "குறுக்கு_எண்ணிக்கை", "cols"},
    {WidgetForm::GridView, "", property::WIDTH, "width"},
    {WidgetForm::GridView, "", property::HEIGHT, "height"},
    {WidgetForm::GridView, widget::GAP, property::WIDTH, "h_gap"},
    {WidgetForm::GridView, widget::GAP, property::HEIGHT, "v_gap"},
    {WidgetForm::Expanded, "", widget::SHARE, "flex"},
    {WidgetForm::Spacer, "", widget::SHARE, "flex"},
    {WidgetForm::General, property::BUTTON_STYLE, property::BUTTON_BACKGROUND, "style_பின்னணி"},
};

std::string textOf(const Expression& value) {
    if (const auto* colour = nodeCast<ColorExpression>(&value)) {
        return colour->isHex ? colour->hexValue : colour->colorName;
    }
    if (const auto* get = nodeCast<GetExpression>(&value)) {
        return get->member.value;
    }
    if (const auto* name = nodeCast<VariableAccess>(&value)) {
        return name->name;
    }
    const auto* text = nodeCast<StringLiteral>(&value);
    return text == nullptr ? "" : text->value;
}

void setWeight(TextStyle& style, const Expression& value) {
    if (const auto* number = nodeCast<NumberLiteral>(&value)) {
        style.weight = number->value;
    } else if (const std::string text = textOf(value); !text.empty()) {
        style.weight = text == "தடிமனான" || text == "bold" ? "700" : "400";
    }
}

void setUnderline(TextStyle& style, const Expression& value) {
    const auto* truth = nodeCast<BooleanLiteral>(&value);
    style.underline = truth != nullptr && truth->value == "மெய்";
}

struct StyleField {
    std::string_view name;
    void (*set)(TextStyle& style, const Expression& value);
};

constexpr StyleField STYLE_FIELDS[] = {
    {property::COLOUR, [](TextStyle& style, const Expression& value) { style.color = textOf(value); }},
    {property::SIZE,
     [](TextStyle& style, const Expression& value) { style.size = writtenNumber(value).value_or(style.size); }},
    {property::WEIGHT, setWeight},
    {property::ALIGNMENT, [](TextStyle& style, const Expression& value) { style.align = textOf(value); }},
    {property::TEXT_ALIGNMENT, [](TextStyle& style, const Expression& value) { style.align = textOf(value); }},
    {property::FONT, [](TextStyle& style, const Expression& value) { style.font = textOf(value); }},
    {property::UNDERLINE, setUnderline},
};

} // namespace

std::unique_ptr<WidgetNode> makeWidgetNode(const Widget& widget) {
    switch (widget.form) {
    case WidgetForm::Column: return std::make_unique<ColumnNode>(StatementList(), UPPER_LEFT);
    case WidgetForm::Row: return std::make_unique<RowNode>(StatementList(), UPPER_LEFT);
    case WidgetForm::ListView: return std::make_unique<ListViewNode>(StatementList());
    case WidgetForm::GridView: return std::make_unique<GridViewNode>(StatementList());
    case WidgetForm::Expanded: return std::make_unique<ExpandedNode>(StatementList());
    case WidgetForm::Flexible: return std::make_unique<FlexibleNode>(1, StatementList());
    case WidgetForm::Container: return std::make_unique<ContainerNode>(StatementList(), UPPER_LEFT);
    case WidgetForm::SnackBar: return std::make_unique<SnackBarNode>(StatementList());
    case WidgetForm::Padding: {
        auto padding = std::make_unique<PaddingNode>();
        padding->kind = widget.word;
        return padding;
    }
    default: break;
    }
    if (widget.word == language::second::EACH) {
        return std::make_unique<EachNode>(widget.word, Token{TokenType::IDENTIFIER, "", 0});
    }
    const auto alignment = widget.form == WidgetForm::Dialog ? சீரமைப்பு_வகை::மையம் : UPPER_LEFT;
    return std::make_unique<WidgetNode>(widget.word, PropertyMap(), StatementList(), alignment);
}

std::string keyOf(const Widget& widget, const WidgetProperty& property) {
    const auto* const found = std::find_if(std::begin(RENAMED), std::end(RENAMED), [&](const Renamed& row) {
        return row.form == widget.form && row.style == property.style && row.name == property.name;
    });
    if (found != std::end(RENAMED)) {
        return found->key;
    }
    return (property.style.empty() ? "" : "style_") + std::string(property.name);
}

bool keepField(WidgetNode& node, const WidgetProperty& property, const Expression& value) {
    if (auto* each = dynamic_cast<EachNode*>(&node); each != nullptr && property.kind == language::ValueKind::Name) {
        each->element = {TokenType::IDENTIFIER, textOf(value), value.line};
        return true;
    }
    const std::optional<float> number = writtenNumber(value);
    if (auto* flexible = dynamic_cast<FlexibleNode*>(&node); flexible != nullptr && property.name == widget::SHARE) {
        const auto* share = nodeCast<NumberLiteral>(&value);
        flexible->flex = share == nullptr ? flexible->flex : intOf(share->value);
        return true;
    }
    if (auto* padding = dynamic_cast<PaddingNode*>(&node); padding != nullptr && property.name == property::SIZE) {
        padding->padding = number.value_or(0);
    }
    auto* bar = dynamic_cast<SnackBarNode*>(&node);
    if (bar != nullptr && property.name == property::BACKGROUND && nodeCast<StringLiteral>(&value) != nullptr) {
        bar->background = textOf(value);
    }
    return false;
}

bool hasAlignmentField(const Widget& widget) {
    switch (widget.form) {
    case WidgetForm::Container:
    case WidgetForm::TextButton:
    case WidgetForm::ListTile:
    case WidgetForm::Spacer:
    case WidgetForm::Expanded:
    case WidgetForm::Flexible:
    case WidgetForm::Padding: return false;
    default: return true;
    }
}

void keepAlignment(WidgetNode& node, const Expression& value) {
    if (const language::Alignment* alignment = language::findAlignment(textOf(value))) {
        node.alignment = static_cast<சீரமைப்பு_வகை>(std::distance(language::alignments().begin(), alignment));
    }
}

bool keepTextStyle(TextStyle& style, const WidgetProperty& property, const Expression& value) {
    const auto* const field = std::find_if(std::begin(STYLE_FIELDS), std::end(STYLE_FIELDS),
                                           [&](const StyleField& row) { return row.name == property.name; });
    if (field != std::end(STYLE_FIELDS)) {
        field->set(style, value);
    }
    return field != std::end(STYLE_FIELDS);
}

} // namespace pozhil::second
