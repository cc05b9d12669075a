#include "generator/first/names.h"

#include "generator/first/runtime_text.h"

#include <algorithm>
#include <array>
#include <set>

namespace pozhil {
namespace {

constexpr std::string_view FUNCTION_PREFIX = "fn_";

/// What the writers declare around statements and expressions of the program, and what they set in between.
constexpr std::array<std::string_view, 13> VARIABLES_OF_THE_TEXT = {
    "_iterable", "_switch_val", "_tracker", "cb_id", "e", "g_current_call_line", "global_vars", "json_data",
    "pair",      "path_str",    "temp_obj", "sub",   "s"};
/// An object under construction is called after its variable, the element of a list after the loop's.
constexpr std::string_view OBJECT_PREFIX = "obj_";
constexpr std::string_view ELEMENT_SUFFIX = "_any";

bool isNameByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || c == '_' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

void collectFunctionNames(std::string_view text, std::set<std::string, std::less<>>& names) {
    std::size_t start = text.find(FUNCTION_PREFIX);
    while (start != std::string_view::npos) {
        const auto* end = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), isNameByte);
        const auto length = static_cast<std::size_t>(end - text.begin()) - start;
        names.emplace(text.substr(start, length));
        start = text.find(FUNCTION_PREFIX, start + length);
    }
}

/// Every name of the runtime that begins like a user's function.
const std::set<std::string, std::less<>>& runtimeFunctionNames() {
    static const std::set<std::string, std::less<>> names = [] {
        std::set<std::string, std::less<>> found;
        for (const std::string_view section : {runtime::return_value, runtime::value_texts, runtime::value_functions,
                                               runtime::library, runtime::scroll_function}) {
            collectFunctionNames(section, found);
        }
        return found;
    }();
    return names;
}

bool isVariableOfTheText(std::string_view name) {
    const bool isElement =
        name.size() >= ELEMENT_SUFFIX.size() && name.substr(name.size() - ELEMENT_SUFFIX.size()) == ELEMENT_SUFFIX;
    return isElement || name.substr(0, OBJECT_PREFIX.size()) == OBJECT_PREFIX ||
           std::find(VARIABLES_OF_THE_TEXT.begin(), VARIABLES_OF_THE_TEXT.end(), name) != VARIABLES_OF_THE_TEXT.end();
}

} // namespace

std::string anyTypes(std::size_t count) {
    std::string types;
    for (std::size_t index = 0; index < count; ++index) {
        types += index == 0 ? "std::any" : ", std::any";
    }
    return types;
}

std::string emittedFunctionName(const std::string& stem) {
    std::string name = std::string(FUNCTION_PREFIX) + stem;
    return runtimeFunctionNames().count(name) == 0 ? name : name + "_";
}

/// Names that have underscores after such a name already get one more, so that no two names become one.
std::string emittedVariableName(const std::string& name) {
    const std::string stem = name.substr(0, name.find_last_not_of('_') + 1);
    return isVariableOfTheText(stem) ? name + "_" : name;
}

} // namespace pozhil
