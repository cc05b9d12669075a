/// Controls: how what they show and what the program holds become the same.

#include "analysis/second/control_bindings.h"
#include "generator/second/literals.h"
#include "generator/second/pages/page_edition.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/widget_properties.h"
#include "generator/web/write/widget_writer.h"
#include "language/property_words.h"
#include "language/widget_words.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

namespace pozhil::resolved::writer {
namespace {

namespace word = language::widget;

using Kind = ControlState::Kind;

constexpr const char* CHANGED = "மாறியதால்";
constexpr const char* ENTERED = "உள்ளிட்டால்";
constexpr const char* PRESSED = "அழுத்தினால்";
constexpr const char* DISABLED = "முடக்கு";

/// A word of வகை, and what browsers call that keyboard.
struct Keyboard {
    std::string_view word;
    const char* name;
};

constexpr Keyboard KEYBOARDS[] = {{"மின்னஞ்சல்", "email"}, {"எண்", "decimal"}, {"தொலைபேசி", "tel"}};

const char* keyboardOf(const WidgetNode& field) {
    const std::string kind = textOf(findProperty(field, {"வகை"}));
    const auto* const found =
        std::find_if(std::begin(KEYBOARDS), std::end(KEYBOARDS), [&](const Keyboard& one) { return one.word == kind; });
    return found == std::end(KEYBOARDS) ? "" : found->name;
}

/// The function of the page that lets a control show what the program holds.
const char* showingFunction(Kind kind) {
    switch (kind) {
    case Kind::Truth: return "showTruth";
    case Kind::Number: return "showNumber";
    case Kind::Index: return "showIndex";
    case Kind::Choice: return "showChoice";
    case Kind::Group: break;
    }
    return "";
}

} // namespace

/// A box to tick holds its state in the variable that it is called by.
const Variable* PageEdition::stateOf(const WidgetWriter& control) const {
    const auto* const name = nodeCast<StringLiteral>(findProperty(control.widget(), {language::property::ID.data()}));
    const auto found = name == nullptr ? program_.pageValues.end() : program_.pageValues.find(&name->value);
    return found == program_.pageValues.end()
               ? nullptr
               : dynamic_cast<const VariableRead&>(*found->second.evaluation->value).variable;
}

bool PageEdition::isBound(const WidgetNode& control) {
    const auto binding = second::bindingOf(control);
    return binding && program_.pageValues.count(binding->property) != 0;
}

/// A variable of a file is read as it is, whether it has a value or not.
std::string PageEdition::heldValue(const pozhil::Expression& place) {
    const auto* const read = dynamic_cast<const VariableRead*>(valueOf(&place).evaluation->value.get());
    const bool isOfFile = read != nullptr && read->variable->owner == nullptr;
    return isOfFile ? "Value(" + tables_.names.of(*read->variable) + ")" : written(&place);
}

void PageEdition::writeStateRead(WidgetWriter& control, const ControlState& state) {
    if (isBound(control.widget())) {
        const pozhil::Expression& place = *second::bindingOf(control.widget())->place;
        control.block("page::$show($held, $state$items, $place);\n",
                      {{"show", showingFunction(state.kind)},
                       {"held", heldValue(place)},
                       {"state", state.variable},
                       {"items", state.kind == Kind::Choice ? ", items" : ""},
                       {"place", placeOf(&place)}});
    } else if (const Variable* variable = stateOf(control)) {
        control.block("page::exchange($variable, $state);\n",
                      {{"variable", tables_.names.of(*variable)}, {"state", state.variable}});
    }
}

std::string PageEdition::newsOf(const WidgetNode& control, const ControlState& state) {
    switch (state.kind) {
    case Kind::Truth: return "Value(" + state.variable + ")";
    case Kind::Number: return "page::decimalOf(" + state.variable + ")";
    case Kind::Index: return "Value((Whole)" + state.variable + ")";
    case Kind::Choice: return "pageInput(items[" + state.variable + "])";
    case Kind::Group: break;
    }
    const pozhil::Expression* const own = second::ownValueOf(control);
    return own == nullptr ? "" : written(own);
}

void PageEdition::writeChange(WidgetWriter& control, const ControlState& state) {
    const std::string news = newsOf(control.widget(), state);
    if (isBound(control.widget())) {
        const second::ControlBinding binding = *second::bindingOf(control.widget());
        control.block(
            "page::change($held, $news, [&](const Value& news) {\n    $work\n});\n",
            {{"held", heldValue(*binding.place)}, {"news", news}, {"work", control.blocks([&] {
                                                                       writeCall(control, binding.property, "news");
                                                                       writeChangeHandler(control, CHANGED, "news");
                                                                   })}});
    } else {
        if (const Variable* variable = stateOf(control)) {
            control.block("$variable = Value($state);\n",
                          {{"variable", tables_.names.of(*variable)}, {"state", state.variable}});
        }
        writeUnboundChange(control, state, news);
    }
    if (state.kind == Kind::Index) {
        writeBarPress(control, state.variable);
    }
}

/// A slider changes as long as it is held, in each frame, but not all frames bring something new.
void PageEdition::writeUnboundChange(WidgetWriter& control, const ControlState& state, const std::string& news) {
    if (state.kind != Kind::Number || findProperty(control.widget(), {CHANGED}) == nullptr) {
        writeChangeHandler(control, CHANGED, news);
        return;
    }
    control.block("$told;\nif (told_$n != $state) {\n    told_$n = $state;\n    $work\n}\n",
                  {{"told", control.state("float", "told_" + control.number(), "-99999.0f")},
                   {"state", state.variable},
                   {"work", control.blocks([&] { writeChangeHandler(control, CHANGED, news); })}});
}

void PageEdition::writeChangeHandler(WidgetWriter& control, const char* property, const std::string& news) {
    const pozhil::Expression* const handler = findProperty(control.widget(), {property});
    if (handler == nullptr) {
        return;
    }
    if (asWidget(handler) != nullptr) {
        writeHandlerCall(control, handler, HandlerSite::Control);
    } else {
        writeCall(control, handler, news);
    }
}

void PageEdition::writeBarPress(WidgetWriter& bar, const std::string& index) {
    writePress(bar, bar.widget());
    std::size_t item = 0;
    for (const WidgetNode* child : childWidgets(bar.widget())) {
        const std::string number = std::to_string(item++);
        if (findProperty(*child, {PRESSED}) != nullptr) {
            bar.block("if ($index == $item) {\n    $press\n}\n",
                      {{"index", index}, {"item", number}, {"press", bar.blocks([&] { writePress(bar, *child); })}});
        }
    }
}

void PageEdition::writePress(WidgetWriter& bar, const WidgetNode& pressed) {
    if (const pozhil::Expression* handler = findProperty(pressed, {PRESSED})) {
        writeHandlerCall(bar, handler, HandlerSite::Bar);
    }
}

void PageEdition::writeChoices(WidgetWriter& dropdown, const pozhil::Expression& choices) {
    dropdown.block("    page::addChoices($list, items, $place);\n",
                   {{"list", written(&choices)}, {"place", placeOf(&choices)}});
}

void PageEdition::writeField(WidgetWriter& field, const Filling& id) {
    const WidgetNode& widget = field.widget();
    field.block("    page::openField($id, \"$keyboard\", $isHidden);\n",
                {{"id", id},
                 {"keyboard", keyboardOf(widget)},
                 {"isHidden", widget.kind == word::PASSWORD_FIELD ? "true" : "false"}});
    const bool hasHandler = findProperty(widget, {CHANGED}) != nullptr;
    if (isBound(widget) || hasHandler) {
        const std::optional<second::ControlBinding> binding = second::bindingOf(widget);
        field.block("    page::keepField($id, $held, $place, [&](const Value& news) {\n        $work\n    });\n",
                    {{"id", id},
                     {"held", binding ? heldValue(*binding->place) : "Value::unset()"},
                     {"place", binding ? placeOf(binding->place) : "nullptr"},
                     {"work", field.blocks([&] {
                          if (binding) {
                              writeCall(field, binding->property, "news");
                          }
                          writeChangeHandler(field, CHANGED, "news");
                      })}});
    }
    if (findProperty(widget, {ENTERED}) != nullptr) {
        field.block("    if (page::takeEnter($id)) {\n        const Value news = pageInput(g_inputValues[$id]);\n"
                    "        $work\n    }\n",
                    {{"id", id}, {"work", field.blocks([&] { writeChangeHandler(field, ENTERED, "news"); })}});
    }
}

void PageEdition::writeDisabling(WidgetWriter& widget) {
    const pozhil::Expression* const condition = findProperty(widget.widget(), {DISABLED});
    if (condition == nullptr) {
        return;
    }
    widget.block(
        "    const page::Disabled disabled($condition, $hasMenu);\n",
        {{"condition", truth(*condition)}, {"hasMenu", widget.widget().kind == word::DROPDOWN ? "true" : "false"}});
}

} // namespace pozhil::resolved::writer
