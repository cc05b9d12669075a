#include "driver/vocabulary_json.h"

#include "analysis/second/names.h"
#include "base/json_text.h"
#include "base/source_loader.h"
#include "diagnostics/fault.h"
#include "error_codes.h"
#include "front_end/front_end.h"
#include "front_end/second_edition.h"
#include "language/alignments.h"
#include "language/builtins.h"
#include "language/colours.h"
#include "language/curves.h"
#include "language/diagnostic_causes.h"
#include "language/keywords.h"
#include "language/operators.h"
#include "language/second/builtins.h"
#include "language/second/widgets.h"
#include "language/widgets.h"

#include <algorithm>
#include <array>
#include <set>
#include <vector>

namespace pozhil {
namespace {

using json::text;

/// The name of a value of an enumeration, given the names of all in order.
template <class Enum, std::size_t N> std::string nameOf(Enum value, const std::string_view (&names)[N]) {
    return text(names[static_cast<std::size_t>(value)]);
}

// clang-format off
constexpr std::string_view KEYWORD_GROUPS[] = {"statement", "condition", "application", "widget", "animation",
                                               "operator"};
constexpr std::string_view OPERATOR_KINDS[] = {"logical", "bitwise", "comparison", "arithmetic", "join", "unary",
                                               "compound", "step"};
constexpr std::string_view BUILTIN_FORMS[] = {"call", "element_write", "loop_range", "list_method", "input_property",
                                              "input_method", "time_part", "time_method", "clock"};
constexpr std::string_view SECOND_BUILTIN_FORMS[] = {"call", "method", "part", "clock", "page_call", "page_word",
                                                     "field_part", "field_method"};
constexpr std::string_view BUILTIN_TOPICS[] = {"values", "lists", "texts", "mathematics", "files", "time", "web"};
constexpr std::string_view WIDGET_ROLES[] = {"widget", "item", "style", "key"};
constexpr std::string_view VALUE_KINDS[] = {"number", "size", "text", "truth", "colour", "alignment", "path",
                                            "variable", "handler", "widget", "list", "value",  "place", "name"};
// clang-format on

std::string number(TokenType type) {
    return std::to_string(static_cast<int>(type));
}

std::string bilingual(const language::Bilingual& told) {
    return json::object({{"ta", text(told.tamil)}, {"en", text(told.english)}});
}

/// Whether no variable may have this name.
bool isReserved(std::string_view word) {
    constexpr const char* PATH = "word";
    MemoryLoader loader;
    loader.set(PATH, std::string(word) + " = 1\n");
    FrontEndOptions options;
    options.loader = &loader;
    try {
        parseSource(loader.load(PATH), options);
    } catch (const Fault&) {
        return true;
    }
    return false;
}

/// The same in the second edition.
bool isReservedInSecondEdition(std::string_view word) {
    return !parseSecondEdition(makeSource("word", "ஃ பொழில் 2\n" + std::string(word) + " = 1\n"), {}).faults.empty();
}

std::string keyword(const language::Keyword& row) {
    return json::object({{"word", text(row.word)},
                         {"kind", number(row.type)},
                         {"group", nameOf(row.group, KEYWORD_GROUPS)},
                         {"reserved", json::truth(isReserved(row.word))},
                         {"reserved_in_second", json::truth(isReservedInSecondEdition(row.word))}});
}

std::string operatorRow(const language::Operator& row) {
    return json::object({{"word", text(row.word)},
                         {"kind", nameOf(row.kind, OPERATOR_KINDS)},
                         {"token", number(row.token)},
                         {"level", std::to_string(row.level)},
                         {"symbol", text(row.symbol)},
                         {"arithmetic", text(row.arithmetic)}});
}

std::string builtin(const language::Builtin& row) {
    const auto* last = std::find(row.parameters.begin(), row.parameters.end(), std::string_view());
    return json::object({{"name", text(row.name)},
                         {"form", nameOf(row.form, BUILTIN_FORMS)},
                         {"topic", nameOf(row.topic, BUILTIN_TOPICS)},
                         {"arguments", std::to_string(row.argumentCount)},
                         {"parameters", json::array(std::vector<std::string_view>(row.parameters.begin(), last), text)},
                         {"value", bilingual(row.value)},
                         {"description", bilingual(row.description)},
                         {"remark", bilingual(row.remark)}});
}

std::string property(const language::WidgetProperty& row) {
    return json::object({{"name", text(row.name)},
                         {"style", text(row.style)},
                         {"kind", nameOf(row.kind, VALUE_KINDS)},
                         {"description", bilingual(row.description)}});
}

std::string widget(const language::Widget& row) {
    return json::object({{"word", text(row.word)},
                         {"token", number(row.token)},
                         {"keyword", json::truth(row.isKeyword)},
                         {"role", nameOf(row.role, WIDGET_ROLES)},
                         {"description", bilingual(row.description)},
                         {"properties", json::array(row.properties, property)}});
}

std::string colour(const language::ColourWord& row) {
    const std::array<float, 3> components = {row.red, row.green, row.blue};
    return json::object({{"word", text(row.word)},
                         {"english", text(row.english)},
                         {"components", json::array(components, [](float part) { return std::to_string(part); })}});
}

std::string curve(const language::Curve& row) {
    return json::object({{"name", text(row.name)},
                         {"family", bilingual(row.family)},
                         {"place", bilingual(row.place)},
                         {"further", json::truth(row.kind == language::CurveName::Further)},
                         {"exponent", text(row.exponent)}});
}

std::string alignment(const language::Alignment& row) {
    return text(row.word);
}

language::Bilingual causeOf(std::string_view code) {
    const language::Rows<language::DiagnosticCause> causes = language::diagnosticCauses();
    const auto* found = std::find_if(causes.begin(), causes.end(), [&](const auto& row) { return row.code == code; });
    return found == causes.end() ? language::Bilingual() : found->cause;
}

std::string diagnostic(const catalogue::Entry& row) {
    return json::object({{"code", text(row.code)},
                         {"description", text(row.description)},
                         {"cause", bilingual(causeOf(row.code))},
                         {"remedy", text(row.remedy)}});
}

std::string secondBuiltin(const language::second::Builtin& row) {
    return json::object({{"name", text(row.name)}, {"form", nameOf(row.form, SECOND_BUILTIN_FORMS)}});
}

/// The names of all properties that a widget of the second edition or one of its style blocks has.
std::set<std::string_view> secondProperties() {
    namespace second = language::second;
    std::set<std::string_view> names = {second::EACH_LIST, second::EACH_ELEMENT, second::EACH_KEY, second::SHOWN,
                                        second::STATE_KEPT};
    for (const std::string_view word : second::widgetWords()) {
        const language::Widget* const widget = second::findWidget(word);
        if (widget == nullptr) {
            continue;
        }
        std::vector<std::string_view> blocks = second::stylesOf(*widget);
        blocks.emplace_back();
        for (const std::string_view style : blocks) {
            for (const language::WidgetProperty* property : second::propertiesOf(*widget, style)) {
                names.insert(property->name);
            }
        }
    }
    return names;
}

/// What only the second edition has.
std::string secondEdition() {
    return json::object({{"values", json::array(std::array{second::NOTHING_NAME}, text)},
                         {"builtins", json::array(language::second::builtins(), secondBuiltin)},
                         {"widgets", json::array(std::array{language::second::EACH}, text)},
                         {"properties", json::array(secondProperties(), text)}});
}

} // namespace

std::string vocabularyJson() {
    return json::object({{"keywords", json::array(language::keywords(), keyword)},
                         {"typo_candidates", json::array(language::typoCandidates(), text)},
                         {"operators", json::array(language::operators(), operatorRow)},
                         {"builtins", json::array(language::builtins(), builtin)},
                         {"widgets", json::array(language::widgets(), widget)},
                         {"common_properties", json::array(language::commonProperties(), property)},
                         {"alignments", json::array(language::alignments(), alignment)},
                         {"colours", json::array(language::colourWords(), colour)},
                         {"curves", json::array(language::curves(), curve)},
                         {"diagnostics", json::array(catalogue::entries, diagnostic)},
                         {"second", secondEdition()}});
}

} // namespace pozhil
