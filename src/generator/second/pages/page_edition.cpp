#include "generator/second/pages/page_edition.h"

#include "analysis/second/page_walk.h"
#include "emit/code_writer.h"
#include "generator/second/expression_writer.h"
#include "generator/second/function_writer.h"
#include "generator/second/literals.h"
#include "generator/web/page/web_emitter.h"
#include "generator/web/write/widget_properties.h"
#include "generator/web/write/widget_writer.h"
#include "language/property_words.h"
#include "language/second/widgets.h"
#include "language/widget_words.h"

#include <map>
#include <stdexcept>

namespace pozhil::resolved::writer {
namespace {

bool isDialog(const WidgetNode& widget) {
    return widget.kind == language::widget::DIALOG;
}

/// Finds the dialogs of a page.
void collectDialogs(const WidgetNode& widget, std::vector<const WidgetNode*>& dialogs) {
    if (isDialog(widget)) {
        dialogs.push_back(&widget);
    }
    for (const WidgetNode* child : childWidgets(widget)) {
        collectDialogs(*child, dialogs);
    }
}

/// Finds the names by which variables show and hide widgets.
class NamesOfVariables : public second::PageWalk {
public:
    std::map<std::string, const StringLiteral*> found;

protected:
    void onValue(const pozhil::Expression&) override {}
    void enterEach(const EachNode&) override {}
    void leaveEach(const EachNode&) override {}
    void onVariableName(const StringLiteral& name) override { found.emplace(name.value, &name); }
    void onStateName(const StringLiteral&) override {}
    void onWidgetName(const std::string&) override {}
    void onBinding(const std::string&, const pozhil::Expression&, bool) override {}
};

/// What does its work by being evaluated.
bool isDeed(const Expression& value) {
    return dynamic_cast<const FunctionCall*>(&value) != nullptr || dynamic_cast<const ValueCall*>(&value) != nullptr ||
           dynamic_cast<const MethodCall*>(&value) != nullptr || dynamic_cast<const BuiltinCall*>(&value) != nullptr ||
           dynamic_cast<const AssignmentValue*>(&value) != nullptr;
}

} // namespace

const PageValue& PageEdition::valueOf(const void* node) const {
    const auto found = program_.pageValues.find(node);
    if (found == program_.pageValues.end()) {
        throw std::logic_error("a page shows a value that analysis didn't see");
    }
    return found->second;
}

/// The value as a Value.
std::string PageEdition::written(const void* node) {
    const PageValue& value = valueOf(node);
    CallScope scope{value.frame};
    return ExpressionWriter(tables_, scope).write(*value.evaluation->value, Wanted::Value);
}

std::string PageEdition::shownBy(const pozhil::Expression* value, const std::string& otherwise) {
    if (value == nullptr) {
        return otherwise;
    }
    if (const auto* literal = nodeCast<StringLiteral>(value)) {
        return "std::string(" + textLiteral(literal->value) + ")";
    }
    return "pageText(" + written(value) + ")";
}

Filling PageEdition::text(const pozhil::Expression* value, const std::string& otherwise) {
    return shownBy(value, otherwise);
}

Filling PageEdition::shownText(const pozhil::Expression* value, const std::string& otherwise) {
    return text(value, otherwise);
}

Filling PageEdition::number(const pozhil::Expression& value) {
    return "pageNumber(" + written(&value) + ", " + placeOf(&value) + ")";
}

Filling PageEdition::truth(const pozhil::Expression& value) {
    return sizeCondition(value, "");
}

Filling PageEdition::equality(const pozhil::Expression& left, const pozhil::Expression& right) {
    return "pageEqual(" + written(&left) + ", " + written(&right) + ")";
}

std::string PageEdition::literal(const std::string& text) const {
    return textLiteral(text);
}

std::string PageEdition::inComment(const std::string& text) const {
    return lineComment(text).substr(lineComment("").size());
}

std::string PageEdition::computedSize(const pozhil::Expression& size, const std::string&) {
    return "(float)pageNumber(" + written(&size) + ", " + placeOf(&size) + ")";
}

std::string PageEdition::sizeCondition(const pozhil::Expression& condition, const std::string&) {
    const PageValue& value = valueOf(&condition);
    CallScope scope{value.frame};
    return ExpressionWriter(tables_, scope).condition(*value.evaluation->value);
}

/// A variable that has no value yet leaves the widget as it is at first.
std::string PageEdition::visibilityCondition(const pozhil::Expression& name, const std::string& atFirst) {
    const auto& read = dynamic_cast<const VariableRead&>(*valueOf(&name).evaluation->value);
    const std::string& variable = tables_.names.of(*read.variable);
    if (typeOf(*read.variable) == Type::Truth) {
        return variable;
    }
    return "page::isShown([&] { return page::shows(" + variable + ", " + atFirst + ", " +
           tables_.places.literal(read.place) + "); })";
}

std::optional<Visibility> PageEdition::visibility(const WidgetNode& widget) {
    const auto* const name = nodeCast<StringLiteral>(findProperty(widget, {language::property::VISIBILITY.data()}));
    if (name == nullptr) {
        return std::nullopt;
    }
    return Visibility{name->value, visibilityCondition(*name, isDialog(widget) ? "false" : "true")};
}

std::string PageEdition::shownWhile(const WidgetNode& widget) {
    const pozhil::Expression* const condition = findProperty(widget, {language::second::SHOWN.data()});
    return condition == nullptr ? "" : "page::isShown([&] { return " + sizeCondition(*condition, "") + "; })";
}

// Lists.

const Function& PageEdition::functionOf(const EachNode& each) const {
    return *program_.elements.at(&each);
}

std::string PageEdition::listArguments(const EachNode& each) {
    const pozhil::Expression* const list = second::listOf(each);
    return written(list) + ", " + tables_.places.literal(valueOf(list).evaluation->place);
}

std::string PageEdition::elementParameters(const EachNode& each) const {
    std::string parameters;
    for (const Parameter& parameter : functionOf(each).parameters) {
        parameters += (parameters.empty() ? "Value " : ", Value ") + parameterName(parameter, tables_.names);
    }
    return "[&](" + parameters + ")";
}

std::string PageEdition::sharedElements(const EachNode& each) const {
    std::string declarations;
    for (const Parameter& parameter : functionOf(each).parameters) {
        if (parameter.variable->isShared) {
            declarations += sharedParameter(parameter, tables_.names) + " ";
        }
    }
    return declarations;
}

/// A fault counts as nothing, so that only what has it is missing.
std::string PageEdition::measured(const std::string& size) {
    return "page::measured([&] { return page::" + size + "; })";
}

std::string PageEdition::overElements(const char* gather, const EachNode& each, const Extent& ofOne) {
    return measured(std::string(gather) + "(" + listArguments(each) + ", " + elementParameters(each) + " -> float { " +
                    sharedElements(each) + "return " + ofOne.text() + "; })");
}

Extent PageEdition::sumOverElements(const EachNode& each, const Extent& ofOne) {
    if (!ofOne.isConstant()) {
        return Extent::computed(overElements("sum", each, ofOne));
    }
    return Extent::computed(measured("count(" + listArguments(each) + ")")) * ofOne;
}

Extent PageEdition::largestOfElements(const EachNode& each, const Extent& ofOne) {
    return ofOne.isConstant() ? onlyWhile(measured("count(" + listArguments(each) + ")") + " > 0.0f", ofOne)
                              : Extent::computed(overElements("largest", each, ofOne));
}

void PageEdition::writeEach(WidgetWriter& layout, const EachNode& each, const std::string& number, const Filling& body,
                            const Course* course) {
    const std::string list = listArguments(each);
    const pozhil::Expression* const key = second::keyOf(each);
    const std::string index = tables_.names.of(*functionOf(each).parameters.back().variable);
    layout.block(R"(
    guarded([&] {
        page::$loop, $parameters {
            $shared
            const auto key_$number = [&] { return pageText($key); };
            $body
        });
    });
)",
                 {{"loop", course == nullptr ? "each(" + list
                                             : "eachInWindow(" + list + ", " + course->position + ", " + course->step +
                                                   ", " + course->end},
                  {"parameters", elementParameters(each)},
                  {"shared", sharedElements(each)},
                  {"number", number},
                  {"key", key == nullptr ? index : written(key)},
                  {"body", body}});
}

std::string PageEdition::elementScope(const std::string& number) const {
    return "const page::Element element_" + number + "(" + number + ", key_" + number + "())";
}

Filling PageEdition::elementState(const std::string& type, const std::string& name, const Filling& first) const {
    return Filling(std::vector<Filling>{
        "page::ElementState<" + type + "> " + name + "(" + textLiteral(name) + ", (" + type + ")(", first, "))"});
}

std::string PageEdition::elementKey(const std::string& key) const {
    return "page::elementKey(" + key + ")";
}

std::string PageEdition::elementName(const std::string& name) const {
    return "page::elementName(" + name + ")";
}

void PageEdition::writeWindowSize(CodeWriter& out) {
    out.block("page::width = winWidth;\npage::height = winHeight;\npage::beginFrame(winWidth);\npage::beginLayers();\n"
              "page::runHandlers();\n");
}

void PageEdition::writeOpenAlerts(CodeWriter& out) {
    std::vector<const WidgetNode*> dialogs;
    for (const Page& page : program_.pages) {
        if (const auto* body = dynamic_cast<const WidgetNode*>(page.tree->uiBody.get())) {
            collectDialogs(*body, dialogs);
        }
    }
    out.block("// திறந்திருக்கும் உரையாடல்களின் காட்சிப்பெயர்கள்\nstd::set<std::string> pozhil_open_alerts() {\n"
              "    std::set<std::string> open;\n");
    for (const WidgetNode* dialog : dialogs) {
        if (const std::optional<Visibility> shown = visibility(*dialog)) {
            out.block("    if (g_alert_names.count($name) != 0 && $condition) {\n        open.insert($name);\n    }\n",
                      {{"name", textLiteral(shown->name)}, {"condition", shown->condition}});
        }
    }
    out.block("    return open;\n}\n");
}

void PageEdition::writeShownNames(CodeWriter& out) {
    NamesOfVariables names;
    for (const Page& page : program_.pages) {
        names.walk(*page.tree);
    }
    out.block("extern \"C\" int pozhil_program_shows(const char* name, int atFirst) {\n");
    for (const auto& [name, literal] : names.found) {
        out.block("    if (std::strcmp(name, $name) == 0) {\n        return $condition ? 1 : 0;\n    }\n",
                  {{"name", textLiteral(name)}, {"condition", visibilityCondition(*literal, "atFirst != 0")}});
    }
    out.block("    return atFirst;\n}\n");
}

void PageEdition::writeDrawing(CodeWriter& out) {
    out.block(R"(
// வரையும்போது பிழை எழுந்தால் அந்த விட்ஜெட் மட்டும் அச்சட்டத்தில் விடுபடும்; பிழை பக்கத்தில் சொல்லப்படும்
template <class Draw> void pozhil_draw(Draw draw) {
    guardedPart(draw);
}
)");
}

void PageEdition::writeHandler(WidgetWriter& widget, const pozhil::Expression& handler, HandlerSite) {
    if (asWidget(&handler) != nullptr) {
        widget.block("page::handle([=] {\n    $bar\n});\n", {{"bar", widget.blocks([&] {
                                                                  emitter_->writeExpression(&handler);
                                                                  out_ << ";\n";
                                                              })}});
        return;
    }
    writeCall(widget, &handler);
}

void PageEdition::writeHandlerStatements(WidgetWriter&, const pozhil::StatementList&) {
    throw std::logic_error("a page holds no statements");
}

std::string PageEdition::placeOf(const void* node) const {
    return tables_.places.literal(valueOf(node).evaluation->place);
}

void PageEdition::writeCall(WidgetWriter& widget, const void* handler, const std::string& news) {
    const std::string text = written(handler);
    const std::string call =
        isDeed(*valueOf(handler).evaluation->value)
            ? text
            : "callHandler(" + text + ", " + (news.empty() ? "" : news + ", ") + placeOf(handler) + ")";
    widget.block("page::handle([=] { $call; });\n", {{"call", call}});
}

void PageEdition::writeMessageFunction(WidgetWriter& bar, const Filling& message, const ByteColour& colour) {
    bar.block("page::showMessage($message, $r, $g, $b)", {{"message", message},
                                                          {"r", std::to_string(colour.red)},
                                                          {"g", std::to_string(colour.green)},
                                                          {"b", std::to_string(colour.blue)}});
}

MessageBar PageEdition::messageBar() const {
    MessageBar bar;
    bar.isShown = "page::message.isShown";
    bar.since = "page::message.since";
    bar.top = "page::message.top";
    bar.moved = "page::message.top = currentY";
    bar.hidden = "page::message.isShown = false";
    bar.message = "page::message.text";
    bar.red = "page::message.red";
    bar.green = "page::message.green";
    bar.blue = "page::message.blue";
    return bar;
}

void PageEdition::writeStatement(const pozhil::Statement*) {
    throw std::logic_error("a page holds no statements");
}

void PageEdition::writeBody(const pozhil::StatementList&) {
    throw std::logic_error("a page holds no statements");
}

Fault PageEdition::faultWithoutPlace(const std::string& code, std::int32_t, const std::string& details) const {
    throw std::logic_error("a page is wrong that analysis let through: " + code + " " + details);
}

} // namespace pozhil::resolved::writer
