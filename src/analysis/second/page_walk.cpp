#include "analysis/second/page_walk.h"

#include "analysis/second/control_bindings.h"
#include "language/property_words.h"
#include "language/second/widgets.h"
#include "language/widgets.h"

#include <algorithm>

namespace pozhil::second {
namespace {

using language::ValueKind;

constexpr std::string_view STYLE_PREFIX = "style_";
/// Properties of every widget.
constexpr std::string_view NAMES[] = {"அடையாளம்", "ID", "id"};

bool isName(std::string_view property) {
    return std::find(std::begin(NAMES), std::end(NAMES), property) != std::end(NAMES);
}

/// What a property of a widget takes; any value where no table has it.
ValueKind kindOf(const WidgetNode& widget, std::string_view property) {
    if (property.substr(0, STYLE_PREFIX.size()) == STYLE_PREFIX) {
        property.remove_prefix(STYLE_PREFIX.size());
    }
    if (property == language::property::ALIGNMENT) {
        return ValueKind::Alignment;
    }
    const language::Widget* const row = language::findWidget(widget.kind);
    if (row == nullptr) {
        return ValueKind::Value;
    }
    const auto* const found = std::find_if(row->properties.begin(), row->properties.end(),
                                           [&](const auto& one) { return one.name == property; });
    return found == row->properties.end() ? ValueKind::Value : found->kind;
}

/// What the compiler itself reads.
bool isConstant(const Expression& value) {
    return nodeCast<ColorExpression>(&value) != nullptr || nodeCast<PercentageLiteral>(&value) != nullptr;
}

const Expression* propertyOf(const WidgetNode& widget, std::string_view name) {
    const auto found = widget.properties.find(std::string(name));
    return found == widget.properties.end() ? nullptr : found->second.get();
}

bool endsInPercent(const std::string& text) {
    return !text.empty() && text.back() == '%';
}

} // namespace

void PageWalk::walk(const WebAppNode& application) {
    for (const Statement* part : {application.header.get(), application.uiBody.get()}) {
        if (const auto* widget = dynamic_cast<const WidgetNode*>(part)) {
            walk(*widget);
        }
    }
}

void PageWalk::walk(const WidgetNode& widget) {
    if (const auto* each = dynamic_cast<const EachNode*>(&widget)) {
        walkEach(*each);
        return;
    }
    for (const auto& [name, value] : widget.properties) {
        walkProperty(widget, name, value.get());
    }
    walkChildren(widget);
}

void PageWalk::walkChildren(const WidgetNode& widget) {
    for (const StatementPtr& child : widget.children) {
        if (const auto* inner = dynamic_cast<const WidgetNode*>(child.get())) {
            walk(*inner);
        }
    }
}

void PageWalk::walkEach(const EachNode& each) {
    if (const Expression* list = listOf(each)) {
        onValue(*list);
    }
    enterEach(each);
    if (const Expression* key = keyOf(each)) {
        onValue(*key);
    }
    walkChildren(each);
    leaveEach(each);
}

void PageWalk::walkProperty(const WidgetNode& widget, const std::string& name, const Expression* value) {
    if (const auto* slot = nodeCast<WidgetExpression>(value)) {
        walk(*slot->widget);
        return;
    }
    const auto* const text = nodeCast<StringLiteral>(value);
    if (text != nullptr && isName(name)) {
        onWidgetName(text->value);
        if (widget.kind == language::widget::CHECKBOX) {
            onStateName(*text);
        }
    }
    if (text != nullptr && name == language::property::VISIBILITY) {
        onVariableName(*text);
        return;
    }
    if (value == nullptr || isConstant(*value)) {
        return;
    }
    if (const std::optional<ControlBinding> binding = bindingOf(widget); binding && binding->property == &name) {
        onBinding(name, *value, binding->isOptional);
        return;
    }
    switch (kindOf(widget, name)) {
    case ValueKind::Colour:
    case ValueKind::Alignment: return;
    case ValueKind::Size: walkSize(value); return;
    default: onValue(*value);
    }
}

/// A percentage is no value, but a choice between percentages has a condition.
void PageWalk::walkSize(const Expression* size) {
    if (const auto* bracketed = nodeCast<GroupingExpression>(size)) {
        walkSize(bracketed->inner.get());
    } else if (const auto* choice = nodeCast<TernaryExpression>(size)) {
        onValue(*choice->condition);
        walkSize(choice->thenBranch.get());
        walkSize(choice->elseBranch.get());
    } else if (const auto* text = nodeCast<StringLiteral>(size); text == nullptr || !endsInPercent(text->value)) {
        if (nodeCast<PercentageLiteral>(size) == nullptr) {
            onValue(*size);
        }
    }
}

std::string pageNameOf(const WebAppNode& application) {
    const auto* const header = dynamic_cast<const WidgetNode*>(application.header.get());
    const auto* const name =
        header == nullptr ? nullptr : nodeCast<StringLiteral>(propertyOf(*header, language::property::PAGE));
    return name == nullptr ? language::property::UNNAMED_PAGE : name->value;
}

const Expression* listOf(const EachNode& each) {
    return propertyOf(each, language::second::EACH_LIST);
}

const Expression* keyOf(const EachNode& each) {
    return propertyOf(each, language::second::EACH_KEY);
}

const BlockStatement* logicOf(const WebAppNode& application) {
    const auto* const logic = nodeCast<LogicBlockNode>(application.definition.get());
    return logic == nullptr ? nullptr : logic->block.get();
}

} // namespace pozhil::second
