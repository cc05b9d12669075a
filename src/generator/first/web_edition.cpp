#include "generator/first/web_edition.h"

#include "emit/code_writer.h"
#include "generator/first/emission.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/operators.h"
#include "language/property_words.h"
#include "language/widget_words.h"

#include <functional>
#include <vector>

namespace pozhil {
namespace {

/// \p inner, which is a value or a text of C++, as a text.
Filling textOfValue(Filling inner) {
    return Filling(std::vector<Filling>{"fn_any_to_string(", std::move(inner), ")"});
}

std::string comparisonSymbol(const std::string& word) {
    const language::Operator* found = language::findOperator(word, language::OperatorKind::Comparison);
    return found == nullptr ? "==" : std::string(found->symbol);
}

std::string variableSize(const std::string& name) {
    if (name == "திரை_அகலம்") {
        return "winWidth";
    }
    if (name == "திரை_உயரம்") {
        return "winHeight";
    }
    return "fn_get_double(" + globalVariable(name) + ")";
}

/// The variable by which the program knows a box to tick; empty if it doesn't. It knows no other control so.
std::string controlVariable(const WidgetWriter& control) {
    const bool isBox = control.widget().kind == language::widget::CHECKBOX;
    return isBox ? textOf(findProperty(control.widget(), {"அடையாளம்"})) : "";
}

/// \p lines, outlived by the page whatever they throw. A call that stands in place of a function has run, and may have
/// thrown, by the time its value is there.
void writeGuarded(WidgetWriter& widget, const Filling& lines) {
    widget.block("try {\n    $lines\n} catch (...) {\n}\n", {{"lines", lines}});
}

constexpr Block CALL = R"(
std::any callback = $handler;
try {
    if (callback.type() == typeid(std::function<std::any()>)) {
        std::any_cast<std::function<std::any()>>(callback)();
    }
} catch (...) {
}
)";

constexpr Block EVALUATION = "std::any callback = $handler;\n";

constexpr Block EVALUATION_IN_CLOSURE = R"(
    std::any callback = std::function<void()>([=](){ $handler; });
    try {
        std::any_cast<std::function<void()>>(callback)();
    } catch (...) {
    }
)";

} // namespace

Filling WebEdition::written(const Expression* expression) {
    return std::function<void()>([this, expression] { writeExpression(expression); });
}

Filling WebEdition::text(const Expression* value, const std::string& otherwise) {
    return textOfValue(value == nullptr ? Filling(otherwise) : written(value));
}

Filling WebEdition::shownText(const Expression* value, const std::string& otherwise) {
    if (const auto* member = nodeCast<GetExpression>(value)) {
        const auto* object = nodeCast<VariableAccess>(member->object.get());
        if (object != nullptr && object->name == "காட்சி_நிலை") {
            return textOfValue(globalVariable(member->member.value));
        }
    }
    if (const auto* variable = nodeCast<VariableAccess>(value)) {
        return textOfValue(globalVariable(variable->name));
    }
    return text(value, otherwise);
}

Filling WebEdition::number(const Expression& value) {
    return Filling(std::vector<Filling>{"fn_get_double(", written(&value), ")"});
}

Filling WebEdition::truth(const Expression& value) {
    return Filling(std::vector<Filling>{"fn_compare_any(", written(&value), ", true, \"==\")"});
}

Filling WebEdition::equality(const Expression& left, const Expression& right) {
    return Filling(std::vector<Filling>{"fn_compare_any(", written(&left), ", ", written(&right), ", \"==\")"});
}

std::string WebEdition::literal(const std::string& text) const {
    return "\"" + text + "\"";
}

std::string WebEdition::computedSize(const Expression& size, const std::string& base) {
    if (const auto* binary = nodeCast<BinaryExpression>(&size)) {
        const std::string left = processPercentage(*this, binary->left.get(), base);
        const std::string right = processPercentage(*this, binary->right.get(), base);
        const bool isWhole = !left.empty() && !right.empty();
        return isWhole ? "(" + left + " " + comparisonSymbol(binary->op.value) + " " + right + ")" : "";
    }
    const auto* variable = nodeCast<VariableAccess>(&size);
    return variable == nullptr ? "" : variableSize(variable->name);
}

std::string WebEdition::sizeCondition(const Expression& condition, const std::string& base) {
    return processPercentage(*this, &condition, base);
}

std::optional<Visibility> WebEdition::visibility(const WidgetNode& widget) {
    const std::string name = textOf(findProperty(widget, {language::property::VISIBILITY.data()}));
    if (name.empty()) {
        return std::nullopt;
    }
    const std::string variable = globalVariable(name);
    const std::string isTrue = variable + ".type() == typeid(bool) && std::any_cast<bool>(" + variable + ") == true";
    if (widget.kind == language::widget::DIALOG) {
        return Visibility{name, "global_vars.count(\"" + name + "\") && " + isTrue};
    }
    return Visibility{name, "global_vars.find(\"" + name + "\") == global_vars.end() || (" + isTrue + ")"};
}

void WebEdition::writeStateRead(WidgetWriter& control, const ControlState& state) {
    const std::string variable = controlVariable(control);
    if (!variable.empty()) {
        control.block(R"(
    if (global_vars.find("$id") == global_vars.end()) {
        global_vars["$id"] = std::any($state);
    } else if (global_vars["$id"].type() == typeid(bool)) {
        $state = std::any_cast<bool>(global_vars["$id"]);
    }
)",
                      {{"id", variable}, {"state", state.variable}});
    }
}

void WebEdition::writeChange(WidgetWriter& control, const ControlState& state) {
    if (control.widget().kind == language::widget::CHECKBOX) {
        const std::string variable = controlVariable(control);
        if (!variable.empty()) {
            control.block("global_vars[\"$id\"] = std::any($state);\n", {{"id", variable}, {"state", state.variable}});
        }
        return;
    }
    const bool isBar = state.kind == ControlState::Kind::Index;
    if (const Expression* handler = findProperty(control.widget(), {isBar ? "அழுத்தினால்" : "மாறியதால்"})) {
        writeHandlerCall(control, handler, isBar ? HandlerSite::Bar : HandlerSite::Control);
    }
}

void WebEdition::writeChoices(WidgetWriter& dropdown, const Expression& choices) {
    if (const auto* list = nodeCast<ListLiteral>(&choices)) {
        for (const ExpressionPtr& element : list->elements) {
            if (const auto* item = nodeCast<StringLiteral>(element.get())) {
                dropdown.block("    items.push_back($item);\n", {{"item", literal(item->value)}});
            }
        }
    }
}

void WebEdition::writeWindowSize(CodeWriter& out) {
    out.block(R"(
global_vars["திரை_அகலம்"] = (long double)winWidth;
global_vars["திரை_உயரம்"] = (long double)winHeight;
)");
}

void WebEdition::writeOpenAlerts(CodeWriter& out) {
    out.block(R"(
// இப்போது மெய்யாக உள்ள காட்சிப்பெயர்கள்
std::set<std::string> pozhil_open_alerts() {
    std::set<std::string> open;
    for (const std::string& alert_name : g_alert_names) {
        const auto shown = global_vars.find(alert_name);
        if (shown != global_vars.end() && shown->second.type() == typeid(bool) && std::any_cast<bool>(shown->second)) {
            open.insert(alert_name);
        }
    }
    return open;
}
)");
}

void WebEdition::writeDrawing(CodeWriter& out) {
    out.block(R"block(
// வரையும்போது பிழை எழுந்தால் அந்த விட்ஜெட் மட்டும் அச்சட்டத்தில் விடுபடும்; ஒவ்வொரு பிழையும் ஒருமுறையே பணியகத்துக்குச் செல்லும்
void pozhil_report_drawing_fault(const std::string& fault) {
    static std::set<std::string> reported;
    if (reported.insert(fault).second) {
        EM_ASM({ console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', UTF8ToString($0)); }, fault.c_str());
    }
}

template <class Draw> void pozhil_draw(Draw draw) {
    try {
        draw();
    } catch (const std::exception& fault) {
        pozhil_report_drawing_fault(fault.what());
    }
}
)block");
}

void WebEdition::writeHandler(WidgetWriter& widget, const Expression& handler, HandlerSite site) {
    const Holes holes = {{"handler", written(&handler)}};
    if (site == HandlerSite::TextButton) {
        widget.block(EVALUATION_IN_CLOSURE, holes);
    } else {
        const Block& lines = site == HandlerSite::Bar ? EVALUATION : CALL;
        writeGuarded(widget, widget.blocks([&] { widget.block(lines, holes); }));
    }
}

void WebEdition::writeHandlerStatements(WidgetWriter& widget, const StatementList& statements) {
    writeGuarded(widget, widget.statements(statements));
}

void WebEdition::writeMessageFunction(WidgetWriter& bar, const Filling& message, const ByteColour& colour) {
    bar.block(R"(
std::function<std::any()>([=]() mutable -> std::any {
    global_vars["active_sb"] = std::any(true);
    global_vars["sb_start_time"] = std::any((double)emscripten_get_now());
    global_vars["sb_y_pos"] = std::any(-100.0f);
    global_vars["sb_msg"] = std::any($message);
    global_vars["sb_bg_r"] = std::any((int)$r);
    global_vars["sb_bg_g"] = std::any((int)$g);
    global_vars["sb_bg_b"] = std::any((int)$b);
    return std::any();
})
)",
              {{"message", message},
               {"r", std::to_string(colour.red)},
               {"g", std::to_string(colour.green)},
               {"b", std::to_string(colour.blue)}});
}

MessageBar WebEdition::messageBar() const {
    /// What \p variable holds as a value of \p type, and what stands for one that isn't there.
    const auto held = [](const std::string& variable, const std::string& type) {
        return "std::any_cast<" + type + ">(" + globalVariable(variable) + ")";
    };
    const auto heldOr = [&](const std::string& variable, const std::string& type, const std::string& otherwise) {
        return "global_vars.count(\"" + variable + "\") ? " + held(variable, type) + " : " + otherwise;
    };
    MessageBar bar;
    bar.isShown = "global_vars.count(\"active_sb\") && " + held("active_sb", "bool");
    bar.since = held("sb_start_time", "double");
    bar.top = heldOr("sb_y_pos", "float", "-100.0f");
    bar.moved = globalVariable("sb_y_pos") + " = std::any(currentY)";
    bar.hidden = globalVariable("active_sb") + " = std::any(false)";
    bar.message = heldOr("sb_msg", "std::string", "\"தகவல்\"");
    bar.red = heldOr("sb_bg_r", "int", "50");
    bar.green = heldOr("sb_bg_g", "int", "50");
    bar.blue = heldOr("sb_bg_b", "int", "50");
    return bar;
}

} // namespace pozhil
