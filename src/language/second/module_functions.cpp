#include "language/second/module_functions.h"

#include <algorithm>

namespace pozhil::language::second {
namespace {

template <class Condition> const ModuleFunction* findWhere(Condition condition) {
    const Rows<ModuleFunction> rows = moduleFunctions();
    const auto* const found = std::find_if(rows.begin(), rows.end(), condition);
    return found == rows.end() ? nullptr : found;
}

} // namespace

const ModuleFunction* findModuleFunction(std::string_view name) {
    return findWhere([&](const ModuleFunction& row) { return row.name == name; });
}

const ModuleFunction* moduleFunctionIn(std::string_view text) {
    return findWhere(
        [&](const ModuleFunction& row) { return text.find(std::string(row.name) + "(") != std::string_view::npos; });
}

bool isModule(std::string_view name) {
    return findWhere([&](const ModuleFunction& row) { return row.module == name; }) != nullptr;
}

std::string importRemedyOf(const ModuleFunction& function) {
    return "'" + std::string(function.name) + "' செயலைப் பெற, கோப்பின் தொடக்கத்துல 'நூஇறக்கி \"" +
           std::string(function.module) + "\"' என்று எழுது மச்சி!";
}

} // namespace pozhil::language::second
