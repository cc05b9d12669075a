#include "analysis/second/model.h"

#include "base/text.h"

#include <memory>
#include <string>

namespace pozhil::second {

resolved::Variable* Model::addVariable(const Scope& scope, std::string_view name, resolved::Place place) {
    program.variables.push_back(std::make_unique<resolved::Variable>());
    resolved::Variable* const variable = program.variables.back().get();
    variable->name = std::string(name);
    variable->place = place;
    variable->owner = scope.function;
    variable->file = scope.file;
    return variable;
}

resolved::Variable* Model::declare(Scope& scope, std::string_view name, resolved::Place place) {
    resolved::Variable* const variable = addVariable(scope, name, place);
    scope.variables[name] = variable;
    return variable;
}

bool isSelf(std::string_view name) {
    return name == SELF_NAME || name == "self";
}

bool isConstantName(std::string_view name) {
    return startsWith(name, "மாறிலி_");
}

} // namespace pozhil::second
